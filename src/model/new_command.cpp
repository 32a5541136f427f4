#include "model/new_command.h"

namespace quendra {

namespace {

constexpr std::uint8_t newMaxLength = 255;
constexpr std::uint32_t newWaitSeconds = 3;
constexpr std::uint32_t newReadySeconds = 1;
constexpr ScreenArea wholeScreen = {1, 1, 24, 80};
constexpr ScreenArea topLeft = {1, 1, 0, 0};

// A Wait_For searches with the options of its entry when it is that entry, or what a Watch_For
// waits for. As another action it has none, and those that are there are somebody else's.
bool hasSearch(const ScriptEntry& entry, Slot slot) {
    return slot == Slot::Entry || entry.commandCode == CommandCode::WatchFor;
}

void startSearch(ScriptEntry& entry) {
    entry.searchRow = 1;
    entry.searchColumn = 1;
    entry.exactPosition = 0;
    entry.caseSensitive = 1;
}

// Copy and Paste keep a flag where others have seconds.
bool hasFlagForSeconds(CommandCode code) {
    return code == CommandCode::Copy || code == CommandCode::Paste;
}

}  // namespace

void startCommand(ScriptEntry& entry, Slot slot) {
    const SlotFields f = slotFields(entry, slot);
    switch (f.code) {
        case CommandCode::Wait: f.number = newWaitSeconds; break;
        case CommandCode::WaitReady: f.number = newReadySeconds; break;
        case CommandCode::Input: f.maxLength = newMaxLength; break;
        case CommandCode::Copy: f.area = packArea(wholeScreen); break;
        case CommandCode::Paste: f.area = packArea(topLeft); break;
        case CommandCode::WaitFor:
            if (hasSearch(entry, slot)) startSearch(entry);
            break;
        case CommandCode::None:
        case CommandCode::LuFunction:
        case CommandCode::MenuCommand:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::IfInputIs:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::Return:
        case CommandCode::Run:
        case CommandCode::SetCursor:
        case CommandCode::Type:
        case CommandCode::WaitUntil:
        case CommandCode::WatchFor:
        case CommandCode::ExpressLogon: break;
    }
}

ScriptEntry newCommand(CommandCode code) {
    ScriptEntry entry;
    entry.commandCode = code;
    entry.maxLength = newMaxLength;
    if (!hasFlagForSeconds(code)) entry.number = newWaitSeconds;
    startCommand(entry, Slot::Entry);
    return entry;
}

}  // namespace quendra
