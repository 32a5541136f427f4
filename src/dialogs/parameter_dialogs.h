// The parameter dialogs: one modal dialog per command that takes parameters, over the working copy
// of one entry.
#pragma once

#include "model/script_entry.h"
#include "session/application_state.h"

class QWidget;

namespace quendra {

/// Whose action is being edited; chooses captions and messages only.
enum class ActionOwner : std::uint8_t { None, WaitForOrWatchFor, IfInputIs };

/// What a dialog edits: a slot of the working copy, never the script itself.
struct EditTarget {
    ScriptEntry& entry;
    Slot slot = Slot::Entry;
    ActionOwner owner = ActionOwner::None;
    /// An action that was a hidden Type: as a Type it is hidden again, whatever it was meanwhile.
    bool onceHidden = false;
};

/// What dialogs need beside their target.
struct DialogContext {
    ApplicationState& state;
    QWidget* window = nullptr;
};

/// Opens the command's dialog; true on OK, when the target's fields were stored. After Cancel the
/// target is as it was, but an Input keeps the choice of character or string. Commands without
/// parameters, LU functions and menu commands without parameters give true at once. A file transfer
/// edits the state's working settings and takes them over on OK.
[[nodiscard]] bool editParameters(const DialogContext& context, const EditTarget& target);

/// The pages of a file transfer, on the state's working settings as they are; true on OK, when the
/// slot holds them and their host.
[[nodiscard]] bool editTransfer(const DialogContext& context, Step& fields,
                                TransferDirection direction);

/// The dialogs of the three commands that carry actions; editParameters opens them for an entry.
[[nodiscard]] bool editWaitFor(const DialogContext& context, ScriptEntry& entry);
[[nodiscard]] bool editIfInputIs(const DialogContext& context, ScriptEntry& entry);
[[nodiscard]] bool editWatchFor(const DialogContext& context, ScriptEntry& entry);

/// Wait_For as the action of a Watch_For: its text and its four search options, which is all it has
/// there.
[[nodiscard]] bool editWatchedWaitFor(const DialogContext& context, ScriptEntry& entry);

/// Chooses and fills the then or else action of a Wait_For or an If_Input_Is. Cancel leaves the
/// action as it was when the dialog opened.
[[nodiscard]] bool chooseAction(const DialogContext& context, const EditTarget& target);

}  // namespace quendra
