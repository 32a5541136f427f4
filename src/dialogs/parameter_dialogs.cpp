// Which dialog edits what.
#include "dialogs/parameter_dialogs.h"

#include "dialogs/command_dialogs.h"
#include "dialogs/transfer/transfer_sheet_page.h"

namespace quendra {

namespace {

// A new transfer starts from the settings last shown or edited; one that has settings of its own
// starts from those.
bool startsFromOwnSettings(const ApplicationState& state, const EditTarget& target) {
    const bool existingEntry = state.editing && target.slot == Slot::Entry;
    const FileTransferSettings blank;
    return existingEntry || slotFields(target.entry, target.slot).transferSettings != blank;
}

bool editTransfer(const DialogContext& context, const EditTarget& target) {
    const SlotFields fields = slotFields(target.entry, target.slot);
    TransferInputs& working = context.state.workingTransfer;
    if (startsFromOwnSettings(context.state, target)) working.settings = fields.transferSettings;
    working.host = fields.transferHost;
    working.direction =
        fields.commandId == sendFileCommand ? TransferDirection::Send : TransferDirection::Receive;
    std::uint8_t host = fields.transferHost;
    if (!editTransferSettings(context.state, context.window, host, working.direction)) return false;
    working.host = host;
    fields.transferHost = host;
    fields.transferSettings = working.settings;
    return true;
}

// Actions never nest: Wait_For as what a Watch_For does is the one action with a text of its own.
bool editActionOwner(const DialogContext& context, const EditTarget& target) {
    const bool isEntry = target.slot == Slot::Entry;
    switch (slotFields(target.entry, target.slot).code) {
        case CommandCode::WaitFor:
            if (isEntry) return editWaitFor(context, target.entry);
            if (target.entry.code != CommandCode::WatchFor) return true;
            return editWatchedWaitFor(context, target.entry);
        case CommandCode::IfInputIs: return !isEntry || editIfInputIs(context, target.entry);
        case CommandCode::WatchFor: return !isEntry || editWatchFor(context, target.entry);
        default: return true;
    }
}

}  // namespace

bool editParameters(const DialogContext& context, const EditTarget& target) {
    const SlotFields fields = slotFields(target.entry, target.slot);
    if (ownsActions(fields.code)) return editActionOwner(context, target);
    if (fields.code == CommandCode::MenuCommand && isFileTransfer(fields.commandId)) {
        return editTransfer(context, target);
    }
    const auto dialog = makeCommandDialog(context, target);
    return dialog == nullptr || dialog->run();
}

}  // namespace quendra
