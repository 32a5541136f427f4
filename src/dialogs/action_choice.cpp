#include "dialogs/action_choice.h"

#include "hosts/menu_catalogue.h"
#include "transfer/transfer_sheet_page.h"

namespace quendra {

namespace {

const LuCatalogue& luFunctions(const DialogContext& context) {
    return context.state.luCatalogues.of(context.state.currentHostType);
}

bool refuse(const DialogContext& context, const ActionPlace& place, const ActionChoice& choice) {
    ApplicationState& state = context.state;
    const auto refusal = refusalOf(choice, place.owner, state.currentHostType);
    if (!refusal) return false;
    showMessage(context.window, refusalMessage(*refusal, place, state.language.textSource()));
    return true;
}

bool editTransfer(const DialogContext& context, const SlotFields& action, std::uint32_t commandId) {
    std::uint8_t host = action.transferHost;
    const auto direction =
        commandId == sendFileCommand ? TransferDirection::Send : TransferDirection::Receive;
    if (!editTransferSettings(context, host, direction)) return false;
    action.transferHost = host;
    action.transferSettings = context.state.workingTransfer.settings;
    return true;
}

// The command is one that asks for something.
bool askForParameters(const DialogContext& context, const EditTarget& target) {
    const SlotFields action = slotFields(target.entry, target.slot);
    if (action.code == CommandCode::WaitFor) return editWatchedWaitFor(context, target.entry);
    if (action.code == CommandCode::MenuCommand && isFileTransfer(action.commandId)) {
        return editTransfer(context, action, action.commandId);
    }
    return editParameters(context, target);
}

void openTransfer(const DialogContext& context, const SlotFields& action,
                  const ActionChoice& choice) {
    const std::uint32_t commandId = firstMenuCommand + static_cast<std::uint32_t>(choice.row);
    context.state.workingTransfer.settings = action.transferSettings;
    context.state.workingTransfer.host = action.transferHost;
    if (editTransfer(context, action, commandId)) {
        applyChoice(action, choice, luFunctions(context));
    }
}

}  // namespace

ActionPlace placeOf(const EditTarget& target) {
    if (target.entry.commandCode == CommandCode::WatchFor) {
        return {CommandCode::WatchFor, target.slot};
    }
    const bool compares = target.owner == ActionOwner::IfInputIs;
    return {compares ? CommandCode::IfInputIs : CommandCode::WaitFor, target.slot};
}

bool acceptChoice(const DialogContext& context, const EditTarget& target,
                  const ActionChoice& choice) {
    if (refuse(context, placeOf(target), choice)) return false;
    const SlotFields action = slotFields(target.entry, target.slot);
    applyChoice(action, choice, luFunctions(context));
    return !lacksParameters(action) || askForParameters(context, target);
}

void openChoice(const DialogContext& context, const EditTarget& target,
                const ActionChoice& choice) {
    const SlotFields action = slotFields(target.entry, target.slot);
    switch (doubleClickAct(choice)) {
        case DoubleClickAct::Nothing: return;
        case DoubleClickAct::EditTransfer: openTransfer(context, action, choice); return;
        case DoubleClickAct::ChooseAndEdit: break;
    }
    const ActionPlace place = placeOf(target);
    // A Watch_For refuses an event without a dialog of its own only at OK.
    const bool valid = !refusalOf(choice, place.owner, context.state.currentHostType);
    if (!valid && place.owner == CommandCode::WatchFor) return;
    if (refuse(context, place, choice)) return;
    applyChoice(action, choice, luFunctions(context));
    static_cast<void>(askForParameters(context, target));
}

}  // namespace quendra
