// Taking a choice as an action: with OK, and by double-click. Works on the dialog's copy of the
// entry and shows refusals over the dialog.
#pragma once

#include "dialogs/action_rules.h"
#include "dialogs/parameter_dialogs.h"

namespace quendra {

/// Which action of which command the target is.
[[nodiscard]] ActionPlace placeOf(const EditTarget& target);

/// OK: the action becomes what was chosen, and what it then lacks is asked for. True when the
/// dialog may end; false after a refusal, which leaves the action alone, and when the asking was
/// cancelled, which leaves its new command.
[[nodiscard]] bool acceptChoice(const DialogContext& context, const EditTarget& target,
                                const ActionChoice& choice);

/// Double-click: the action's parameters are asked for at once, whatever it has already. Rows
/// without parameters do nothing.
void openChoice(const DialogContext& context, const EditTarget& target, const ActionChoice& choice);

}  // namespace quendra
