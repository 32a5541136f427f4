// The editor pane without drags: what its lists show, and what keys, clicks and the functions of
// the pane do to focus, selection and current position.
#include "app/pane/pane_fixture.h"
#include "app/pane/pane_layout.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include <functional>
#include <numeric>
#include <tuple>

namespace quendra::test {
namespace {

using PaneTest = PaneFixture;

TEST_F(PaneTest, RowsHaveOneEscapedLineAndTheirIcon) {
    const auto iconOf = [](const PaneList& list, int row) {
        return list.model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>();
    };
    for (const PaneList* palette : {events, luFunctions, menuCommands})
        for (int row = 0; row < palette->model()->rowCount(); ++row)
            EXPECT_FALSE(iconOf(*palette, row).isNull()) << palette->objectName().toStdString();
    EXPECT_EQ(pane->paletteText(Palette::ScriptEvents, 3), QStringLiteral("Copy"))
        << "catalogue order, not the order of the codes";
    for (const Bytes& record : {commentRecord("tab\there"), Bytes{4}, menuRecord(300),
                                commentRecord("<b>bold</b> & more")})
        state.script.entries.push_back(storeRecord(record));
    pane->rebuildScriptList();
    EXPECT_EQ(lines(), "tab\\x09here Beep <Menu Command 300> <b>bold</b> & more");
    EXPECT_FALSE(iconOf(*script, 1).isNull());
    const QString toolTip = script->model()->index(3, 0).data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(toolTip.contains(u"&lt;b&gt;bold&lt;/b&gt; &amp; more"))
        << "a typed text is never markup";
    state.script.entries.clear();
    EXPECT_EQ(pane->entryText(2), QString()) << "lost since the list was built";
    script->viewport()->repaint();
}

TEST_F(PaneTest, RebuildAndSelectionShowTheCurrentEntryAndTellOnce) {
    fillScript(4096);
    state.currentIndex = 60;
    pane->rebuildScriptList();
    expectCurrent({60}, 60);
    EXPECT_EQ(selectionChanges, 1);
    select({0, 2, 4094}, 4094);
    expectCurrent({0, 2, 4094}, 4094);
    EXPECT_EQ(selectionChanges, 2);
    EXPECT_TRUE(script->viewport()->rect().contains(script->rowRect(4094))) << "in sight";
    select({1, 2, 4}, -1);
    EXPECT_EQ(state.currentIndex, 4094) << "no focused entry changes nothing";
}

TEST_F(PaneTest, CurrentIndexFollowsTheFocusOfTheScriptListOnly) {
    fillScript(5);
    script->setFocus();
    expectCurrent({}, -1);
    click(onRow(*script, 3));
    key(Qt::Key_Up);
    EXPECT_EQ(state.currentIndex, 2);
    QApplication::clipboard()->setText(QStringLiteral("mine"));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("mine"));
    click(onRow(*events, 4));
    EXPECT_EQ(pane->selectedRow(Palette::ScriptEvents), 4);
    EXPECT_EQ(state.currentIndex, 2);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected().size(), 5U) << "those of the script, also from a palette";
    EXPECT_TRUE(script->hasFocus());
    for (const auto held : {Qt::ControlModifier, Qt::ShiftModifier})
        click(belowRows(*script), held);
    EXPECT_EQ(selected().size(), 5U) << "a press that adds nothing";
    click(belowRows(*script));
    EXPECT_TRUE(selected().empty()) << "a press beside the rows";
}

TEST_F(PaneTest, MovesScrollNoFurtherThanTheFocusedEntryNeeds) {
    constexpr int firstInSight = 100;
    Rows all(300);
    std::iota(all.begin(), all.end(), std::size_t{0});
    const std::tuple<Rows, int, std::function<void()>> rows[] = {
        {{50, 101}, 101, [this] { key(Qt::Key_Down, Qt::ControlModifier); }},
        {{102, 250}, 102, [this] { key(Qt::Key_Up, Qt::ControlModifier); }},
        {all, 101, [this] { drag(onRow(*script, 101), onRow(*script, 103)); }},
    };
    for (const auto& [moved, focused, move] : rows) {
        SCOPED_TRACE(testing::PrintToString(moved));
        fillScript(300);
        script->verticalScrollBar()->setValue(firstInSight);
        select(moved, focused);
        move();
        EXPECT_EQ(moves, 1);
        EXPECT_EQ(script->verticalScrollBar()->value(), firstInSight);
    }
}

TEST_F(PaneTest, TextsBeginAtOneLineWithAnIconAndWithout) {
    for (const Bytes& record : {menuRecord(300), commentRecord("<Menu Command 300>")})
        state.script.entries.push_back(storeRecord(record));
    state.currentIndex = -1;
    pane->rebuildScriptList();
    // The first column of the row with ink; a Comment has its own colour.
    const auto startOfText = [this](int row) {
        const int icon = script->iconSize().width() + 4;
        const QRect text = script->rowRect(row).adjusted(icon, 0, 0, 0);
        const QImage image = script->viewport()->grab(text).toImage();
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixel(x, y) != image.pixel(image.width() - 1, 0)) return x;
        return -1;
    };
    EXPECT_GT(startOfText(0), 0);
    EXPECT_EQ(startOfText(0), startOfText(1));
}

TEST_F(PaneTest, ATextUnderAnotherIdentityIsToldFromAnEmptyOneInItsToolTip) {
    for (const std::string identity : {"theirs", ""})
        state.script.entries.push_back(storeRecord(hiddenTypeRecord("", identity)));
    pane->rebuildScriptList();
    EXPECT_EQ(pane->entryText(0), pane->entryText(1));
    for (const int row : {1, 0}) {
        const QPoint at = script->rowRect(row).center();
        QHelpEvent asks(QEvent::ToolTip, at, script->viewport()->mapToGlobal(at));
        QApplication::sendEvent(script->viewport(), &asks);
        EXPECT_EQ(QToolTip::text().contains(u"another user identity"), row == 0);
    }
}

TEST_F(PaneTest, ListsPostTheirCommandOnDoubleClickAndReturn) {
    fillScript(5);
    for (const auto& [list, command] : lists) {
        SCOPED_TRACE(commandNumber(command));
        commands.clear();
        selectionChanges = 0;
        click(onRow(*list, 1));
        EXPECT_GT(selectionChanges, 0);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->rowRect(2).center());
        EXPECT_TRUE(commands.empty()) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, std::vector{command});
        EXPECT_EQ(list->focusedRow(), 2);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QTest::keyClick(list, Qt::Key_Return);
        QApplication::sendEvent(list, &repeated);
        EXPECT_EQ(commands.size(), 1U) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, (std::vector{command, command})) << "a key held down counts once";
    }
    commands.clear();
    script->setFocus();
    for (const int entries : {3, 0}) {
        fillScript(entries);
        key(Qt::Key_Return);
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, belowRows(*script));
    }
    settle();
    EXPECT_TRUE(commands.empty()) << "no item";
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
        pane->takeFocus();
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), luFunctions);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_W);
    EXPECT_EQ(pane->paletteText(Palette::ScriptEvents, events->focusedRow()), u"Wait");
}

TEST_F(PaneTest, ControlUpAndDownMoveTheSelectedEntriesByOne) {
    const std::tuple<Rows, int, Qt::Key, const char*, Rows, int> rows[] = {
        {{2}, 2, Qt::Key_Up, "e0 e2 e1 e3 e4", {1}, 1},
        {{0, 2}, 0, Qt::Key_Down, "e1 e0 e3 e2 e4", {1, 3}, 1},
        {{1, 2}, -1, Qt::Key_Down, "e0 e3 e1 e2 e4", {2, 3}, 3},
        {{0, 1}, 1, Qt::Key_Up, nullptr, {0, 1}, 1},
        {{3, 4}, 3, Qt::Key_Down, nullptr, {3, 4}, 3},
        {{}, 1, Qt::Key_Down, nullptr, {}, 1},
    };
    for (const auto& [before, focused, pressed, expected, after, focusedAfter] : rows) {
        SCOPED_TRACE(testing::PrintToString(before));
        fillScript(5);
        select(before, focused);
        key(pressed, Qt::ControlModifier);
        EXPECT_EQ(lines(), expected ? expected : "e0 e1 e2 e3 e4");
        expectCurrent(after, focusedAfter);
        EXPECT_EQ(moves, expected ? 1 : 0);
    }
}

TEST_F(PaneTest, ControlsStandInTheirPlaces) {
    EXPECT_EQ(script->geometry(), QRect(10, 12, 361, 377));
    EXPECT_EQ(luFunctions->geometry(), QRect(381, 155, 209, 105));
}

TEST(PaneLayout, RoundsEveryThirdTowardsZeroAndIsNeverNegative) {
    const PaneGeometry geometry = paneGeometry({626, 355}, 14);
    EXPECT_EQ(geometry.scriptList, QRect(10, 12, 378, 332));
    const std::array<int, 3> tops = {10, 124, 238};
    for (std::size_t i = 0; i < tops.size(); ++i) {
        EXPECT_EQ(geometry.palettes[i].label, QRect(398, tops[i], 217, 14));
        EXPECT_EQ(geometry.palettes[i].list, QRect(398, tops[i] + 16, 217, 90));
    }
    const PaneGeometry tiny = paneGeometry({20, 10}, 14);
    EXPECT_EQ(tiny.scriptList.size(), QSize(0, 0));
    EXPECT_EQ(tiny.palettes[2].list.height(), 0);
    EXPECT_EQ(paneGeometry({600, 400}, 16).palettes[0].list, QRect(381, 26, 209, 105))
        << "a large text first uses up the gap below its label";
}

}  // namespace
}  // namespace quendra::test
