// Which dialog edits what.
#include "dialogs/parameter_dialogs.h"

#include "dialogs/command_dialogs.h"
#include "dialogs/transfer/transfer_sheet_page.h"
#include "model/menu_commands.h"

namespace quendra {

namespace {

// A new transfer starts from the settings last shown or edited; one that has settings of its own
// starts from those.
bool startsFromOwnSettings(const ApplicationState& state, const EditTarget& target) {
    const bool existingEntry = state.editing && target.slot == Slot::Entry;
    const FileTransferSettings blank;
    return existingEntry || slotFields(target.entry, target.slot).transferSettings != blank;
}

// Actions never nest: Wait_For as what a Watch_For does is the one action with a text of its own.
bool editActionOwner(const DialogContext& context, const EditTarget& target) {
    const CommandCode code = slotFields(target.entry, target.slot).code;
    if (target.slot != Slot::Entry) {
        const bool watched =
            code == CommandCode::WaitFor && target.entry.code == CommandCode::WatchFor;
        return !watched || editWatchedWaitFor(context, target.entry);
    }
    if (code == CommandCode::WaitFor) return editWaitFor(context, target.entry);
    if (code == CommandCode::IfInputIs) return editIfInputIs(context, target.entry);
    return editWatchFor(context, target.entry);
}

}  // namespace

bool editTransfer(const DialogContext& context, Step& fields, TransferDirection direction) {
    TransferInputs& working = context.state.workingTransfer;
    working.host = fields.transferHost;
    working.direction = direction;
    std::uint8_t host = fields.transferHost;
    if (!editTransferSettings(context.state, context.window, host, direction)) return false;
    working.host = host;
    fields.transferHost = host;
    fields.transferSettings = working.settings;
    return true;
}

bool editParameters(const DialogContext& context, const EditTarget& target) {
    Step& fields = slotFields(target.entry, target.slot);
    if (ownsActions(fields.code)) return editActionOwner(context, target);
    if (fields.code == CommandCode::MenuCommand && isFileTransfer(fields.commandId)) {
        if (startsFromOwnSettings(context.state, target)) {
            context.state.workingTransfer.settings = fields.transferSettings;
        }
        return editTransfer(context, fields, transferDirection(fields.commandId));
    }
    const auto dialog = makeCommandDialog(context, target);
    return dialog == nullptr || dialog->run();
}

}  // namespace quendra
