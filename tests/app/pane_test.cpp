// The editor pane without drags: what its lists show, and what keys, clicks and the functions of
// the pane do to focus, selection and current position.
#include "pane_fixture.h"
#include "scriptfile/entry_codec.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <tuple>

namespace quendra {
namespace {

using PaneTest = PaneFixture;

QIcon iconOf(const PaneList& list, int row) {
    return list.model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>();
}

TEST_F(PaneTest, PalettesShowTheirCataloguesUnderTheirNames) {
    const char* const names[] = {"Script", "Script Events", "LU Functions", "Menu Commands"};
    for (std::size_t i = 0; i < lists.size(); ++i) {
        PaneList& list = *lists[i].first;
        const QString name = QLatin1String(names[i]);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&list)->text(QAccessible::Name), name);
        if (i == 0) continue;
        const QString label =
            list.objectName().replace(QStringLiteral("Palette"), QStringLiteral("Label"));
        EXPECT_EQ(pane->findChild<QLabel*>(label)->text(), name);
        for (int row = 0; row < list.model()->rowCount(); ++row)
            EXPECT_FALSE(iconOf(list, row).isNull()) << names[i] << row;
    }
    EXPECT_EQ(events->model()->rowCount(), 20);
    EXPECT_EQ(pane->paletteText(Palette::ScriptEvents, 3), QStringLiteral("Copy"))
        << "catalogue order, not the order of the codes";
    ASSERT_EQ(menuCommands->model()->rowCount(), 68);
    for (const int row : {0, 67}) {
        EXPECT_EQ(pane->paletteText(Palette::MenuCommands, row).toStdString(),
                  menuCommandName(state.menuCommands, 201 + static_cast<std::uint32_t>(row)));
    }
    constexpr std::array<int, 6> luRows = {64, 63, 142, 67, 90, 137};
    for (const HostType type : allHostTypes) {
        state.currentHostType = type;
        selectionChanges = 0;
        pane->refillLuPalette();
        EXPECT_EQ(luFunctions->model()->rowCount(), luRows[static_cast<std::size_t>(type)]);
        EXPECT_EQ(pane->paletteText(Palette::LuFunctions, 1).toStdString(),
                  state.luCatalogues.of(type).rows[1].name);
        EXPECT_EQ(selectionChanges, 1) << "the palette's selection is gone";
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
    EXPECT_FALSE(iconOf(*script, 1).isNull());
    EXPECT_TRUE(iconOf(*script, 2).isNull());
    const QString toolTip = script->model()->index(3, 0).data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(toolTip.contains(u"&lt;b&gt;bold&lt;/b&gt; &amp; more"))
        << "a typed text is never markup";
    state.script.entries.clear();
    EXPECT_EQ(pane->entryText(2), QString()) << "lost since the list was built";
    script->viewport()->repaint();
}

TEST_F(PaneTest, RebuildSelectsFocusesAndShowsTheCurrentEntry) {
    fillScript(4096);
    expectCurrent({}, -1);
    state.currentIndex = 60;
    pane->rebuildScriptList();
    expectCurrent({60}, 60);
    EXPECT_TRUE(isInSight(60));
    EXPECT_EQ(selectionChanges, 1);
    const int scrolled = script->verticalScrollBar()->value();
    EXPECT_GT(scrolled, 0);
    state.currentIndex = 59;
    pane->rebuildScriptList();
    EXPECT_EQ(script->verticalScrollBar()->value(), scrolled) << "the list stays where it was";
    state.currentIndex = 4096;
    pane->rebuildScriptList();
    EXPECT_EQ(pane->focusedEntry(), -1);
    EXPECT_EQ(state.currentIndex, 4096);
}

TEST_F(PaneTest, AnySelectionIsMadeAtOnceAndItsFocusShown) {
    fillScript(4096);
    Rows everySecond;
    for (std::size_t i = 0; i < 4096; i += 2)
        everySecond.push_back(i);
    select(everySecond, 4094);
    expectCurrent(everySecond, 4094);
    EXPECT_EQ(selectionChanges, 1);
    EXPECT_TRUE(isInSight(4094));
    select({1, 2, 4}, -1);
    EXPECT_EQ(selected(), (Rows{1, 2, 4}));
    EXPECT_EQ(pane->focusedEntry(), -1);
    EXPECT_EQ(state.currentIndex, 4094) << "no focused entry changes nothing";
}

TEST_F(PaneTest, CurrentIndexFollowsTheFocusOfTheScriptListOnly) {
    fillScript(5);
    events->setFocus();
    pane->takeFocus();
    script->setFocus();
    expectCurrent({}, -1);
    click(onRow(*script, 3));
    EXPECT_EQ(state.currentIndex, 3);
    key(Qt::Key_Up);
    EXPECT_EQ(state.currentIndex, 2);
    click(onRow(*events, 4));
    EXPECT_EQ(pane->selectedRow(Palette::ScriptEvents), 4);
    EXPECT_EQ(state.currentIndex, 2);
}

TEST_F(PaneTest, ListsTellOfTheirSelectionAndAskForTheirCommandOnDoubleClickAndReturn) {
    fillScript(5);
    for (const auto& [list, command] : lists) {
        SCOPED_TRACE(command);
        commands.clear();
        selectionChanges = 0;
        click(onRow(*list, 1));
        EXPECT_GT(selectionChanges, 0);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->rowRect(2).center());
        EXPECT_TRUE(commands.empty()) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, std::vector<int>{command});
        EXPECT_EQ(list->focusedRow(), 2);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QTest::keyClick(list, Qt::Key_Return);
        QApplication::sendEvent(list, &repeated);
        EXPECT_EQ(commands.size(), 1U) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, (std::vector<int>{command, command})) << "a key held down counts once";
    }
}

TEST_F(PaneTest, NoItemNoCommand) {
    for (const int entries : {0, 3}) {
        fillScript(entries);
        key(Qt::Key_Return);
        click(belowRows(*script));
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, belowRows(*script));
    }
    settle();
    EXPECT_TRUE(commands.empty());
}

TEST_F(PaneTest, TabGoesThroughTheListsAndFocusComesBackToTheLast) {
    QWidget other(&window);
    other.setFocusPolicy(Qt::ClickFocus);
    other.show();
    script->setFocus();
    for (const PaneList* next : {events, luFunctions, menuCommands}) {
        key(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
        other.setFocus();
        ASSERT_EQ(QApplication::focusWidget(), &other);
        pane->takeFocus();
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), luFunctions);
}

TEST_F(PaneTest, ControlUpAndDownMoveTheSelectedEntriesByOne) {
    const std::tuple<const char*, Rows, int, Qt::Key, const char*, Rows, int> rows[] = {
        {"one up", {2}, 2, Qt::Key_Up, "e0 e2 e1 e3 e4", {1}, 1},
        {"two apart down", {0, 2}, 0, Qt::Key_Down, "e1 e0 e3 e2 e4", {1, 3}, 1},
        {"nothing focused up", {1, 2}, -1, Qt::Key_Up, "e1 e2 e0 e3 e4", {0, 1}, 0},
        {"nothing focused down", {1, 2}, -1, Qt::Key_Down, "e0 e3 e1 e2 e4", {2, 3}, 3},
        {"at the top", {0, 1}, 1, Qt::Key_Up, nullptr, {0, 1}, 1},
        {"at the end", {3, 4}, 3, Qt::Key_Down, nullptr, {3, 4}, 3},
        {"nothing selected", {}, 1, Qt::Key_Down, nullptr, {}, 1},
    };
    for (const auto& [name, before, focused, pressed, expected, after, focusedAfter] : rows) {
        SCOPED_TRACE(name);
        fillScript(5);
        select(before, focused);
        key(pressed, Qt::ControlModifier);
        EXPECT_EQ(lines(), expected ? expected : "e0 e1 e2 e3 e4");
        expectCurrent(after, focusedAfter);
        EXPECT_EQ(moves, expected ? 1 : 0);
    }
}

TEST_F(PaneTest, CopyKeyLeavesTheSystemClipboardAloneAndAPressBesideTheRowsChoosesNone) {
    QApplication::clipboard()->setText(QStringLiteral("mine"));
    fillScript(3);
    select({1}, 1);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("mine"));
    click(belowRows(*script));
    EXPECT_TRUE(selected().empty());
    window.resize(600, 1600);
    settle();
    click(onRow(*events, 1));
    click(belowRows(*events));
    EXPECT_EQ(pane->selectedRow(Palette::ScriptEvents), -1);
}

TEST_F(PaneTest, ARowThatIsClickedStaysWhereItIs) {
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(1);
    // The base class brings a row that stands half in sight up after a tenth of a second more.
    const QPoint atTheEdge = menuCommands->viewport()->rect().bottomLeft() + QPoint(50, -1);
    click(menuCommands->viewport()->mapTo(&window, atTheEdge));
    QTest::qWait(150);
    EXPECT_EQ(menuCommands->focusedRow(), 5);
    EXPECT_EQ(menuCommands->verticalScrollBar()->value(), 0);
    QApplication::setDoubleClickInterval(interval);
}

TEST_F(PaneTest, ControlsStandInTheirPlacesAndNothingIsCutOffWhenTheTextGrows) {
    EXPECT_EQ(script->geometry(), QRect(10, 12, 361, 377));
    EXPECT_EQ(luFunctions->geometry(), QRect(381, 155, 209, 105));
    QFont large = pane->font();
    large.setPointSize(large.pointSize() * 2);
    pane->setFont(large);
    settle();
    for (const QLabel* label : pane->findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->fontMetrics().height());
        EXPECT_GE(label->width(), label->sizeHint().width());
        for (const auto& [list, command] : lists)
            EXPECT_FALSE(label->geometry().intersects(list->geometry())) << command;
    }
    EXPECT_GE(events->rowRect(0).height(), events->fontMetrics().height());
    window.resize(10, 10);
    settle();
    EXPECT_GE(events->viewport()->height(), 3 * events->rowRect(0).height());
}

TEST_F(PaneTest, SeparatorIsEtchedInTheColoursOfTheWindow) {
    for (const int lightness : {240, 45}) {
        QPalette palette = pane->palette();
        palette.setColor(QPalette::Window, QColor(lightness, lightness, lightness));
        pane->setPalette(palette);
        const QImage image = pane->grab().toImage();
        EXPECT_LT(image.pixelColor(300, 0).lightness(), lightness);
        EXPECT_GT(image.pixelColor(599, 1).lightness(), lightness);
        EXPECT_LT(image.pixelColor(599, 1).lightness(), lightness + 50);
    }
}

// Qt's own painting, in rows of the same height.
class WholeLines : public QStyledItemDelegate {
  public:
    explicit WholeLines(const QAbstractItemDelegate& sizes) : sizes_(sizes) {}
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        return sizes_.sizeHint(option, index);
    }

  private:
    const QAbstractItemDelegate& sizes_;
};

// Rows lay out no more of a line than can be seen.
TEST_F(PaneTest, ALongLineIsPaintedAsIfItWereLaidOutWhole) {
    showRemarks({"", std::string(255, 'W')});
    EXPECT_EQ(script->rowRect(0).size(), script->rowRect(1).size());
    EXPECT_EQ(script->rowRect(1).width(), script->viewport()->width()) << "elided, not scrolled";
    const std::string texts[] = {std::string(255, 'i'), std::string(255, '.'),
                                 std::string(120, 'W') + "end"};
    for (const std::string& text : texts) {
        showRemarks({text});
        const QRect row = script->rowRect(0);
        const QImage shown = script->viewport()->grab(row).toImage();
        auto* const ours = script->itemDelegate();
        WholeLines whole(*ours);
        script->setItemDelegate(&whole);
        const QImage expected = script->viewport()->grab(row).toImage();
        script->setItemDelegate(ours);
        EXPECT_EQ(shown, expected) << text.front();
    }
}

}  // namespace
}  // namespace quendra
