// Drags between the lists of the pane, with the mouse on the real window.
#include "app/drag_image.h"
#include "pane_fixture.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTest>

#include <functional>

namespace quendra {
namespace {

class PaneDragTest : public PaneFixture {
  protected:
    void TearDown() override { expectNoTraceOfADrag(); }

    void expectNoTraceOfADrag() {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        EXPECT_FALSE(dragShows());
        EXPECT_TRUE(script->landingLines().empty());
    }

    void expectScriptAsFilled(int entries) {
        std::string expected = "e0";
        for (int i = 1; i < entries; ++i) {
            expected += " e" + std::to_string(i);
        }
        EXPECT_EQ(lines(), expected);
        EXPECT_EQ(moves, 0);
        EXPECT_TRUE(commands.empty());
        EXPECT_FALSE(state.dropPending);
    }

    /// A drag of row `row` that is held over `point`.
    void hold(const PaneList& list, int row, QPoint point) {
        press(onRow(list, row));
        moveTo(onRow(list, row) + QPoint(0, 3));
        moveTo(point);
    }
};

TEST_F(PaneDragTest, APaletteItemGoesBeforeTheEntryItIsDroppedOn) {
    fillScript(5);
    const std::vector<std::pair<PaneList*, int>> expected = {
        {events, 308}, {luFunctions, 309}, {menuCommands, 310}};
    for (const auto& [list, command] : expected) {
        commands.clear();
        state.dropPending = false;
        press(onRow(*list, 1));
        moveTo(onRow(*script, 3));
        moveTo(onRow(*script, 2));
        QTest::mouseRelease(pane, Qt::LeftButton, {}, onRow(*script, 2));
        EXPECT_EQ(state.currentIndex, 2);
        EXPECT_TRUE(state.dropPending);
        EXPECT_TRUE(commands.empty()) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, std::vector<int>{command});
        EXPECT_EQ(list->focusedRow(), 1);
    }
    EXPECT_EQ(moves, 0);
}

TEST_F(PaneDragTest, APaletteItemBelowTheRowsGoesBeforeTheLastEntry) {
    fillScript(5);
    drag(onRow(*events, 0), belowRows(*script));
    EXPECT_EQ(state.currentIndex, 4);
    EXPECT_EQ(commands, std::vector<int>{308});
    state.currentIndex = -1;
    drag(onRow(*events, 0), {50, 399});
    EXPECT_EQ(state.currentIndex, 4) << "below the list itself";
    drag(onRow(*events, 0), {50, 3});
    EXPECT_EQ(state.currentIndex, 0) << "above the list";
    drag(onRow(*menuCommands, 3), {200, 200});
    EXPECT_EQ(state.currentIndex, 0) << "beyond the rows, but higher than where it began";
}

TEST_F(PaneDragTest, AnEmptyScriptTakesAPaletteItemOnlyAboveWhereTheDragBegan) {
    state.currentIndex = -1;
    drag(onRow(*menuCommands, 2), {100, 100});
    EXPECT_EQ(state.currentIndex, 0);
    EXPECT_TRUE(state.dropPending);
    EXPECT_EQ(commands, std::vector<int>{310});

    state.dropPending = false;
    commands.clear();
    drag(onRow(*events, 0), {100, 300});
    EXPECT_EQ(state.currentIndex, -1);
    EXPECT_FALSE(state.dropPending);
    EXPECT_TRUE(commands.empty());
}

TEST_F(PaneDragTest, ADropBesideTheScriptDoesNothing) {
    fillScript(5);
    const QPoint overPaletteFrame(events->geometry().center().x(),
                                  menuCommands->geometry().bottom());
    for (const QPoint point :
         {onRow(*luFunctions, 1), QPoint(376, 200), QPoint(3, 200), overPaletteFrame}) {
        state.currentIndex = 1;
        drag(onRow(*events, 1), point);
        EXPECT_EQ(state.currentIndex, 1) << point.x() << ", " << point.y();
        expectScriptAsFilled(5);
        expectNoTraceOfADrag();
    }
    drag(onRow(*script, 2), onRow(*events, 2));
    expectScriptAsFilled(5);
}

TEST_F(PaneDragTest, ALevelDropBeyondTheRowsDoesNothing) {
    fillScript(2);
    window.resize(900, 400);
    settle();
    const QPoint from = onRow(*menuCommands, 1);
    state.currentIndex = 1;
    drag(from, {100, from.y()});
    EXPECT_EQ(state.currentIndex, 1);
    expectScriptAsFilled(2);
}

struct ScriptDragCase {
    const char* name;
    std::vector<std::size_t> selected;
    int pressed;
    int target;
    const char* lines;
    std::vector<std::size_t> selectedAfter;
    int focusedAfter;
};

TEST_F(PaneDragTest, EntriesMoveWithTheirGapsAndStaySelected) {
    const std::vector<ScriptDragCase> cases = {
        {"down", {1}, 1, 3, "e0 e2 e3 e1 e4 e5 e6 e7 e8", {3}, 3},
        {"up", {5}, 5, 0, "e5 e0 e1 e2 e3 e4 e6 e7 e8", {0}, 0},
        {"two apart down", {2, 4}, 4, 7, "e0 e1 e3 e5 e6 e2 e7 e4 e8", {5, 7}, 7},
        {"held by the other end", {2, 4}, 2, 5, "e0 e1 e3 e5 e6 e2 e7 e4 e8", {5, 7}, 5},
        {"held at the end", {5, 7}, 5, 8, "e0 e1 e2 e3 e4 e6 e5 e8 e7", {6, 8}, 6},
        {"held at the top", {1, 3}, 3, 0, "e1 e0 e3 e2 e4 e5 e6 e7 e8", {0, 2}, 2},
    };
    for (const ScriptDragCase& row : cases) {
        fillScript(9);
        select(row.selected, static_cast<int>(row.selected.front()));
        moves = 0;
        state.dropPending = true;
        drag(onRow(*script, row.pressed), onRow(*script, row.target));
        EXPECT_EQ(lines(), row.lines) << row.name;
        EXPECT_EQ(selected(), row.selectedAfter) << row.name;
        EXPECT_EQ(pane->focusedEntry(), row.focusedAfter) << row.name;
        EXPECT_EQ(state.currentIndex, row.focusedAfter) << row.name;
        EXPECT_EQ(moves, 1) << row.name;
        EXPECT_FALSE(state.dropPending) << row.name;
        EXPECT_TRUE(commands.empty()) << row.name;
    }
}

TEST_F(PaneDragTest, AboveAndBelowTheRowsAreTheEndsOfTheScript) {
    fillScript(4);
    drag(onRow(*script, 1), belowRows(*script));
    EXPECT_EQ(lines(), "e0 e2 e3 e1");
    drag(onRow(*script, 2), {60, 4});
    EXPECT_EQ(lines(), "e3 e0 e2 e1");
}

TEST_F(PaneDragTest, AnEntryDroppedOnItselfChangesNothing) {
    fillScript(4);
    drag(onRow(*script, 2) - QPoint(100, 0), onRow(*script, 2));
    expectScriptAsFilled(4);
    EXPECT_EQ(state.currentIndex, 2);
}

TEST_F(PaneDragTest, OneMoveThatIsSeenLateStillStartsWhereTheButtonWentDown) {
    fillScript(6);
    press(onRow(*script, 4));
    moveTo(onRow(*script, 1));
    EXPECT_TRUE(dragShows());
    release(onRow(*script, 1));
    EXPECT_EQ(lines(), "e0 e4 e1 e2 e3 e5");
}

TEST_F(PaneDragTest, AShortMoveIsAClick) {
    fillScript(6);
    select({1, 2, 3}, 1);
    const QPoint at = onRow(*script, 2);
    press(at);
    EXPECT_EQ(selected().size(), 3u) << "the selection waits for the release";
    EXPECT_EQ(pane->focusedEntry(), 2);
    moveTo(at + QPoint(QApplication::startDragDistance() - 1, 0));
    EXPECT_FALSE(dragShows());
    release(at);
    EXPECT_EQ(selected(), std::vector<std::size_t>{2});
    expectScriptAsFilled(6);
}

TEST_F(PaneDragTest, ModifiersChooseAsTheyDoWithoutDrags) {
    fillScript(6);
    click(onRow(*script, 1));
    click(onRow(*script, 4), Qt::ControlModifier);
    EXPECT_EQ(selected(), (std::vector<std::size_t>{1, 4}));
    click(onRow(*script, 4), Qt::ControlModifier);
    EXPECT_EQ(selected(), std::vector<std::size_t>{1});
    click(onRow(*script, 2));
    click(onRow(*script, 4), Qt::ShiftModifier);
    EXPECT_EQ(selected(), (std::vector<std::size_t>{2, 3, 4}));
    click(onRow(*script, 3), Qt::ShiftModifier);
    EXPECT_EQ(selected(), (std::vector<std::size_t>{2, 3}));
}

TEST_F(PaneDragTest, ASelectionChosenWithControlIsDraggedWhole) {
    fillScript(6);
    click(onRow(*script, 0));
    click(onRow(*script, 2), Qt::ControlModifier);
    press(onRow(*script, 2), Qt::ControlModifier);
    moveTo(onRow(*script, 3));
    moveTo(onRow(*script, 4));
    release(onRow(*script, 4), Qt::ControlModifier);
    EXPECT_EQ(lines(), "e1 e3 e0 e4 e2 e5");
}

TEST_F(PaneDragTest, MovingTheButtonDownSelectsNoFurtherRows) {
    fillScript(8);
    hold(*script, 1, onRow(*script, 5));
    EXPECT_EQ(selected(), std::vector<std::size_t>{1});
    key(Qt::Key_Escape);
    moveTo(onRow(*script, 6));
    EXPECT_EQ(selected(), std::vector<std::size_t>{1});
    release(onRow(*script, 6));
    EXPECT_EQ(selected(), std::vector<std::size_t>{1});
    expectScriptAsFilled(8);
}

TEST_F(PaneDragTest, AListWithoutTheKeyboardFocusStartsNoDrag) {
    fillScript(5);
    press(onRow(*script, 1));
    events->setFocus();
    moveTo(onRow(*script, 3));
    EXPECT_FALSE(dragShows());
    release(onRow(*script, 3));
    expectScriptAsFilled(5);
}

TEST_F(PaneDragTest, BlankSpaceStartsNoDrag) {
    fillScript(3);
    select({1}, 1);
    press(belowRows(*script));
    moveTo(onRow(*script, 0));
    EXPECT_FALSE(dragShows());
    release(onRow(*script, 0));
    expectScriptAsFilled(3);
}

TEST_F(PaneDragTest, TheSecondPressOfADoubleClickStartsNoDrag) {
    fillScript(5);
    const QPoint at = onRow(*script, 1);
    const QPoint pos = script->viewport()->mapFrom(&window, at);
    QTest::mouseClick(script->viewport(), Qt::LeftButton, {}, pos);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(pos),
                       QPointF(script->viewport()->mapToGlobal(pos)), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(script->viewport(), &second);
    const QPoint far = script->viewport()->mapFrom(&window, onRow(*script, 4));
    QMouseEvent moved(QEvent::MouseMove, QPointF(far),
                      QPointF(script->viewport()->mapToGlobal(far)), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(script->viewport(), &moved);
    EXPECT_FALSE(dragShows());
    EXPECT_EQ(selected(), std::vector<std::size_t>{1});
    settle();
    EXPECT_EQ(commands, std::vector<int>{311});
}

TEST_F(PaneDragTest, WhileItRunsTheDragOwnsPointerAndKeyboard) {
    fillScript(100);
    script->setFocus();
    hold(*script, 1, onRow(*script, 4));
    EXPECT_EQ(QWidget::mouseGrabber(), pane);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BlankCursor);
    key(Qt::Key_Down);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected(), std::vector<std::size_t>{1});
    const QPoint at = script->viewport()->rect().center();
    QWheelEvent wheel(QPointF(at), QPointF(script->viewport()->mapToGlobal(at)), {}, {0, -480},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(script->viewport(), &wheel);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, onRow(*script, 5));
    moveTo({60, 395});
    EXPECT_EQ(script->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(dragShows());
    release(onRow(*script, 4));
    EXPECT_EQ(lines().substr(0, 17), "e0 e2 e3 e4 e1 e5");
}

TEST_F(PaneDragTest, EveryOtherEndIsAnEndWithoutADrop) {
    const std::vector<std::pair<const char*, std::function<void()>>> ends = {
        {"escape", [&] { key(Qt::Key_Escape); }},
        {"window in the background",
         [&] {
             QDialog dialog;
             dialog.show();
             dialog.activateWindow();
             ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
         }},
        {"keyboard focus lost", [&] { events->setFocus(); }},
        {"button released elsewhere",
         [&] {
             QMouseEvent lost(QEvent::MouseMove, QPointF(50, 50),
                              QPointF(pane->mapToGlobal(QPoint(50, 50))), Qt::NoButton,
                              Qt::NoButton, Qt::NoModifier);
             QApplication::sendEvent(pane, &lost);
         }},
        {"pane hidden", [&] { pane->hide(); }},
        {"list shown anew", [&] { pane->rebuildScriptList(); }},
    };
    for (const auto& [name, end] : ends) {
        fillScript(6);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        hold(*script, 1, onRow(*script, 4));
        ASSERT_TRUE(dragShows()) << name;
        end();
        SCOPED_TRACE(name);
        expectNoTraceOfADrag();
        release(onRow(*script, 4));
        settle();
        expectScriptAsFilled(6);
        pane->show();
        settle();
    }
    drag(onRow(*script, 1), onRow(*script, 4));
    EXPECT_EQ(moves, 1) << "the next drag works";
}

TEST_F(PaneDragTest, AMarkShowsWhereTheDropWouldLand) {
    fillScript(9);
    select({2, 4}, 4);
    press(onRow(*script, 4));
    const auto marksAt = [&](QPoint point) {
        moveTo(point);
        return script->landingLines();
    };
    EXPECT_EQ(marksAt(onRow(*script, 7)), (std::vector<int>{7, 8}));
    EXPECT_EQ(marksAt(belowRows(*script)), (std::vector<int>{8, 9}));
    EXPECT_EQ(marksAt(onRow(*script, 4)), std::vector<int>{}) << "onto itself";
    EXPECT_EQ(marksAt(onRow(*script, 0)), (std::vector<int>{0, 1}));
    EXPECT_EQ(marksAt(onRow(*events, 1)), std::vector<int>{}) << "beside the list";
    release(onRow(*events, 1));

    press(onRow(*events, 1));
    EXPECT_EQ(marksAt(onRow(*script, 2)), std::vector<int>{2});
    EXPECT_EQ(marksAt(belowRows(*script)), std::vector<int>{8}) << "before the last entry";
    release(onRow(*luFunctions, 1));
}

TEST_F(PaneDragTest, TheImageKeepsItsPlaceUnderThePointer) {
    fillScript(9);
    select({2, 4}, 4);
    const QPoint grip = onRow(*script, 4);
    press(grip);
    moveTo(grip + QPoint(0, 30));
    const auto* image = pane->findChild<DragImage*>(QStringLiteral("dragImage"));
    ASSERT_NE(image, nullptr);
    const QPoint firstRow = script->viewport()->mapTo(pane, script->rowRect(2).topLeft());
    EXPECT_EQ(image->origin(), firstRow + QPoint(0, 30));
    EXPECT_EQ(image->height(), 3 * script->rowRect(0).height());
    moveTo(grip + QPoint(-200, 100));
    EXPECT_EQ(image->origin(), firstRow + QPoint(-200, 100));
    EXPECT_TRUE(pane->rect().contains(image->geometry()));
    release(onRow(*events, 0));
}

TEST_F(PaneDragTest, AFullSelectionIsDraggedWithoutDelay) {
    fillScript(4096);
    std::vector<std::size_t> everySecond;
    for (std::size_t i = 0; i < 4095; i += 2) {
        everySecond.push_back(i);
    }
    select(everySecond, 0);
    QElapsedTimer timer;
    timer.start();
    press(onRow(*script, 2));
    for (int y = 100; y < 300; y += 10) {
        moveTo({100, y});
        settle();
    }
    release(onRow(*script, 3));
    settle();
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(lines().substr(0, 11), "e1 e0 e3 e2");
}

}  // namespace
}  // namespace quendra
