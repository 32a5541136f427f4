// What checks find in the script as it is being edited, for whoever shows it.
#pragma once

#include "analysis/script_check.h"
#include "session/application_state.h"
#include "session/jump_lanes.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quendra {

/// The last result; it lags behind the script between a change and the next update(), and whoever
/// asks for a step that was not there then is told of nothing. Notes are left out: what is only
/// worth knowing must not call for attention all day.
///
/// A look at the whole script takes longer than an edit has before it is painted. follow() is for
/// that time: what has been found stays with its steps.
class LiveCheck {
  public:
    /// `state` outlives it.
    explicit LiveCheck(ApplicationState& state) : state_(state) {}

    enum class Change : std::uint8_t {
        /// Script and host type are those of the last time, and nothing was looked at.
        None,
        /// The same steps have findings of the same severity, and the same jumps.
        Texts,
        Marks,
    };
    /// Looks at the script if it is another than last time.
    Change update();
    /// Moves what was found to where its steps are now, and forgets what was found at steps that
    /// have been replaced by more or fewer; update() is still due. Tells whether anything moved.
    bool follow();

    /// By step, slot and rule.
    [[nodiscard]] const std::vector<Finding>& findings() const { return result_.findings; }
    [[nodiscard]] const ScriptOutline& outline() const { return result_.outline; }
    [[nodiscard]] const JumpLanes& lanes() const { return lanes_; }
    /// The script has conflicts of a merge in it, or what is left of one.
    [[nodiscard]] bool hasConflicts() const { return hasConflicts_; }
    [[nodiscard]] std::span<const Finding> findingsOf(std::size_t step) const;
    /// How bad the worst finding of a step is.
    [[nodiscard]] std::optional<Severity> worstOf(std::size_t step) const;
    [[nodiscard]] std::size_t count(Severity severity) const;

    /// The finding in words: with its step, as a line of a list; or with its severity, as it is
    /// told where no sign is seen. Both in UTF-8, with the rule.
    [[nodiscard]] std::string line(const Finding& finding) const;
    [[nodiscard]] std::string told(const Finding& finding) const;
    /// All findings of a step in words, a line each; empty when there are none.
    [[nodiscard]] std::string toldOf(std::size_t step) const;
    /// "2 errors, 1 warning"; empty when there are none.
    [[nodiscard]] std::string counts() const;

  private:
    [[nodiscard]] std::string message(const Finding& finding) const;

    ApplicationState& state_;
    CheckResult result_;
    JumpLanes lanes_;
    bool hasConflicts_ = false;
    /// What was looked at or, since then, followed.
    Script script_;
    HostType hostType_ = HostType::Mainframe;
    bool isDue_ = false;
};

/// Which finding comes next. `current` is the one that was reached last; it counts while `step`,
/// the focused one (-1 for none), is its step. After the last one comes the first. None when there
/// are no findings.
[[nodiscard]] std::optional<std::size_t> nextFinding(std::span<const Finding> findings, int step,
                                                     std::optional<std::size_t> current);
[[nodiscard]] std::optional<std::size_t> previousFinding(std::span<const Finding> findings,
                                                         int step,
                                                         std::optional<std::size_t> current);

}  // namespace quendra
