// What a drop aims at and where a move puts the entries, in plain numbers.
#include "app/drop_rules.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <optional>
#include <random>
#include <tuple>
#include <vector>

namespace quendra {
namespace {

TEST(DropTarget, AimsAtTheEntryThatTheRulesName) {
    const std::tuple<const char*, int, int, int, Heading, int, std::optional<int>> rows[] = {
        {"on an entry", 50, 50, 2, Heading::Down, 5, 2},
        {"on an entry level with the start", 50, 50, 2, Heading::Level, 5, 2},
        {"above the list", 50, -1, -1, Heading::Down, 5, 0},
        {"above and to the left", -30, -1, -1, Heading::Up, 5, 0},
        {"below the list", 50, 200, -1, Heading::Up, 5, 4},
        {"below and to the right", 300, 200, -1, Heading::Down, 5, 4},
        {"under the rows and higher", 50, 150, -1, Heading::Up, 5, 0},
        {"under the rows and lower", 50, 150, -1, Heading::Down, 5, 4},
        {"under the rows and level", 50, 150, -1, Heading::Level, 5, std::nullopt},
        {"to the right", 100, 50, -1, Heading::Down, 5, std::nullopt},
        {"to the left", -1, 50, -1, Heading::Up, 5, std::nullopt},
        {"last pixel inside", 99, 199, 3, Heading::Down, 5, 3},
        {"empty script, higher", 50, 50, -1, Heading::Up, 0, 0},
        {"empty script, lower", 50, 50, -1, Heading::Down, 0, -1},
        {"empty script, level", 50, 50, -1, Heading::Level, 0, std::nullopt},
    };
    for (const auto& [name, x, y, entry, heading, entryCount, target] : rows)
        EXPECT_EQ(dropTarget({x, y, 100, 200, entry, heading}, entryCount), target) << name;
}

using Rows = std::vector<std::size_t>;

TEST(MovePlan, KeepsShapeAndOrderOfTheSelection) {
    const struct {
        const char* name;
        Rows selected;
        int focused;
        int target;
        bool up;
        Rows order;
        std::vector<int> selectedAfter;
        int focusedAfter;
        /// Rows of the old list before which the mark stands.
        std::vector<int> marks;
    } rows[] = {
        {"one down", {2}, 2, 5, false, {0, 1, 3, 4, 5, 2, 6}, {5}, 5, {6}},
        {"one to the end", {0}, 0, 6, false, {1, 2, 3, 4, 5, 6, 0}, {6}, 6, {7}},
        {"two apart up", {3, 5}, 3, 1, true, {0, 3, 1, 5, 2, 4, 6}, {1, 3}, 1, {1, 2}},
        {"block held at the top", {3, 5}, 5, 0, true, {3, 0, 5, 1, 2, 4, 6}, {0, 2}, 2, {0, 1}},
        {"block held at the end", {1, 3}, 1, 6, false, {0, 2, 4, 5, 1, 6, 3}, {4, 6}, 4, {6, 7}},
        {"at the top already", {0, 2}, 2, 1, true, {0, 1, 2, 3, 4, 5, 6}, {0, 2}, 2, {}},
        {"neighbours down", {2, 3}, 3, 4, false, {0, 1, 4, 2, 3, 5, 6}, {3, 4}, 4, {5}},
        {"focus elsewhere", {4}, 6, 3, true, {0, 4, 1, 2, 3, 5, 6}, {1}, 6, {1}},
        {"nothing focused", {4}, -1, 1, true, {0, 4, 1, 2, 3, 5, 6}, {1}, -1, {1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const MovePlan plan = planMove(row.selected, row.focused, row.target, row.up, 7);
        const Rows order = orderAfter(plan.steps, 7);
        EXPECT_EQ(order, row.order);
        EXPECT_EQ(plan.selected, row.selectedAfter);
        EXPECT_EQ(plan.focused, row.focusedAfter);
        EXPECT_EQ(landingRows(order, row.selected), row.marks);
    }
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

TEST(MovesOf, NamesWhatChangesItsPlaceOnly) {
    const std::vector<EntryMove> moves = movesOf(Rows{0, 2, 1, 3});
    ASSERT_EQ(moves.size(), 2U);
    EXPECT_EQ(moves[0].from, 2U);
    EXPECT_EQ(moves[0].to, 1U);
    EXPECT_EQ(moves[1].from, 1U);
    EXPECT_EQ(moves[1].to, 2U);
}

}  // namespace
}  // namespace quendra
