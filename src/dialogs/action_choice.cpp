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
    applyChoice(target.entry, target.slot, choice, luFunctions(context));
    return !lacksParameters(slotFields(target.entry, target.slot)) ||
           askForParameters(context, target);
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
    applyChoice(target.entry, target.slot, choice, luFunctions(context));
    static_cast<void>(askForParameters(context, target));
}

}  // namespace quendra
