// The ways through a script: which step may follow which.
#pragma once

#include "analysis/script_outline.h"

#include <array>
#include <cstddef>
#include <vector>

namespace quendra {

/// One way out of a step.
struct StepExit {
    std::size_t to = 0;
    /// Whoever goes this way has waited, asked or transferred in the step that he leaves.
    bool waits = false;
    /// The jump of a Watch_For, which is made from any later step.
    bool isWatch = false;
};

/// The ways out of a step; at most three. Return, the last step and a Goto that leads nowhere have
/// none.
class StepExits {
  public:
    void add(const StepExit& exit) { exits_[count_++] = exit; }
    [[nodiscard]] const StepExit* begin() const { return exits_.data(); }
    [[nodiscard]] const StepExit* end() const { return exits_.data() + count_; }
    [[nodiscard]] std::size_t count() const { return count_; }

  private:
    std::array<StepExit, 3> exits_ = {};
    std::size_t count_ = 0;
};
[[nodiscard]] StepExits exitsOf(const ScriptOutline& outline, std::size_t step);

/// For each step whether any way leads from the first one to it.
[[nodiscard]] std::vector<bool> reachableSteps(const ScriptOutline& outline);

/// For each step whether a Clear_Watch, as a step or an action, may still come, itself included.
[[nodiscard]] std::vector<bool> stepsBeforeClearWatch(const ScriptOutline& outline);

/// Circles of steps in which nothing waits, asks or transfers: each the ascending steps that lead
/// to each other, in the order of their first ones. The jump of a Watch_For makes no circle.
[[nodiscard]] std::vector<std::vector<std::size_t>> busyCircles(const ScriptOutline& outline);

}  // namespace quendra
