#include "dialogs/action_rules.h"

#include "model/menu_commands.h"
#include "model/new_command.h"
#include "text/text_ids.h"

#include <algorithm>

namespace quendra {

namespace {

bool comparesInput(const ActionPlace& place) {
    return place.owner == CommandCode::IfInputIs;
}

std::string nothingSelectedText(const ActionPlace& place) {
    const std::string searched = "search string or <Lu Function> is ";
    const std::string compared = "compare string and/or variable(s) are ";
    const std::string negation = place.slot == Slot::Else ? "not " : "";
    return "Select an action to perform when the " +
           (comparesInput(place) ? compared + negation + "equal." : searched + negation + "found.");
}

Message watchForRefusal(ActionRefusal refusal, const TextSource& texts) {
    switch (refusal) {
        case ActionRefusal::NothingSelected:
            return {texts(textid::watchForNeedsAction), texts(textid::watchForRefusalTitle)};
        case ActionRefusal::CarriesActions:
            return {texts(textid::watchForActionRefused), texts(textid::watchForRefusalTitle)};
        case ActionRefusal::NotInVt:
            return {texts(textid::refusedMenuCommand), texts(textid::refusedMenuCommandTitle)};
    }
    return {};
}

// Seconds for a Wait and restores for a Wait_Ready, but for these the length of a prompt and a
// flag.
bool hasOwnNumber(CommandCode code) {
    return code == CommandCode::Input || code == CommandCode::Copy || code == CommandCode::Paste;
}

// Copy and Paste share theirs.
CommandCode numberKind(CommandCode code) {
    return code == CommandCode::Paste ? CommandCode::Copy : code;
}

// Of a command that makes place for another.
void dropOwnFields(Step& action, CommandCode before) {
    const bool hides = before == CommandCode::Type || before == CommandCode::Input;
    if (hides && action.hidden == 1) setText(action, {});
    if (hides) action.hidden = 0;
    if (before == CommandCode::Input) setPrompt(action, {});
    if (hasOwnNumber(before) || hasOwnNumber(action.code)) action.number = 0;
}

bool lacksTransferFiles(const FileTransferSettings& settings) {
    return transferText(settings, transfer::hostFileName).empty() ||
           transferText(settings, transfer::pcFileName).empty();
}

bool menuCommandLacksParameters(const Step& action) {
    if (isFileTransfer(action.commandId)) return lacksTransferFiles(action.transferSettings);
    return takesFileName(action.commandId) && action.textLength == 0;
}

}  // namespace

std::optional<ActionRefusal> refusalOf(const PaletteChoice& choice, CommandCode owner,
                                       HostType hostType) {
    if (choice.row < 0) return ActionRefusal::NothingSelected;
    if (!mayBeAction(commandOf(choice), owner)) return ActionRefusal::CarriesActions;
    if (isRefused(choice, hostType)) return ActionRefusal::NotInVt;
    return std::nullopt;
}

Message refusalMessage(ActionRefusal refusal, const ActionPlace& place, const TextSource& texts) {
    if (place.owner == CommandCode::WatchFor) return watchForRefusal(refusal, texts);
    switch (refusal) {
        case ActionRefusal::NothingSelected: return {nothingSelectedText(place), "Script Info"};
        case ActionRefusal::CarriesActions:
            return {"If_Input_Is, Wait_For and Watch_For events are not valid for this operation.",
                    "Script Info"};
        case ActionRefusal::NotInVt:
            return {"Menu Command is not compatible with Script Mode.", "Script Edit Info"};
    }
    return {};
}

std::string actionCaption(const ActionPlace& place) {
    if (place.owner == CommandCode::WatchFor) return {};
    const bool otherwise = place.slot == Slot::Else;
    if (comparesInput(place)) {
        return otherwise ? "If_Input_Is Not Equal Action" : "If_Input_Is Equal Action";
    }
    return otherwise ? "Wait_For Not Found Action" : "Wait_For Found Action";
}

void applyChoice(ScriptEntry& entry, Slot slot, const PaletteChoice& choice,
                 const LuCatalogue& luFunctions) {
    Step& action = slotFields(entry, slot);
    const CommandCode before = action.code;
    takeCommand(action, choice, luFunctions);
    if (numberKind(action.code) == numberKind(before)) return;
    dropOwnFields(action, before);
    const bool searchesNowhere = entry.searchRow == 0;
    if (action.code == CommandCode::WaitFor && searchesNowhere) {
        startCommand(entry, slot);
    }
}

void takeBackAction(ScriptEntry& entry, Slot slot) {
    const ScriptEntry fresh = newCommand(entry.code);
    slotFields(entry, slot) = slotFields(fresh, slot);
}

bool lacksParameters(const Step& action) {
    switch (action.code) {
        case CommandCode::None:
        case CommandCode::LuFunction:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return:
        case CommandCode::IfInputIs:
        case CommandCode::WatchFor: return false;
        case CommandCode::MenuCommand: return menuCommandLacksParameters(action);
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::Input:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::Run:
        case CommandCode::SetCursor:
        case CommandCode::Type:
        case CommandCode::WaitFor:
        case CommandCode::ExpressLogon: return action.textLength == 0 && !action.kept;
        case CommandCode::Wait:
        case CommandCode::WaitReady: return action.number == 0;
        case CommandCode::WaitUntil: return action.waitUntil.day == 0;
        case CommandCode::Copy:
        case CommandCode::Paste: return action.area == 0;
    }
    return false;
}

DoubleClickAct doubleClickAct(const PaletteChoice& choice) {
    if (choice.row < 0 || choice.palette == Palette::LuFunctions) return DoubleClickAct::Nothing;
    if (choice.palette == Palette::ScriptEvents) return DoubleClickAct::ChooseAndEdit;
    const std::uint32_t commandId = menuCommandOf(choice);
    if (isFileTransfer(commandId)) return DoubleClickAct::EditTransfer;
    return takesFileName(commandId) ? DoubleClickAct::ChooseAndEdit : DoubleClickAct::Nothing;
}

}  // namespace quendra
