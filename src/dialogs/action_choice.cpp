#include "dialogs/action_choice.h"

#include "model/menu_commands.h"
#include "transfer/command_builder.h"

namespace quendra {

namespace {

const LuCatalogue& luFunctions(const DialogContext& context) {
    return context.state.luCatalogues.of(context.state.currentHostType);
}

// The command is one that asks for something.
bool askForParameters(const DialogContext& context, const EditTarget& target) {
    Step& action = slotFields(target.entry, target.slot);
    const bool transfers =
        action.code == CommandCode::MenuCommand && isFileTransfer(action.commandId);
    // As they were shown last, whatever the action holds.
    return transfers ? editTransfer(context, action, transferDirection(action.commandId))
                     : editParameters(context, target);
}

bool isSameCommand(const Step& one, const Step& other) {
    return one.code == other.code &&
           (one.code != CommandCode::MenuCommand || one.commandId == other.commandId);
}

// The action as the choice makes it, before anything is asked for.
ScriptEntry withChoice(const DialogContext& context, const EditTarget& target,
                       const PaletteChoice& choice) {
    ScriptEntry chosen = target.entry;
    applyChoice(chosen, target.slot, choice, luFunctions(context));
    Step& action = slotFields(chosen, target.slot);
    if (target.onceHidden && action.code == CommandCode::Type) action.hidden = 1;
    return chosen;
}

// Asks for the parameters of what was chosen. Another command takes the place of the action's only
// when its dialog was accepted; a dialog of the action's own command may keep what it does at once.
bool askForChoice(const DialogContext& context, const EditTarget& target, ScriptEntry& chosen) {
    const bool stays =
        isSameCommand(slotFields(chosen, target.slot), slotFields(target.entry, target.slot));
    const bool accepted =
        askForParameters(context, {chosen, target.slot, target.owner, target.onceHidden});
    if (accepted || stays) target.entry = chosen;
    return accepted;
}

void openTransfer(const DialogContext& context, const EditTarget& target,
                  const PaletteChoice& choice) {
    Step& action = slotFields(target.entry, target.slot);
    context.state.workingTransfer.settings = action.transferSettings;
    if (editTransfer(context, action, transferDirection(menuCommandOf(choice)))) {
        applyChoice(target.entry, target.slot, choice, luFunctions(context));
    }
}

}  // namespace

void loadTransfer(ApplicationState& state, const Step& action) {
    if (action.code != CommandCode::MenuCommand || !isFileTransfer(action.commandId)) return;
    state.workingTransfer = transferInputs(action);
}

ActionPlace placeOf(const EditTarget& target) {
    if (target.entry.code == CommandCode::WatchFor) {
        return {CommandCode::WatchFor, target.slot};
    }
    const bool compares = target.owner == ActionOwner::IfInputIs;
    return {compares ? CommandCode::IfInputIs : CommandCode::WaitFor, target.slot};
}

std::optional<Message> refusalOf(const DialogContext& context, const EditTarget& target,
                                 const PaletteChoice& choice) {
    ApplicationState& state = context.state;
    const ActionPlace place = placeOf(target);
    const auto refusal = refusalOf(choice, place.owner, state.currentHostType);
    if (!refusal) return std::nullopt;
    return refusalMessage(*refusal, place, state.language.textSource());
}

bool acceptChoice(const DialogContext& context, const EditTarget& target,
                  const PaletteChoice& choice) {
    ScriptEntry chosen = withChoice(context, target, choice);
    if (lacksParameters(slotFields(chosen, target.slot)))
        return askForChoice(context, target, chosen);
    target.entry = chosen;
    return true;
}

void openChoice(const DialogContext& context, const EditTarget& target,
                const PaletteChoice& choice) {
    switch (doubleClickAct(choice)) {
        case DoubleClickAct::Nothing: return;
        case DoubleClickAct::EditTransfer: openTransfer(context, target, choice); return;
        case DoubleClickAct::ChooseAndEdit: break;
    }
    if (const auto refusal = refusalOf(context, target, choice)) {
        // A Watch_For refuses only at OK.
        const bool tells = placeOf(target).owner != CommandCode::WatchFor;
        if (tells) showMessage(context.window, *refusal);
        return;
    }
    ScriptEntry chosen = withChoice(context, target, choice);
    static_cast<void>(askForChoice(context, target, chosen));
}

}  // namespace quendra
