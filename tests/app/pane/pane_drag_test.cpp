// Drags between the lists of the pane, with the mouse on the real window.
#include "app/pane/drag_image.h"
#include "app/pane/pane_fixture.h"
#include "session/drop_rules.h"

#include <QApplication>
#include <QCursor>
#include <QScrollBar>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <tuple>

namespace quendra::test {
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
    void expectScriptOfSix() const {
        EXPECT_EQ(lines(), "e0 e1 e2 e3 e4 e5");
        EXPECT_EQ(moves, 0);
        EXPECT_TRUE(commands.empty());
        EXPECT_FALSE(state.dropPending);
    }
    /// A drag of the second row of the script that is held over `point`.
    void hold(QPoint point) {
        press(onRow(*script, 1));
        moveTo(onRow(*script, 1) + QPoint(0, 3));
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
        EXPECT_EQ(commands, std::vector<EditorCommand>(inserts ? 1 : 0, command));
        EXPECT_EQ(palette->focusedRow(), 1);
        EXPECT_EQ(moves, 0);
        expectNoTraceOfADrag();
    }
}

TEST_F(PaneDragTest, EntriesMoveWithTheirGapsToWhereTheMarkStandsAndStaySelected) {
    fillScript(9);
    const std::tuple<Rows, int, QPoint, std::vector<int>, const char*, Rows, int> rows[] = {
        {{5}, 5, onRow(*script, 0), {0}, "e5 e0 e1 e2 e3 e4 e6 e7 e8", {0}, 0},
        {{2, 4}, 4, onRow(*script, 7), {7, 8}, "e0 e1 e3 e5 e6 e2 e7 e4 e8", {5, 7}, 7},
        {{5, 7}, 5, onRow(*script, 8), {8, 9}, "e0 e1 e2 e3 e4 e6 e5 e8 e7", {6, 8}, 6},
        {{1, 3}, 3, onRow(*script, 0), {0, 2}, "e1 e0 e3 e2 e4 e5 e6 e7 e8", {0, 2}, 2},
        {{2}, 2, {60, 4}, {0}, "e2 e0 e1 e3 e4 e5 e6 e7 e8", {0}, 0},
        {{1}, 1, belowRows(*script), {9}, "e0 e2 e3 e4 e5 e6 e7 e8 e1", {8}, 8},
    };
    for (const auto& [before, pressed, to, marks, expected, after, focused] : rows) {
        SCOPED_TRACE(expected);
        fillScript(9);
        select(before, static_cast<int>(before.front()));
        state.dropPending = true;
        press(onRow(*script, pressed));
        moveTo(onRow(*events, 1));
        EXPECT_TRUE(script->landingLines().empty()) << "beside the list";
        moveTo(to);
        EXPECT_EQ(script->landingLines(), marks);
        release(to);
        settle();
        EXPECT_EQ(lines(), expected);
        expectCurrent(after, focused);
        EXPECT_EQ(moves, 1);
        EXPECT_FALSE(state.dropPending);
        EXPECT_TRUE(commands.empty());
    }
}

TEST_F(PaneDragTest, AShortMoveIsAClickAndADropOnItselfOrAPaletteChangesNothing) {
    fillScript(6);
    select({1, 2, 3}, 1);
    const QPoint at = onRow(*script, 2);
    press(at);
    EXPECT_EQ(selected().size(), 3U) << "the selection waits for the release";
    moveTo(at + QPoint(QApplication::startDragDistance() - 1, 0));
    EXPECT_EQ(image(), nullptr);
    release(at);
    expectCurrent({2}, 2);
    drag(at - QPoint(100, 0), at);
    drag(at, onRow(*events, 2));
    expectCurrent({2}, 2);
    expectScriptOfSix();
    press(onRow(*script, 4));
    moveTo(onRow(*script, 1));
    release(onRow(*script, 1));
    EXPECT_EQ(lines(), "e0 e4 e1 e2 e3 e5") << "one long move starts where the button went down";
}

TEST_F(PaneDragTest, ModifiersChooseAsTheyDoWithoutDrags) {
    fillScript(6);
    click(onRow(*script, 2));
    click(onRow(*script, 4), Qt::ShiftModifier);
    EXPECT_EQ(selected(), (Rows{2, 3, 4}));
    click(onRow(*script, 0));
    click(onRow(*script, 2), Qt::ControlModifier);
    drag(onRow(*script, 2), onRow(*script, 4), Qt::ControlModifier);
    EXPECT_EQ(lines(), "e1 e3 e0 e4 e2 e5") << "what was chosen with Ctrl is dragged whole";
}

TEST_F(PaneDragTest, NoDragStartsWithoutAFocusedListOrARowOrFromADoubleClick) {
    fillScript(6);
    for (const bool onARow : {true, false}) {
        press(onARow ? onRow(*script, 1) : belowRows(*script));
        if (onARow) events->setFocus();
        moveTo(onRow(*script, 3));
        EXPECT_EQ(image(), nullptr) << onARow;
        release(onRow(*script, 3));
        expectScriptOfSix();
        script->setFocus();
    }
    QWidget& viewport = *script->viewport();
    const QPoint at = script->rowRect(1).center();
    QTest::mouseClick(&viewport, Qt::LeftButton, {}, at);
    sendMouse(QEvent::MouseButtonDblClick, viewport, at, Qt::LeftButton, Qt::LeftButton);
    sendMouse(QEvent::MouseMove, viewport, script->rowRect(4).center(), Qt::NoButton,
              Qt::LeftButton);
    EXPECT_EQ(image(), nullptr);
    settle();
    EXPECT_EQ(commands, std::vector{EditorCommand::EditEntry});
}

TEST_F(PaneDragTest, WhileItRunsTheDragOwnsPointerAndKeyboard) {
    fillScript(100);
    hold(onRow(*script, 4));
    EXPECT_EQ(QWidget::mouseGrabber(), pane);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BlankCursor);
    const QPoint row = script->viewport()->mapTo(pane, script->rowRect(1).topLeft());
    EXPECT_EQ(image()->origin(), row + onRow(*script, 4) - onRow(*script, 1));
    key(Qt::Key_Down);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected(), Rows{1}) << "nor do the rows on the way count";
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, onRow(*script, 5));
    moveTo({60, 395});
    EXPECT_EQ(script->verticalScrollBar()->value(), 0);
    EXPECT_NE(image(), nullptr);
    release(onRow(*script, 4));
    EXPECT_EQ(lines().substr(0, 17), "e0 e2 e3 e4 e1 e5");
}

TEST_F(PaneDragTest, EveryOtherEndIsAnEndWithoutADrop) {
    const auto escape = [this] {
        key(Qt::Key_Escape);
        moveTo(onRow(*script, 5));
        EXPECT_EQ(selected(), Rows{1}) << "the button, still down, selects no more";
    };
    const auto releaseElsewhere = [this] {
        sendMouse(QEvent::MouseMove, *pane, {50, 50}, Qt::NoButton, Qt::NoButton);
    };
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"escape", escape},
        {"keyboard focus lost", [&] { events->setFocus(); }},
        {"button released elsewhere", releaseElsewhere},
        {"pane hidden", [&] { pane->hide(); }},
        {"list shown anew", [&] { pane->rebuildScriptList(); }},
        {"selection made anew", [&] { select({0}, 0); }},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        fillScript(6);
        hold(onRow(*script, 4));
        ASSERT_NE(image(), nullptr);
        end();
        expectNoTraceOfADrag();
        release(onRow(*script, 4));
        settle();
        expectScriptOfSix();
        pane->show();
        settle();
    }
    drag(onRow(*script, 1), onRow(*script, 4));
    EXPECT_EQ(moves, 1) << "the next drag works";
}

// Moving one entry after the other, which takes many times as long.
Rows movedOneByOne(const std::vector<MoveStep>& steps, int entryCount) {
    Rows script(static_cast<std::size_t>(entryCount));
    std::iota(script.begin(), script.end(), std::size_t{0});
    for (const auto& [from, to] : steps) {
        const std::size_t kept = script[static_cast<std::size_t>(from)];
        script.erase(script.begin() + from);
        script.insert(script.begin() + std::clamp(to, 0, entryCount - 1), kept);
    }
    return script;
}

TEST(MovePlanProperty, MovesAsOneByOneAndKeepsTheGaps) {
    std::mt19937 random(4096);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 20000; ++round) {
        const int count = 1 + below(12);
        Rows selected;
        for (int i = 0; i < count; ++i)
            if (below(3) == 0) selected.push_back(static_cast<std::size_t>(i));
        if (selected.empty()) selected.push_back(static_cast<std::size_t>(below(count)));
        const int focused = below(count + 1) - 1;
        const MovePlan plan = planMove(selected, focused, below(count), below(2) == 0, count);
        ASSERT_EQ(orderAfter(plan.steps, count), movedOneByOne(plan.steps, count)) << round;
        ASSERT_EQ(plan.current, plan.steps.back().to) << round;
        for (std::size_t k = 0; k < selected.size(); ++k) {
            const auto gap = static_cast<int>(selected[k] - selected.front());
            ASSERT_EQ(plan.selected[k], plan.selected.front() + gap) << round;
        }
    }
}

}  // namespace
}  // namespace quendra::test
