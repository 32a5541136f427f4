// What the choice of an action rests on: which commands may be actions where, what an action still
// lacks, what is selected at the start, and the refusals. Plain values, no widgets.
#pragma once

#include "hosts/host_type.h"
#include "hosts/palettes.h"
#include "model/script_entry.h"
#include "text/language_library.h"
#include "widgets/message_box.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quendra {

/// The action that is being chosen: of which command (Wait_For, If_Input_Is or Watch_For), and
/// which of its two.
struct ActionPlace {
    CommandCode owner = CommandCode::WaitFor;
    Slot slot = Slot::Then;
};

enum class ActionRefusal : std::uint8_t { NothingSelected, CarriesActions, NotInVt };

/// Why a choice cannot be taken, or none.
[[nodiscard]] std::optional<ActionRefusal> refusalOf(const PaletteChoice& choice, CommandCode owner,
                                                     HostType hostType);

/// What is told then. The Watch_For dialog takes its texts from the library, the Action dialog has
/// its own.
[[nodiscard]] Message refusalMessage(ActionRefusal refusal, const ActionPlace& place,
                                     const TextSource& texts);

/// The title of the Action dialog; none for Watch_For, which chooses in a dialog of its own.
[[nodiscard]] std::string actionCaption(const ActionPlace& place);

/// Makes an action what was chosen: its code, and key or menu command. Every other field stays, so
/// a text or number from before serves the new command too. But what is only for hiding, or means
/// something else for the new command, goes with the old one: a hidden text, which another command
/// would show and store in clear, with its flag, and the title of an Input that hides what is
/// typed; the prompt of an Input with its length; whether a Copy or Paste takes the whole screen.
/// And a Wait_For that has no place to search at starts as any new one does. `choice` is one that
/// is not refused, and its row exists.
void applyChoice(ScriptEntry& entry, Slot slot, const PaletteChoice& choice,
                 const LuCatalogue& luFunctions);

/// Makes an action none again, as that of a new entry, with all that it had.
void takeBackAction(ScriptEntry& entry, Slot slot);

/// True when the action is of a command whose parameters it does not have yet, so that accepting it
/// has to ask for them first. What is kept of an action that cannot be read counts as its
/// parameters.
[[nodiscard]] bool lacksParameters(const Step& action);

/// What a double-click on a row does; it never ends the dialog.
enum class DoubleClickAct : std::uint8_t {
    Nothing,
    /// The action becomes the command, and then its parameters are asked for, whatever it has.
    ChooseAndEdit,
    /// The settings come first; the action becomes a file transfer only when they are accepted.
    EditTransfer,
};
[[nodiscard]] DoubleClickAct doubleClickAct(const PaletteChoice& choice);

}  // namespace quendra
