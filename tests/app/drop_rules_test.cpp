// What a drop aims at and where a move puts the entries, in plain numbers.
#include "app/drop_rules.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace quendra {
namespace {

struct TargetCase {
    std::string name;
    int x;
    int y;
    int entry;
    Heading heading;
    int entryCount;
    std::optional<int> target;
};

std::ostream& operator<<(std::ostream& out, const TargetCase& row) {
    return out << row.name;
}

class DropTargetTest : public testing::TestWithParam<TargetCase> {};

TEST_P(DropTargetTest, AimsAtTheEntryThatTheRulesName) {
    const TargetCase& row = GetParam();
    EXPECT_EQ(dropTarget({row.x, row.y, 100, 200, row.entry, row.heading}, row.entryCount),
              row.target);
}

INSTANTIATE_TEST_SUITE_P(
    Places, DropTargetTest,
    testing::Values(
        TargetCase{"OnAnEntry", 50, 50, 2, Heading::Down, 5, 2},
        TargetCase{"OnAnEntryLevelWithTheStart", 50, 50, 2, Heading::Level, 5, 2},
        TargetCase{"AboveTheList", 50, -1, -1, Heading::Up, 5, 0},
        TargetCase{"AboveTheListThoughLowerThanTheStart", 50, -1, -1, Heading::Down, 5, 0},
        TargetCase{"AboveAndToTheLeft", -30, -1, -1, Heading::Up, 5, 0},
        TargetCase{"AboveAndToTheRight", 300, -1, -1, Heading::Level, 5, 0},
        TargetCase{"BelowTheList", 50, 200, -1, Heading::Down, 5, 4},
        TargetCase{"BelowTheListThoughHigherThanTheStart", 50, 200, -1, Heading::Up, 5, 4},
        TargetCase{"BelowAndToTheRight", 300, 200, -1, Heading::Down, 5, 4},
        TargetCase{"UnderTheRowsAndHigher", 50, 150, -1, Heading::Up, 5, 0},
        TargetCase{"UnderTheRowsAndLower", 50, 150, -1, Heading::Down, 5, 4},
        TargetCase{"UnderTheRowsAndLevel", 50, 150, -1, Heading::Level, 5, std::nullopt},
        TargetCase{"ToTheRight", 100, 50, -1, Heading::Down, 5, std::nullopt},
        TargetCase{"ToTheLeft", -1, 50, -1, Heading::Up, 5, std::nullopt},
        TargetCase{"LastPixelInside", 99, 199, 4, Heading::Down, 5, 4},
        TargetCase{"EmptyScriptHigher", 50, 50, -1, Heading::Up, 0, 0},
        TargetCase{"EmptyScriptAbove", 50, -1, -1, Heading::Up, 0, 0},
        TargetCase{"EmptyScriptLower", 50, 50, -1, Heading::Down, 0, -1},
        TargetCase{"EmptyScriptBelow", 50, 250, -1, Heading::Down, 0, -1},
        TargetCase{"EmptyScriptLevel", 50, 50, -1, Heading::Level, 0, std::nullopt}),
    [](const auto& tested) { return tested.param.name; });

struct MoveCase {
    std::string name;
    std::vector<std::size_t> selected;
    int focused;
    int target;
    bool up;
    std::vector<std::size_t> order;
    std::vector<int> selectedAfter;
    int focusedAfter;
    /// Rows of the old list before which the mark stands.
    std::vector<int> marks;
};

std::ostream& operator<<(std::ostream& out, const MoveCase& row) {
    return out << row.name;
}

class MovePlanTest : public testing::TestWithParam<MoveCase> {};

constexpr int moveCaseCount = 9;

TEST_P(MovePlanTest, KeepsShapeAndOrderOfTheSelection) {
    const MoveCase& row = GetParam();
    const MovePlan plan = planMove(row.selected, row.focused, row.target, row.up, moveCaseCount);
    const std::vector<std::size_t> order = orderAfter(plan.steps, moveCaseCount);
    EXPECT_EQ(order, row.order);
    EXPECT_EQ(plan.selected, row.selectedAfter);
    EXPECT_EQ(plan.focused, row.focusedAfter);
    EXPECT_EQ(landingRows(order, row.selected), row.marks);
}

INSTANTIATE_TEST_SUITE_P(
    Gestures, MovePlanTest,
    testing::Values(
        MoveCase{"OneDown", {2}, 2, 5, false, {0, 1, 3, 4, 5, 2, 6, 7, 8}, {5}, 5, {6}},
        MoveCase{"OneUp", {5}, 5, 2, true, {0, 1, 5, 2, 3, 4, 6, 7, 8}, {2}, 2, {2}},
        MoveCase{"OneToTheEnd", {0}, 0, 8, false, {1, 2, 3, 4, 5, 6, 7, 8, 0}, {8}, 8, {9}},
        MoveCase{
            "TwoApartDown", {2, 4}, 4, 7, false, {0, 1, 3, 5, 6, 2, 7, 4, 8}, {5, 7}, 7, {7, 8}},
        MoveCase{"TwoApartUp", {4, 6}, 4, 1, true, {0, 4, 1, 6, 2, 3, 5, 7, 8}, {1, 3}, 1, {1, 2}},
        MoveCase{"BlockHeldAtTheTop",
                 {3, 5},
                 5,
                 0,
                 true,
                 {3, 0, 5, 1, 2, 4, 6, 7, 8},
                 {0, 2},
                 2,
                 {0, 1}},
        MoveCase{"BlockHeldAtTheEnd",
                 {3, 5},
                 3,
                 8,
                 false,
                 {0, 1, 2, 4, 6, 7, 3, 8, 5},
                 {6, 8},
                 6,
                 {8, 9}},
        MoveCase{"AtTheTopAlready", {0, 2}, 2, 1, true, {0, 1, 2, 3, 4, 5, 6, 7, 8}, {0, 2}, 2, {}},
        MoveCase{
            "NeighboursDown", {2, 3}, 3, 4, false, {0, 1, 4, 2, 3, 5, 6, 7, 8}, {3, 4}, 4, {5}},
        MoveCase{
            "FocusOutsideTheSelection", {4}, 6, 3, true, {0, 4, 1, 2, 3, 5, 6, 7, 8}, {1}, 6, {1}},
        MoveCase{"NothingFocused", {4}, -1, 1, true, {0, 4, 1, 2, 3, 5, 6, 7, 8}, {1}, -1, {1}}),
    [](const auto& tested) { return tested.param.name; });

void moveEntry(std::vector<std::size_t>& script, int from, int to) {
    to = std::clamp(to, 0, static_cast<int>(script.size()) - 1);
    if (from == to) return;
    const std::size_t kept = script[static_cast<std::size_t>(from)];
    script.erase(script.begin() + from);
    script.insert(script.begin() + to, kept);
}

struct Moved {
    std::vector<std::size_t> order;
    std::vector<int> selected;
    int focused;
    int current;

    bool operator==(const Moved&) const = default;
};

// The move as it is told: one entry after the other, keeping the gaps as they were collected.
Moved moveOneByOne(const std::vector<std::size_t>& selected, int f, int target, bool up,
                   int entryCount) {
    std::vector<std::size_t> script;
    for (int i = 0; i < entryCount; ++i) {
        script.push_back(static_cast<std::size_t>(i));
    }
    std::vector<int> s(selected.begin(), selected.end());
    const std::size_t n = s.size();
    int current = target;
    if (up) {
        if (f >= 0) target = std::max(target + s[0] - f, 0);
        for (std::size_t k = 0; k < n; ++k) {
            moveEntry(script, s[k], target);
            if (s[k] == f) f = target;
            const int gap = k + 1 < n ? s[k + 1] - s[k] : 0;
            s[k] = target;
            current = target;
            target += gap;
        }
    } else {
        if (f >= 0) target = std::min(target + s[n - 1] - f, entryCount - 1);
        for (std::size_t k = n; k-- > 0;) {
            moveEntry(script, s[k], target);
            if (s[k] == f) f = target;
            const int gap = k > 0 ? s[k] - s[k - 1] : 0;
            s[k] = target;
            current = target;
            target -= gap;
        }
    }
    return {script, s, f, current};
}

TEST(MovePlanProperty, EqualsMovingOneByOneForEveryInput) {
    std::mt19937 random(4096);
    for (int round = 0; round < 20000; ++round) {
        const int count = 1 + static_cast<int>(random() % 12);
        std::vector<std::size_t> selected;
        for (int i = 0; i < count; ++i) {
            if (random() % 3 == 0) selected.push_back(static_cast<std::size_t>(i));
        }
        if (selected.empty()) selected.push_back(random() % static_cast<unsigned>(count));
        const int focused = static_cast<int>(random() % static_cast<unsigned>(count + 1)) - 1;
        const int target = static_cast<int>(random() % static_cast<unsigned>(count));
        const bool up = random() % 2 == 0;
        const MovePlan plan = planMove(selected, focused, target, up, count);
        const Moved planned{orderAfter(plan.steps, count), plan.selected, plan.focused,
                            plan.current};
        ASSERT_EQ(planned, moveOneByOne(selected, focused, target, up, count))
            << "round " << round << ", " << count << " entries, focused " << focused << ", target "
            << target << (up ? ", up" : ", down");
    }
}

TEST(MovesOf, NamesWhatChangesItsPlaceOnly) {
    const std::vector<std::size_t> order = {0, 2, 1, 3};
    const std::vector<EntryMove> moves = movesOf(order);
    ASSERT_EQ(moves.size(), 2u);
    EXPECT_EQ(moves[0].from, 2u);
    EXPECT_EQ(moves[0].to, 1u);
    EXPECT_EQ(moves[1].from, 1u);
    EXPECT_EQ(moves[1].to, 2u);
}

}  // namespace
}  // namespace quendra
