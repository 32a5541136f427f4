#include "dialogs/command_dialogs.h"

#include "model/menu_commands.h"

namespace quendra {

std::unique_ptr<ParameterDialog> makeCommandDialog(const DialogContext& context,
                                                   const EditTarget& target) {
    Step& fields = slotFields(target.entry, target.slot);
    switch (fields.code) {
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::ExpressLogon:
        case CommandCode::Type: return makeTextDialog(context, target);
        case CommandCode::Wait:
        case CommandCode::WaitReady: return makeWaitDialog(context, target);
        case CommandCode::Run: return makeFileOperationDialog(context, target);
        case CommandCode::MenuCommand:
            if (!takesFileName(fields.commandId)) return nullptr;
            return makeFileOperationDialog(context, target);
        case CommandCode::SetCursor: return makeSetCursorDialog(context, target);
        case CommandCode::Copy: return makeCopyDialog(context, target);
        case CommandCode::Paste: return makePasteDialog(context, target);
        case CommandCode::Input: return makeInputDialog(context, target);
        case CommandCode::WaitUntil: return makeWaitUntilDialog(context, target);
        case CommandCode::None:
        case CommandCode::LuFunction:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return:
        case CommandCode::WaitFor:
        case CommandCode::IfInputIs:
        case CommandCode::WatchFor: break;
    }
    return nullptr;
}

}  // namespace quendra
