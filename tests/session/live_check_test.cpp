// What checks find while a script is edited: the way from one finding to the next, the lines of the
// jumps, and what quick fixes do.
#include "session/live_check.h"

#include "session/fake_view.h"
#include "session/quick_fix.h"
#include "support/step_lines.h"
#include "text/text_ids.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

using Lines = std::initializer_list<std::string_view>;

class LiveCheckTest : public testing::Test {
  protected:
    void have(Lines lines) {
        state.script = scriptOfLines(lines, state.cipher);
        check.update();
    }

    ApplicationState state;
    LiveCheck check{state};
};

TEST_F(LiveCheckTest, LooksOnlyAtAnotherScriptAndTellsWhetherItsMarksAreOthers) {
    using enum LiveCheck::Change;
    have({"Goto a", "Label b", "Beep"});
    EXPECT_EQ(check.findings().size(), 3U);
    EXPECT_EQ(check.worstOf(0), Severity::Error);
    EXPECT_EQ(check.worstOf(1), Severity::Warning);
    EXPECT_EQ(check.worstOf(7), std::nullopt) << "not there";
    EXPECT_EQ(check.update(), None);
    state.script = scriptOfLines({"Goto z", "Label b", "Wait_Ready"}, state.cipher);
    EXPECT_EQ(check.update(), Texts);
    state.script.entries.pop_back();
    EXPECT_EQ(check.update(), Marks) << "one step less to draw";
    state.currentHostType = HostType::VT;
    EXPECT_NE(check.update(), None) << "another host type stores other steps";
}

TEST_F(LiveCheckTest, GoesFromOneFindingToTheNextAndRound) {
    // Findings of the steps 1, 1 and 3.
    have({"Beep", "If_Input_Is x>Goto a", "Comment c", "Goto b"});
    ASSERT_EQ(check.findings().size(), 3U) << check.toldOf(1) << check.toldOf(3);
    struct Row {
        int step;
        std::optional<std::size_t> current, next, previous;
    };
    const Row rows[] = {{-1, {}, 0, 2}, {0, {}, 0, 2}, {1, {}, 2, 2}, {1, 0, 1, 2},
                        {1, 1, 2, 0},   {2, 1, 2, 1},  {3, 2, 0, 1},  {9, 8, 0, 2}};
    for (const Row& row : rows) {
        EXPECT_EQ(nextFinding(check.findings(), row.step, row.current), row.next) << row.step;
        EXPECT_EQ(previousFinding(check.findings(), row.step, row.current), row.previous)
            << row.step;
    }
    EXPECT_EQ(nextFinding({}, 0, 0), std::nullopt);
    EXPECT_EQ(previousFinding({}, 0, 0), std::nullopt);
}

// A sign for each step: what of lane 0 touches it.
std::string drawnLane(const std::function<StepJumps(std::size_t)>& at, std::size_t steps,
                      unsigned int lane = 0) {
    std::string all;
    for (std::size_t step = 0; step < steps; ++step) {
        const StepJumps jumps = at(step);
        const auto has = [lane](std::uint8_t lanes) { return (lanes >> lane & 1U) != 0; };
        all += has(jumps.leaves)                      ? '>'
               : has(jumps.arrives)                   ? '<'
               : has(jumps.above) && has(jumps.below) ? '|'
               : has(jumps.above) || has(jumps.below) ? '?'
               : jumps.isLost                         ? 'x'
               : jumps.isUnused                       ? 'o'
                                                      : ' ';
    }
    return all;
}

TEST_F(LiveCheckTest, JumpsToOneLabelShareALineAndLinesCrossNoOther) {
    struct Row {
        Lines script;
        int lanes;
        const char* first;
        const char* second;
        /// The jumps of the step `focused` alone.
        std::size_t focused;
        const char* strong;
    };
    const Row rows[] = {
        {{"Beep", "Comment c"}, 0, "  ", "  ", 0, "  "},
        {{"Goto a", "Goto a", "Beep", "Label a"}, 1, ">>|<", "    ", 1, " >|<"},
        {{"Label a", "Beep", "Goto a", "Goto a"}, 1, "<|>>", "    ", 0, "<|>>"},
        {{"Goto a", "Label a", "Goto b", "Label b"}, 1, "><><", "    ", 2, "  ><"},
        {{"Goto a", "Goto b", "Label b", "Label a"}, 2, " >< ", ">||<", 0, "    "},
        {{"Goto x", "Label b", "Wait_For t>Goto c", "Label c", "Label c"},
         1,
         "xo><o",
         "xo  o",
         2,
         "  >< "},
    };
    for (const Row& row : rows) {
        have(row.script);
        const std::size_t steps = row.script.size();
        SCOPED_TRACE(row.first);
        EXPECT_EQ(check.lanes().laneCount(), row.lanes);
        const auto all = [&](std::size_t step) { return check.lanes().at(step); };
        EXPECT_EQ(drawnLane(all, steps), row.first);
        EXPECT_EQ(drawnLane(all, steps, 1), row.second);
        EXPECT_EQ(drawnLane(
                      [&](std::size_t step) {
                          return check.lanes().ofStep(check.outline(), row.focused, step);
                      },
                      steps),
                  row.strong);
    }
    // Ten lines one inside the other: those beyond the lanes share the outermost.
    Script nested;
    for (int i = 0; i < 20; ++i) {
        const std::string line =
            (i < 10 ? "Goto l" : "Label l") + std::to_string(i < 10 ? i : 19 - i);
        nested.entries.push_back(entryOfLine(line, state.cipher));
    }
    state.script = nested;
    check.update();
    EXPECT_EQ(check.lanes().laneCount(), mostJumpLanes);
    EXPECT_EQ(check.lanes().at(4).leaves, 1U << 4);
    EXPECT_EQ(check.lanes().at(9).leaves, 1U);
}

TEST_F(LiveCheckTest, UntilTheNextLookWhatWasFoundStaysWithItsSteps) {
    struct Row {
        Lines before, after;
        /// The steps of the findings, and lane 0.
        std::vector<std::size_t> findings;
        const char* lane;
    };
    const Row rows[] = {
        {{"Goto a", "Label a", "Goto x"}, {"Beep", "Goto a", "Label a", "Goto x"}, {3}, " ><x"},
        {{"Goto a", "Label a", "Goto x"}, {"Goto a", "Beep", "Label a", "Goto x"}, {3}, ">|<x"},
        {{"Goto a", "Label a", "Goto x"}, {"Goto a", "Goto x"}, {1}, ">x"},
        {{"Goto x", "Beep", "Goto y"}, {"Beep"}, {}, " "},
        {{"Goto x", "Goto y"}, {}, {}, ""},
        {{}, {"Goto x"}, {}, " "},
        {{"Goto x", "Beep", "Goto y"}, {"Goto x", "Beep", "Beep"}, {0, 1, 2}, "x x"},
    };
    for (const Row& row : rows) {
        have(row.before);
        state.script = scriptOfLines(row.after, state.cipher);
        EXPECT_EQ(check.follow(), row.before.size() != row.after.size());
        EXPECT_FALSE(check.follow()) << "nothing more has changed";
        std::vector<std::size_t> steps;
        for (const Finding& finding : check.findings()) {
            steps.push_back(finding.place.step);
            static_cast<void>(quickFixFor(finding, check.outline(), state.script));
        }
        EXPECT_EQ(steps, row.findings) << row.lane;
        const auto all = [&](std::size_t step) { return check.lanes().at(step); };
        EXPECT_EQ(drawnLane(all, row.after.size()), row.lane);
        EXPECT_NE(check.update(), LiveCheck::Change::None) << "the look is still due";
        LiveCheck whole(state);
        whole.update();
        EXPECT_EQ(check.findings(), whole.findings());
    }
}

TEST_F(LiveCheckTest, UntilTheNextLookWhatWasFoundMovesWithItsStep) {
    have({"Goto x", "Comment c", "Beep", "Label b"});
    ASSERT_EQ(check.findings().size(), 3U) << "no such label, never reached, never used";
    auto& entries = state.script.entries;
    std::rotate(entries.begin(), entries.begin() + 1, entries.begin() + 3);
    EXPECT_TRUE(check.follow());
    EXPECT_EQ(check.worstOf(2), Severity::Error);
    EXPECT_EQ(check.worstOf(1), Severity::Warning) << "the Beep";
    EXPECT_EQ(check.outline().labels[0].uses, (std::vector<StepPlace>{{2, Slot::Entry}}));
    EXPECT_TRUE(quickFixFor(check.findings()[1], check.outline(), state.script).fix);
    entries[2] = entryOfLine("Goto b", state.cipher);
    EXPECT_FALSE(check.follow()) << "edited in its place";
    EXPECT_NE(check.update(), LiveCheck::Change::None);
}

TEST_F(LiveCheckTest, QuickFixesDoTheOneSensibleThingAndOthersSayWhyNot) {
    using enum QuickFix::Kind;
    struct Row {
        Lines script;
        std::size_t finding;
        std::optional<QuickFix::Kind> kind;
        Lines fixed;
        int focused;
        StringId whyNot = 0;
    };
    const Row rows[] = {
        {{"Goto NoHots", "Label NoHost", "Goto NoHots"},
         0,
         ChangeLabel,
         {"Goto NoHost", "Label NoHost", "Goto NoHots"},
         0},
        {{"Wait_For x>Goto End", "Beep"},
         0,
         AddLabel,
         {"Wait_For x>Goto End", "Beep", "Label End"},
         2},
        {{"Beep", "Label a"}, 0, RemoveLabel, {"Beep"}, 0},
        {{"Label a"}, 0, RemoveLabel, {}, -1},
        {{"Label NoHost", "Goto NoHots"}, 0, {}, {}, 0, textid::fixNeedsDecision},
        {{"Watch_For x>Label a"}, 0, {}, {}, 0, textid::fixNeedsDecision},
        {{"Goto", "Beep"}, 0, {}, {}, 0, textid::fixNeedsDecision},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(*row.script.begin());
        have(row.script);
        FakeView view;
        ASSERT_GT(check.findings().size(), row.finding);
        const auto offer =
            quickFixFor(check.findings()[row.finding], check.outline(), state.script);
        EXPECT_EQ(offer.whyNot, row.whyNot);
        ASSERT_EQ(offer.fix.has_value(), row.kind.has_value());
        if (!offer.fix) continue;
        EXPECT_EQ(offer.fix->kind, *row.kind);
        EXPECT_TRUE(applyQuickFix(state, view, *offer.fix));
        EXPECT_EQ(state.script, scriptOfLines(row.fixed, state.cipher));
        EXPECT_EQ(view.selection.focused, row.focused);
        EXPECT_EQ(state.currentIndex, row.focused);
    }
    have({"Goto End"});
    while (!state.script.isFull())
        state.script.entries.push_back(state.script.entries[0]);
    check.update();
    EXPECT_EQ(quickFixFor(check.findings()[0], check.outline(), state.script).whyNot,
              textid::fixNeedsRoom);
}

TEST_F(LiveCheckTest, APasswordIsHiddenWhereItIsTypedAndOneTooLongIsRefused) {
    for (const std::size_t length : {6U, 247U}) {
        for (const bool isAction : {false, true}) {
            const std::string type = "Type " + std::string(length, 'p');
            const std::string action = "Wait_For Password:>" + type;
            if (isAction)
                have({action});
            else
                have({"Wait_For Password:", type});
            const Script before = state.script;
            FakeView view;
            ASSERT_EQ(check.findings().at(0).rule, Rule::PasswordInClear);
            const auto offer = quickFixFor(check.findings()[0], check.outline(), state.script);
            EXPECT_EQ(applyQuickFix(state, view, offer.fix.value()), length == 6);
            if (length > 6) {
                EXPECT_EQ(state.script, before);
                EXPECT_EQ(view.refusals, std::vector{EditRefusal::HiddenTextTooLong});
                continue;
            }
            check.update();
            EXPECT_TRUE(check.findings().empty());
            const ScriptEntry entry = unpackEntry(state.script.entries.back(), state.cipher);
            const Step& typed = isAction ? entry.thenAction : entry;
            EXPECT_TRUE(isHiddenText(typed));
            EXPECT_EQ(textOf(typed), "pppppp");
        }
    }
}

}  // namespace
}  // namespace quendra::test
