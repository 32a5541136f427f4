// The jumps of a script as lines beside its steps: which lane each takes, and what is to be drawn
// at each step.
#pragma once

#include "analysis/script_outline.h"
#include "session/step_shift.h"

#include <cstdint>
#include <vector>

namespace quendra {

/// At most so many lines stand side by side.
inline constexpr int mostJumpLanes = 5;

/// What is drawn beside a step. Sets of lanes are bits; lane 0 is nearest to the step.
struct StepJumps {
    /// Lanes whose line comes from the step above, and goes on to the step below.
    std::uint8_t above = 0;
    std::uint8_t below = 0;
    /// Lanes that a jump of the step goes to, and that jumps to the step come from.
    std::uint8_t leaves = 0;
    std::uint8_t arrives = 0;
    /// A Goto of the step leads nowhere.
    bool isLost = false;
    /// A Label of the step that no Goto leads to.
    bool isUnused = false;

    bool operator==(const StepJumps&) const = default;
};

/// All jumps to one label share a line, for a script that a hundred steps leave in the same way has
/// one line for it, not a hundred. Short lines are nearest to the steps. Where lanes do not
/// suffice, the longest lines share the outermost one.
class JumpLanes {
  public:
    JumpLanes() = default;
    explicit JumpLanes(const ScriptOutline& outline);

    [[nodiscard]] int laneCount() const { return laneCount_; }
    /// Nothing for a step that was not there.
    [[nodiscard]] StepJumps at(std::size_t step) const {
        return step < steps_.size() ? steps_[step] : StepJumps();
    }
    /// The same with nothing but the jumps that a step makes and those that lead to it.
    [[nodiscard]] StepJumps ofStep(const ScriptOutline& outline, std::size_t step,
                                   std::size_t at) const;

    /// Stays with the steps that are still there; new ones have the lines that go past them.
    void follow(const StepShift& shift);

    bool operator==(const JumpLanes&) const = default;

  private:
    /// From the first step that it touches to the last.
    struct Line {
        std::size_t first = 0;
        std::size_t last = 0;
        std::size_t target = 0;
        int lane = 0;

        bool operator==(const Line&) const = default;
    };
    void assignLanes(std::vector<std::size_t> order);
    void draw(const ScriptOutline& outline);
    void addJump(StepJumps& drawn, const Line& line, std::size_t from, std::size_t at) const;

    /// By label; a label without jumps or without a target has a line of no lane.
    std::vector<Line> lines_;
    std::vector<StepJumps> steps_;
    int laneCount_ = 0;
};

}  // namespace quendra
