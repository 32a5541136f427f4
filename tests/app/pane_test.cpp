// The editor pane without drags: what its lists show, and what keys, clicks and the functions of
// the pane do to focus, selection and current position.
#include "pane_fixture.h"
#include "scriptfile/entry_codec.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include <numeric>
#include <ostream>

namespace quendra {
namespace {

using PaneTest = PaneFixture;

TEST_F(PaneTest, PalettesShowTheCataloguesInOrder) {
    ASSERT_EQ(events->model()->rowCount(), 20);
    EXPECT_EQ(pane->paletteText(Palette::ScriptEvents, 0), QStringLiteral("Beep"));
    EXPECT_EQ(pane->paletteText(Palette::ScriptEvents, 3), QStringLiteral("Copy"))
        << "catalogue order, not the order of the codes";
    ASSERT_EQ(menuCommands->model()->rowCount(), 68);
    for (int row = 0; row < 68; ++row) {
        EXPECT_EQ(pane->paletteText(Palette::MenuCommands, row).toStdString(),
                  menuCommandName(state.menuCommands, 201 + static_cast<std::uint32_t>(row)));
    }
    for (const PaneList* list : {events, luFunctions, menuCommands}) {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            EXPECT_FALSE(index.data(Qt::DecorationRole).value<QIcon>().isNull()) << row;
        }
    }
}

TEST_F(PaneTest, LuPaletteFollowsTheHostType) {
    constexpr std::array<int, 6> rows = {64, 63, 142, 67, 90, 137};
    for (const HostType type : allHostTypes) {
        state.currentHostType = type;
        selectionChanges = 0;
        pane->refillLuPalette();
        EXPECT_EQ(luFunctions->model()->rowCount(), rows[static_cast<std::size_t>(type)]);
        EXPECT_EQ(pane->paletteText(Palette::LuFunctions, 1).toStdString(),
                  state.luCatalogues.of(type).rows[1].name);
        EXPECT_EQ(selectionChanges, 1) << "the palette's selection is gone";
    }
}

TEST_F(PaneTest, LabelsNameThePalettesOnScreenAndForScreenReaders) {
    const std::vector<std::pair<PaneList*, QString>> expected = {
        {script, QStringLiteral("Script")},
        {events, QStringLiteral("Script Events")},
        {luFunctions, QStringLiteral("LU Functions")},
        {menuCommands, QStringLiteral("Menu Commands")}};
    for (const auto& [list, name] : expected) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(list);
        ASSERT_NE(accessible, nullptr);
        EXPECT_EQ(accessible->text(QAccessible::Name), name);
        if (list == script) continue;
        QString labelName = list->objectName();
        labelName.replace(QStringLiteral("Palette"), QStringLiteral("Label"));
        EXPECT_EQ(pane->findChild<QLabel*>(labelName)->text(), name);
    }
}

TEST_F(PaneTest, RowsOfTheScriptHaveOneEscapedLineAndTheirIcon) {
    ScriptEntry beep;
    beep.commandCode = CommandCode::Beep;
    ScriptEntry unknownCommand;
    unknownCommand.commandCode = CommandCode::MenuCommand;
    unknownCommand.commandId = 300;
    state.script.entries = {remark("tab\there", state.cipher), packEntry(beep, state.cipher).entry,
                            packEntry(unknownCommand, state.cipher).entry,
                            remark("<b>bold</b> & more", state.cipher)};
    pane->rebuildScriptList();
    EXPECT_EQ(lines(), "tab\\x09here Beep <Menu Command 300> <b>bold</b> & more");
    const auto icon = [&](int row) {
        return script->model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>();
    };
    EXPECT_FALSE(icon(1).isNull());
    EXPECT_TRUE(icon(2).isNull());
    EXPECT_TRUE(script->model()
                    ->index(3, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("&lt;b&gt;bold&lt;/b&gt; &amp; more")))
        << "a typed text is never markup";
}

TEST_F(PaneTest, RowsStayUniformWhateverTheyHold) {
    state.script.entries = {remark("", state.cipher), remark(std::string(255, 'W'), state.cipher)};
    pane->rebuildScriptList();
    EXPECT_EQ(script->rowRect(0).size(), script->rowRect(1).size());
    EXPECT_EQ(script->rowRect(1).width(), script->viewport()->width()) << "elided, not scrolled";
    EXPECT_GE(script->rowRect(0).height(), 16);
}

TEST_F(PaneTest, FourThousandRowsCostAsMuchAsAScreenful) {
    QElapsedTimer timer;
    timer.start();
    fillScript(4096);
    EXPECT_EQ(script->model()->rowCount(), 4096);
    state.currentIndex = 4095;
    timer.restart();
    for (int i = 0; i < 20; ++i) {
        pane->rebuildScriptList();
        settle();
    }
    EXPECT_LT(timer.elapsed() / 20, 50) << "milliseconds a rebuild";
    EXPECT_TRUE(script->viewport()->rect().contains(script->rowRect(4095)));
    std::vector<std::size_t> everySecond;
    for (std::size_t i = 0; i < 4096; i += 2) {
        everySecond.push_back(i);
    }
    selectionChanges = 0;
    timer.restart();
    select(everySecond, 10);
    EXPECT_EQ(selected(), everySecond);
    EXPECT_LT(timer.elapsed(), 500);
    EXPECT_EQ(selectionChanges, 1);
    EXPECT_TRUE(script->viewport()->rect().contains(script->rowRect(10)));
}

TEST_F(PaneTest, RebuildSelectsFocusesAndShowsTheCurrentEntry) {
    fillScript(100);
    EXPECT_TRUE(selected().empty());
    EXPECT_EQ(pane->focusedEntry(), -1);
    state.currentIndex = 60;
    selectionChanges = 0;
    pane->rebuildScriptList();
    EXPECT_EQ(selected(), std::vector<std::size_t>{60});
    EXPECT_EQ(pane->focusedEntry(), 60);
    EXPECT_TRUE(script->viewport()->rect().contains(script->rowRect(60)));
    EXPECT_EQ(selectionChanges, 1);
    const int scrolled = script->verticalScrollBar()->value();
    EXPECT_GT(scrolled, 0);
    state.currentIndex = 59;
    pane->rebuildScriptList();
    EXPECT_EQ(script->verticalScrollBar()->value(), scrolled) << "the list stays where it was";
    state.script.entries.resize(5);
    state.currentIndex = 7;
    pane->rebuildScriptList();
    EXPECT_EQ(pane->focusedEntry(), -1);
    EXPECT_EQ(state.currentIndex, 7);
}

TEST_F(PaneTest, RowsThatTheScriptLostSinceTheRebuildAreEmpty) {
    fillScript(3);
    state.script.entries.clear();
    EXPECT_EQ(pane->entryText(2), QString());
    script->viewport()->repaint();
}

TEST_F(PaneTest, CurrentIndexFollowsTheFocusOfTheScriptListOnly) {
    fillScript(5);
    click(onRow(*script, 3));
    EXPECT_EQ(state.currentIndex, 3);
    key(Qt::Key_Up);
    EXPECT_EQ(state.currentIndex, 2);
    click(onRow(*events, 4));
    EXPECT_EQ(pane->selectedRow(Palette::ScriptEvents), 4);
    EXPECT_EQ(state.currentIndex, 2);
    select({0, 4}, 4);
    EXPECT_EQ(state.currentIndex, 4);
    select({0, 4}, -1);
    EXPECT_EQ(pane->focusedEntry(), -1);
    EXPECT_EQ(selected(), (std::vector<std::size_t>{0, 4}));
    EXPECT_EQ(state.currentIndex, 4) << "no focused entry changes nothing";
}

TEST_F(PaneTest, KeyboardFocusAloneFocusesNoEntry) {
    fillScript(5);
    events->setFocus();
    pane->takeFocus();
    script->setFocus();
    EXPECT_EQ(pane->focusedEntry(), -1);
    EXPECT_EQ(state.currentIndex, -1);
}

TEST_F(PaneTest, EveryListTellsOfItsSelection) {
    fillScript(5);
    for (const PaneList* list : {script, events, luFunctions, menuCommands}) {
        selectionChanges = 0;
        click(onRow(*list, 1));
        EXPECT_GT(selectionChanges, 0) << list->objectName().toStdString();
    }
    selectionChanges = 0;
    select({1, 2, 4}, 2);
    EXPECT_EQ(selectionChanges, 1);
}

TEST_F(PaneTest, DoubleClickAndReturnAskForTheCommandOfTheirList) {
    fillScript(5);
    const std::vector<std::pair<PaneList*, int>> expected = {
        {script, 311}, {events, 308}, {luFunctions, 309}, {menuCommands, 310}};
    for (const auto& [list, command] : expected) {
        commands.clear();
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->rowRect(2).center());
        EXPECT_TRUE(commands.empty()) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, std::vector<int>{command});
        EXPECT_EQ(list->focusedRow(), 2);
        QTest::keyClick(list, Qt::Key_Return);
        EXPECT_EQ(commands.size(), 1u) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, (std::vector<int>{command, command}));
    }
}

TEST_F(PaneTest, NoItemNoCommand) {
    key(Qt::Key_Return);
    click(belowRows(*script));
    doubleClick(belowRows(*script));
    fillScript(3);
    key(Qt::Key_Return);
    doubleClick(belowRows(*script));
    settle();
    EXPECT_TRUE(commands.empty());
}

TEST_F(PaneTest, AHeldReturnKeyActivatesOnce) {
    click(onRow(*luFunctions, 2));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    key(Qt::Key_Return);
    QApplication::sendEvent(luFunctions, &repeated);
    settle();
    EXPECT_EQ(commands, std::vector<int>{309});
}

TEST_F(PaneTest, TypingFindsRowsInEveryList) {
    state.script.entries = {remark("alpha", state.cipher), remark("beta", state.cipher),
                            remark("gamma", state.cipher)};
    pane->rebuildScriptList();
    script->setFocus();
    QTest::keyClicks(script, QStringLiteral("ga"));
    EXPECT_EQ(state.currentIndex, 2);
    for (PaneList* list : {events, luFunctions, menuCommands}) {
        list->setFocus();
        const QString text = list->model()->index(10, 0).data().toString();
        QTest::keyClicks(list, text.left(4).toLower());
        EXPECT_TRUE(
            list->currentIndex().data().toString().startsWith(text.left(4), Qt::CaseInsensitive))
            << list->objectName().toStdString();
        EXPECT_EQ(list->selectedRows().size(), 1u);
    }
}

TEST_F(PaneTest, TabGoesFromTheScriptThroughThePalettes) {
    fillScript(2);
    script->setFocus();
    for (const PaneList* next : {events, luFunctions, menuCommands}) {
        key(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
    }
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), luFunctions);
}

TEST_F(PaneTest, FocusComesBackToTheListThatHadItLast) {
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    for (PaneList* list : {menuCommands, script, events}) {
        list->setFocus();
        other.setFocus();
        ASSERT_EQ(QApplication::focusWidget(), &other);
        pane->takeFocus();
        EXPECT_EQ(QApplication::focusWidget(), list);
    }
}

struct MoveByOneCase {
    const char* name;
    std::vector<std::size_t> selected;
    int focused;
    int key;
    const char* lines;
    std::vector<std::size_t> selectedAfter;
    int focusedAfter;
};

TEST_F(PaneTest, ControlUpAndDownMoveTheSelectedEntriesByOne) {
    const std::vector<MoveByOneCase> cases = {
        {"one up", {2}, 2, Qt::Key_Up, "e0 e2 e1 e3 e4", {1}, 1},
        {"one down", {2}, 2, Qt::Key_Down, "e0 e1 e3 e2 e4", {3}, 3},
        {"two apart down", {0, 2}, 0, Qt::Key_Down, "e1 e0 e3 e2 e4", {1, 3}, 1},
        {"nothing focused", {1, 2}, -1, Qt::Key_Up, "e1 e2 e0 e3 e4", {0, 1}, 0},
    };
    for (const MoveByOneCase& row : cases) {
        fillScript(5);
        select(row.selected, row.focused);
        moves = 0;
        key(row.key, Qt::ControlModifier);
        EXPECT_EQ(lines(), row.lines) << row.name;
        EXPECT_EQ(selected(), row.selectedAfter) << row.name;
        EXPECT_EQ(pane->focusedEntry(), row.focusedAfter) << row.name;
        EXPECT_EQ(state.currentIndex, row.focusedAfter) << row.name;
        EXPECT_EQ(moves, 1) << row.name;
    }
}

TEST_F(PaneTest, EntriesAtAnEndMoveNoFurtherAndChangeNothing) {
    fillScript(3);
    select({0, 1}, 1);
    key(Qt::Key_Up, Qt::ControlModifier);
    select({1, 2}, 1);
    key(Qt::Key_Down, Qt::ControlModifier);
    select({}, 1);
    key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(lines(), "e0 e1 e2");
    EXPECT_EQ(moves, 0);
}

TEST_F(PaneTest, CopyKeyLeavesTheSystemClipboardAlone) {
    QApplication::clipboard()->setText(QStringLiteral("mine"));
    fillScript(2);
    select({1}, 1);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("mine"));
}

TEST_F(PaneTest, APressBesideTheRowsChoosesNone) {
    fillScript(3);
    select({1}, 1);
    click(belowRows(*script));
    EXPECT_TRUE(selected().empty());
    window.resize(600, 1600);
    settle();
    click(onRow(*events, 1));
    click(belowRows(*events));
    EXPECT_EQ(pane->selectedRow(Palette::ScriptEvents), -1);
}

TEST_F(PaneTest, ControlsStandWhereTheLayoutSays) {
    ASSERT_EQ(pane->size(), QSize(600, 400));
    EXPECT_EQ(script->geometry(), QRect(10, 12, 361, 377));
    EXPECT_EQ(events->geometry(), QRect(381, 26, 209, 105));
    EXPECT_EQ(luFunctions->geometry(), QRect(381, 155, 209, 105));
    EXPECT_EQ(menuCommands->geometry(), QRect(381, 284, 209, 105));
}

TEST_F(PaneTest, NothingIsCutOffWhenTheTextGrows) {
    QFont large = pane->font();
    large.setPointSize(large.pointSize() * 2);
    pane->setFont(large);
    settle();
    for (const QLabel* label : pane->findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->fontMetrics().height());
        EXPECT_GE(label->width(), label->sizeHint().width());
        for (const PaneList* list : {events, luFunctions, menuCommands}) {
            EXPECT_FALSE(label->geometry().intersects(list->geometry()));
        }
    }
    EXPECT_GE(events->rowRect(0).height(), events->fontMetrics().height());
    window.resize(10, 10);
    settle();
    EXPECT_GE(events->viewport()->height(), 3 * events->rowRect(0).height());
}

TEST_F(PaneTest, SeparatorIsEtchedInTheColoursOfTheWindow) {
    const auto lineColours = [&](const QColor& background) {
        QPalette palette = pane->palette();
        palette.setColor(QPalette::Window, background);
        pane->setPalette(palette);
        const QImage image = pane->grab().toImage();
        return std::pair(image.pixelColor(300, 0), image.pixelColor(599, 1));
    };
    EXPECT_EQ(lineColours(QColor(240, 240, 240)),
              std::pair(QColor(128, 128, 128), QColor(255, 255, 255)));
    const QColor dark(45, 45, 48);
    const auto [upper, lower] = lineColours(dark);
    EXPECT_LT(upper.lightness(), dark.lightness());
    EXPECT_GT(lower.lightness(), dark.lightness());
    EXPECT_LT(lower.lightness(), 100);
}

}  // namespace
}  // namespace quendra
