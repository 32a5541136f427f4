// Mending what a check found, where there is exactly one sensible way.
#pragma once

#include "analysis/script_check.h"
#include "session/editing.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quendra {

struct QuickFix {
    enum class Kind : std::uint8_t {
        /// The Goto at `place` goes to `label` then.
        ChangeLabel,
        /// A Label at the end of the script.
        AddLabel,
        /// The step of `place`, a Label, goes.
        RemoveLabel,
        /// The Type at `place` becomes a hidden one.
        HidePassword,
    };

    Kind kind = Kind::ChangeLabel;
    StepPlace place;
    /// windows-1252; empty where there is none.
    std::string label;
};

/// A fix, or why there is none.
struct QuickFixOffer {
    std::optional<QuickFix> fix;
    /// A text of the library.
    StringId whyNot = 0;
};

/// For a finding of a check whose outline this is. A Label that a misspelt Goto may mean has none:
/// either could be mended.
[[nodiscard]] QuickFixOffer quickFixFor(const Finding& finding, const ScriptOutline& outline,
                                        const Script& script);

/// "Remove Label Spare", in UTF-8: what it does, and the name of its step in the history.
[[nodiscard]] std::string quickFixName(const QuickFix& fix, LanguageLibrary& language);

/// Makes it in the script that it was offered for, and shows the step that was changed. As the
/// operations of editing.h: false when nothing changed, after telling why.
bool applyQuickFix(EditingState& state, EditingView& view, const QuickFix& fix);

}  // namespace quendra
