#include "dialogs/action_choice.h"

#include "dialogs/transfer/transfer_sheet_page.h"
#include "model/menu_catalogue.h"

namespace quendra {

namespace {

const LuCatalogue& luFunctions(const DialogContext& context) {
    return context.state.luCatalogues.of(context.state.currentHostType);
}

// On the working settings as they are.
bool editTransfer(const DialogContext& context, const SlotFields& action, std::uint32_t commandId) {
    TransferInputs& working = context.state.workingTransfer;
    working.host = action.transferHost;
    working.direction =
        commandId == sendFileCommand ? TransferDirection::Send : TransferDirection::Receive;
    std::uint8_t host = action.transferHost;
    if (!editTransferSettings(context.state, context.window, host, working.direction)) return false;
    working.host = host;
    action.transferHost = host;
    action.transferSettings = working.settings;
    return true;
}

// The command is one that asks for something.
bool askForParameters(const DialogContext& context, const EditTarget& target) {
    const SlotFields action = slotFields(target.entry, target.slot);
    const bool transfers =
        action.code == CommandCode::MenuCommand && isFileTransfer(action.commandId);
    return transfers ? editTransfer(context, action, action.commandId)
                     : editParameters(context, target);
}

void openTransfer(const DialogContext& context, const EditTarget& target,
                  const ActionChoice& choice) {
    const SlotFields action = slotFields(target.entry, target.slot);
    const std::uint32_t commandId = firstMenuCommand + static_cast<std::uint32_t>(choice.row);
    context.state.workingTransfer.settings = action.transferSettings;
    if (editTransfer(context, action, commandId)) {
        applyChoice(target.entry, target.slot, choice, luFunctions(context));
    }
}

}  // namespace

ActionPlace placeOf(const EditTarget& target) {
    if (target.entry.code == CommandCode::WatchFor) {
        return {CommandCode::WatchFor, target.slot};
    }
    const bool compares = target.owner == ActionOwner::IfInputIs;
    return {compares ? CommandCode::IfInputIs : CommandCode::WaitFor, target.slot};
}

std::optional<Message> refusalOf(const DialogContext& context, const EditTarget& target,
                                 const ActionChoice& choice) {
    ApplicationState& state = context.state;
    const ActionPlace place = placeOf(target);
    const auto refusal = refusalOf(choice, place.owner, state.currentHostType);
    if (!refusal) return std::nullopt;
    return refusalMessage(*refusal, place, state.language.textSource());
}

bool acceptChoice(const DialogContext& context, const EditTarget& target,
                  const ActionChoice& choice) {
    applyChoice(target.entry, target.slot, choice, luFunctions(context));
    return !lacksParameters(slotFields(target.entry, target.slot)) ||
           askForParameters(context, target);
}

void openChoice(const DialogContext& context, const EditTarget& target,
                const ActionChoice& choice) {
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
