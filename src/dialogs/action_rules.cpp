#include "dialogs/action_rules.h"

#include "model/menu_catalogue.h"

#include <algorithm>

namespace quendra {

namespace {

CommandCode eventOf(const ActionChoice& choice) {
    return scriptEvents()[static_cast<std::size_t>(choice.row)].code;
}

std::uint32_t menuCommandOf(const ActionChoice& choice) {
    return firstMenuCommand + static_cast<std::uint32_t>(choice.row);
}

int rowOfEvent(CommandCode code) {
    const auto events = scriptEvents();
    const auto found = std::ranges::find(events, code, &ScriptEventInfo::code);
    return found == events.end() ? -1 : static_cast<int>(found - events.begin());
}

int rowOfMenuCommand(std::uint32_t commandId) {
    const bool known =
        commandId >= firstMenuCommand && commandId < firstMenuCommand + menuCommandCount;
    return known ? static_cast<int>(commandId - firstMenuCommand) : -1;
}

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
        case ActionRefusal::NothingSelected: return {texts(13758), texts(13757)};
        case ActionRefusal::CarriesActions: return {texts(13759), texts(13757)};
        case ActionRefusal::NotInVt: return {texts(13732), texts(13733)};
    }
    return {};
}

void dropHiddenText(const SlotFields& action) {
    setText(action, {});
    action.hidden = 0;
}

void startSearch(ScriptEntry& entry) {
    if (entry.searchRow != 0) return;
    entry.searchRow = 1;
    entry.searchColumn = 1;
    entry.exactPosition = 0;
    entry.caseSensitive = 1;
}

bool lacksTransferFiles(const FileTransferSettings& settings) {
    return transferText(settings, transfer::hostFileName).empty() ||
           transferText(settings, transfer::pcFileName).empty();
}

bool menuCommandLacksParameters(const ConstSlotFields& action) {
    if (isFileTransfer(action.commandId)) return lacksTransferFiles(action.transferSettings);
    return takesFileName(action.commandId) && action.textLength == 0;
}

}  // namespace

ActionChoice choiceOf(const ConstSlotFields& action, const LuCatalogue& luFunctions) {
    switch (action.code) {
        case CommandCode::None: return {ActionList::ScriptEvents, -1};
        case CommandCode::LuFunction: {
            const auto row = luFunctions.rowOf({action.row, action.column});
            return {ActionList::LuFunctions, row ? static_cast<int>(*row) : -1};
        }
        case CommandCode::MenuCommand:
            return {ActionList::MenuCommands, rowOfMenuCommand(action.commandId)};
        default: return {ActionList::ScriptEvents, rowOfEvent(action.code)};
    }
}

std::optional<ActionRefusal> refusalOf(const ActionChoice& choice, CommandCode owner,
                                       HostType hostType) {
    if (choice.row < 0) return ActionRefusal::NothingSelected;
    if (choice.list == ActionList::ScriptEvents && !mayBeAction(eventOf(choice), owner)) {
        return ActionRefusal::CarriesActions;
    }
    if (choice.list == ActionList::MenuCommands && hostType == HostType::VT &&
        menuCommandOf(choice) == menuCommandRefusedInVt) {
        return ActionRefusal::NotInVt;
    }
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

void applyChoice(ScriptEntry& entry, Slot slot, const ActionChoice& choice,
                 const LuCatalogue& luFunctions) {
    const SlotFields action = slotFields(entry, slot);
    const bool wasWaitFor = action.code == CommandCode::WaitFor;
    const bool wasHidden = isHiddenText(action);
    switch (choice.list) {
        case ActionList::ScriptEvents: setCode(action, eventOf(choice)); break;
        case ActionList::LuFunctions: {
            const LuKey key = luFunctions.rows[static_cast<std::size_t>(choice.row)].key;
            setCode(action, CommandCode::LuFunction);
            action.row = key.group;
            action.column = key.number;
            break;
        }
        case ActionList::MenuCommands:
            setCode(action, CommandCode::MenuCommand);
            action.commandId = menuCommandOf(choice);
            break;
    }
    if (wasHidden && action.code != CommandCode::Type) dropHiddenText(action);
    if (action.code == CommandCode::WaitFor && !wasWaitFor) startSearch(entry);
}

bool lacksParameters(const ConstSlotFields& action) {
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

DoubleClickAct doubleClickAct(const ActionChoice& choice) {
    if (choice.row < 0 || choice.list == ActionList::LuFunctions) return DoubleClickAct::Nothing;
    if (choice.list == ActionList::ScriptEvents) return DoubleClickAct::ChooseAndEdit;
    const std::uint32_t commandId = menuCommandOf(choice);
    if (isFileTransfer(commandId)) return DoubleClickAct::EditTransfer;
    return takesFileName(commandId) ? DoubleClickAct::ChooseAndEdit : DoubleClickAct::Nothing;
}

}  // namespace quendra
