// Taking a choice as an action: with OK, and by double-click. Both work on the dialog's copy of the
// entry and open further dialogs over `context.window`.
#pragma once

#include "dialogs/action_rules.h"
#include "dialogs/parameter_dialogs.h"

namespace quendra {

/// The working settings become those of an action that is a file transfer and is being shown: as
/// with the lines of the script, a new transfer starts from the one that was shown last.
void loadTransfer(ApplicationState& state, const Step& action);

/// Which action of which command the target is.
[[nodiscard]] ActionPlace placeOf(const EditTarget& target);

/// What the user is told when the choice cannot be taken.
[[nodiscard]] std::optional<Message> refusalOf(const DialogContext& context,
                                               const EditTarget& target,
                                               const PaletteChoice& choice);

/// OK on a choice that is not refused: the action becomes what was chosen, and what it then lacks
/// is asked for. False when the asking was cancelled; the action then has the command and all the
/// parameters that it had.
[[nodiscard]] bool acceptChoice(const DialogContext& context, const EditTarget& target,
                                const PaletteChoice& choice);

/// Double-click: the action's parameters are asked for at once, whatever it has already, and it
/// becomes what was chosen when they are accepted. Rows without parameters do nothing.
void openChoice(const DialogContext& context, const EditTarget& target,
                const PaletteChoice& choice);

}  // namespace quendra
