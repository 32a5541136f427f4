// Drags between the lists of the pane, with the mouse on the real window.
#include "app/drag_image.h"
#include "pane_fixture.h"

#include <QApplication>
#include <QCursor>
#include <QScrollBar>

#include <functional>
#include <tuple>

namespace quendra {
namespace {

class PaneDragTest : public PaneFixture {
  protected:
    void TearDown() override { expectNoTraceOfADrag(); }

    [[nodiscard]] const DragImage* image() const {
        return pane->findChild<DragImage*>(QStringLiteral("dragImage"));
    }
    void expectNoTraceOfADrag() const {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        EXPECT_EQ(image(), nullptr);
        EXPECT_TRUE(script->landingLines().empty());
    }
    void expectScriptAsFilled(int entries) const {
        std::string expected = "e0";
        for (int i = 1; i < entries; ++i)
            expected += " e" + std::to_string(i);
        EXPECT_EQ(lines(), expected);
        EXPECT_EQ(moves, 0);
        EXPECT_TRUE(commands.empty());
        EXPECT_FALSE(state.dropPending);
    }
    /// A drag of row `row` of the script that is held over `point`.
    void hold(int row, QPoint point) {
        press(onRow(*script, row));
        moveTo(onRow(*script, row) + QPoint(0, 3));
        moveTo(point);
    }
    /// To a widget itself, past the window.
    static void sendMouse(QEvent::Type type, QWidget& widget, QPoint point, Qt::MouseButton button,
                          Qt::MouseButtons held) {
        QMouseEvent event(type, QPointF(point), QPointF(widget.mapToGlobal(point)), button, held,
                          Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_F(PaneDragTest, APaletteItemGoesWhereTheDropPointSays) {
    window.resize(900, 400);
    settle();
    fillScript(5);
    const QPoint overPaletteFrame(events->geometry().center().x(),
                                  menuCommands->geometry().bottom());
    const QPoint betweenTheLists(script->geometry().right() + 5, 200);
    const std::tuple<const char*, int, std::size_t, QPoint, bool, int> rows[] = {
        {"on an entry", 5, 1, onRow(*script, 2), true, 2},
        {"a key on an entry", 5, 2, onRow(*script, 2), true, 2},
        {"below the rows, before the last entry", 5, 1, belowRows(*script), true, 4},
        {"below the list itself", 5, 1, {50, 399}, true, 4},
        {"above the list", 5, 1, {50, 3}, true, 0},
        {"under the rows, but higher than the start", 5, 3, {200, 200}, true, 0},
        {"level", 5, 3, {100, onRow(*menuCommands, 1).y()}, false, 1},
        {"another palette", 5, 1, onRow(*luFunctions, 1), false, 1},
        {"between the lists", 5, 1, betweenTheLists, false, 1},
        {"left of the list", 5, 1, {3, 200}, false, 1},
        {"a frame below the script list", 5, 1, overPaletteFrame, false, 1},
        {"empty script, higher", 0, 3, {100, 100}, true, 0},
        {"empty script, lower", 0, 1, {100, 300}, false, -1},
    };
    for (const auto& [name, entries, list, to, inserts, current] : rows) {
        SCOPED_TRACE(name);
        fillScript(entries);
        commands.clear();
        state.dropPending = false;
        state.currentIndex = 1;
        const auto& [palette, command] = lists[list];
        press(onRow(*palette, 1));
        moveTo(onRow(*palette, 1) - QPoint(20, 0));
        moveTo(to);
        QTest::mouseRelease(pane, Qt::LeftButton, {}, to);
        EXPECT_EQ(state.currentIndex, current);
        EXPECT_EQ(state.dropPending, inserts);
        EXPECT_TRUE(commands.empty()) << "posted, not sent";
        settle();
        EXPECT_EQ(commands, std::vector<int>(inserts ? 1 : 0, command));
        EXPECT_EQ(palette->focusedRow(), 1);
        EXPECT_EQ(moves, 0);
        expectNoTraceOfADrag();
    }
}

TEST_F(PaneDragTest, EntriesMoveWithTheirGapsAndStaySelected) {
    fillScript(9);
    const std::tuple<const char*, Rows, int, QPoint, const char*, Rows, int> rows[] = {
        {"up", {5}, 5, onRow(*script, 0), "e5 e0 e1 e2 e3 e4 e6 e7 e8", {0}, 0},
        {"two apart down", {2, 4}, 4, onRow(*script, 7), "e0 e1 e3 e5 e6 e2 e7 e4 e8", {5, 7}, 7},
        {"held at the end", {5, 7}, 5, onRow(*script, 8), "e0 e1 e2 e3 e4 e6 e5 e8 e7", {6, 8}, 6},
        {"held at the top", {1, 3}, 3, onRow(*script, 0), "e1 e0 e3 e2 e4 e5 e6 e7 e8", {0, 2}, 2},
        {"above the list", {2}, 2, {60, 4}, "e2 e0 e1 e3 e4 e5 e6 e7 e8", {0}, 0},
        {"below the rows", {1}, 1, belowRows(*script), "e0 e2 e3 e4 e5 e6 e7 e8 e1", {8}, 8},
    };
    for (const auto& [name, before, pressed, to, expected, after, focused] : rows) {
        SCOPED_TRACE(name);
        fillScript(9);
        select(before, static_cast<int>(before.front()));
        state.dropPending = true;
        drag(onRow(*script, pressed), to);
        EXPECT_EQ(lines(), expected);
        expectCurrent(after, focused);
        EXPECT_EQ(moves, 1);
        EXPECT_FALSE(state.dropPending);
        EXPECT_TRUE(commands.empty());
    }
}

TEST_F(PaneDragTest, OneMoveThatIsSeenLateStillStartsWhereTheButtonWentDown) {
    fillScript(6);
    press(onRow(*script, 4));
    moveTo(onRow(*script, 1));
    EXPECT_NE(image(), nullptr);
    release(onRow(*script, 1));
    EXPECT_EQ(lines(), "e0 e4 e1 e2 e3 e5");
}

TEST_F(PaneDragTest, AShortMoveIsAClickAndADropOnItselfOrAPaletteChangesNothing) {
    fillScript(6);
    select({1, 2, 3}, 1);
    const QPoint at = onRow(*script, 2);
    press(at);
    EXPECT_EQ(selected().size(), 3U) << "the selection waits for the release";
    EXPECT_EQ(pane->focusedEntry(), 2);
    moveTo(at + QPoint(QApplication::startDragDistance() - 1, 0));
    EXPECT_EQ(image(), nullptr);
    release(at);
    expectCurrent({2}, 2);
    drag(at - QPoint(100, 0), at);
    drag(at, onRow(*events, 2));
    expectCurrent({2}, 2);
    expectScriptAsFilled(6);
}

TEST_F(PaneDragTest, ModifiersChooseAsTheyDoWithoutDrags) {
    const std::tuple<int, int, Qt::KeyboardModifier, Rows> rows[] = {
        {1, 4, Qt::ControlModifier, {1, 4}},
        {4, 4, Qt::ControlModifier, {}},
        {2, 4, Qt::ShiftModifier, {2, 3, 4}},
        {0, 2, Qt::ControlModifier, {0, 2}}};
    fillScript(6);
    for (const auto& [first, second, held, expected] : rows) {
        click(onRow(*script, first));
        click(onRow(*script, second), held);
        EXPECT_EQ(selected(), expected) << first;
        if (held != Qt::ShiftModifier) continue;
        click(onRow(*script, 3), held);
        EXPECT_EQ(selected(), (Rows{2, 3})) << "a selected row ends the range anew";
    }
    drag(onRow(*script, 2), onRow(*script, 4), Qt::ControlModifier);
    EXPECT_EQ(lines(), "e1 e3 e0 e4 e2 e5") << "what was chosen with Ctrl is dragged whole";
}

TEST_F(PaneDragTest, WithoutAFocusedListOrARowNoDragStarts) {
    fillScript(5);
    for (const bool onARow : {true, false}) {
        press(onARow ? onRow(*script, 1) : belowRows(*script));
        if (onARow) events->setFocus();
        moveTo(onRow(*script, 3));
        EXPECT_EQ(image(), nullptr) << onARow;
        release(onRow(*script, 3));
        expectScriptAsFilled(5);
        script->setFocus();
    }
}

TEST_F(PaneDragTest, TheSecondPressOfADoubleClickStartsNoDrag) {
    fillScript(5);
    QWidget& viewport = *script->viewport();
    const QPoint at = script->rowRect(1).center();
    QTest::mouseClick(&viewport, Qt::LeftButton, {}, at);
    sendMouse(QEvent::MouseButtonDblClick, viewport, at, Qt::LeftButton, Qt::LeftButton);
    sendMouse(QEvent::MouseMove, viewport, script->rowRect(4).center(), Qt::NoButton,
              Qt::LeftButton);
    EXPECT_EQ(image(), nullptr);
    EXPECT_EQ(selected(), Rows{1});
    settle();
    EXPECT_EQ(commands, std::vector<int>{311});
}

TEST_F(PaneDragTest, WhileItRunsTheDragOwnsPointerAndKeyboard) {
    fillScript(100);
    script->setFocus();
    hold(1, onRow(*script, 4));
    EXPECT_EQ(QWidget::mouseGrabber(), pane);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BlankCursor);
    key(Qt::Key_Down);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected(), Rows{1}) << "nor do the rows on the way count";
    const QPoint at = script->viewport()->rect().center();
    QWheelEvent wheel(QPointF(at), QPointF(script->viewport()->mapToGlobal(at)), {}, {0, -480},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(script->viewport(), &wheel);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, onRow(*script, 5));
    moveTo({60, 395});
    EXPECT_EQ(script->verticalScrollBar()->value(), 0);
    EXPECT_NE(image(), nullptr);
    release(onRow(*script, 4));
    EXPECT_EQ(lines().substr(0, 17), "e0 e2 e3 e4 e1 e5");
}

TEST_F(PaneDragTest, EveryOtherEndIsAnEndWithoutADrop) {
    const auto releaseElsewhere = [this] {
        sendMouse(QEvent::MouseMove, *pane, {50, 50}, Qt::NoButton, Qt::NoButton);
    };
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"escape",
         [&] {
             key(Qt::Key_Escape);
             moveTo(onRow(*script, 5));
             EXPECT_EQ(selected(), Rows{1}) << "the button, still down, selects no more";
         }},
        {"keyboard focus lost", [&] { events->setFocus(); }},
        {"button released elsewhere", releaseElsewhere},
        {"pane hidden", [&] { pane->hide(); }},
        {"list shown anew", [&] { pane->rebuildScriptList(); }},
        {"selection made anew", [&] { select({0}, 0); }},
        {"keys shown anew", [&] { pane->refillLuPalette(); }},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        fillScript(6);
        hold(1, onRow(*script, 4));
        ASSERT_NE(image(), nullptr);
        end();
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
    EXPECT_EQ(marksAt(onRow(*script, 4)), std::vector<int>{}) << "onto itself";
    EXPECT_EQ(marksAt(onRow(*script, 0)), (std::vector<int>{0, 1}));
    EXPECT_EQ(marksAt(onRow(*events, 1)), std::vector<int>{}) << "beside the list";
    release(onRow(*events, 1));
    press(onRow(*events, 1));
    EXPECT_EQ(marksAt(belowRows(*script)), std::vector<int>{8}) << "before the last entry";
    release(onRow(*luFunctions, 1));
}

TEST_F(PaneDragTest, TheImageKeepsItsPlaceUnderThePointer) {
    fillScript(9);
    select({2, 4}, 4);
    const QPoint grip = onRow(*script, 4);
    press(grip);
    const QPoint firstRow = script->viewport()->mapTo(pane, script->rowRect(2).topLeft());
    for (const QPoint moved : {QPoint(0, 30), QPoint(-200, 100)}) {
        moveTo(grip + moved);
        ASSERT_NE(image(), nullptr);
        EXPECT_EQ(image()->origin(), firstRow + moved);
        EXPECT_EQ(image()->height(), 3 * script->rowRect(0).height());
        EXPECT_TRUE(pane->rect().contains(image()->geometry()));
    }
    release(onRow(*events, 0));
}

}  // namespace
}  // namespace quendra
