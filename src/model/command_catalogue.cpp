#include "model/command_catalogue.h"

#include <algorithm>

namespace quendra {

namespace {

constexpr std::array catalogue = std::to_array<ScriptEventInfo>({
    {CommandCode::Beep, "Beep", 110},
    {CommandCode::ClearWatch, "Clear_Watch", 111},
    {CommandCode::Comment, "Comment", 112},
    {CommandCode::Copy, "Copy", 128},
    {CommandCode::ExpressLogon, "Express_Logon", 127},
    {CommandCode::Goto, "Goto", 113},
    {CommandCode::Input, "Input", 114},
    {CommandCode::IfInputIs, "If_Input_Is", 115},
    {CommandCode::Label, "Label", 116},
    {CommandCode::Message, "Message", 117},
    {CommandCode::Paste, "Paste", 129},
    {CommandCode::Return, "Return", 118},
    {CommandCode::Run, "Run", 119},
    {CommandCode::SetCursor, "Set_Cursor", 120},
    {CommandCode::Type, "Type", 121},
    {CommandCode::Wait, "Wait", 122},
    {CommandCode::WaitFor, "Wait_For", 123},
    {CommandCode::WaitReady, "Wait_Ready", 124},
    {CommandCode::WaitUntil, "Wait_Until", 125},
    {CommandCode::WatchFor, "Watch_For", 126},
});

// From Beep on every code is a Script Event.
constexpr std::size_t eventCount() {
    std::size_t count = 0;
    for (auto code = static_cast<std::uint32_t>(CommandCode::Beep); isCommandCode(code); ++code)
        ++count;
    return count;
}
static_assert(catalogue.size() == eventCount(), "each Script Event has its row");

}  // namespace

bool isScriptEvent(CommandCode code) {
    return code >= CommandCode::Beep && isCommandCode(static_cast<std::uint32_t>(code));
}

std::span<const ScriptEventInfo> scriptEvents() {
    return catalogue;
}

std::string_view commandKeyword(CommandCode code) {
    const auto* row = std::ranges::find(catalogue, code, &ScriptEventInfo::code);
    return row == catalogue.end() ? std::string_view{} : row->keyword;
}

std::optional<CommandCode> commandOfKeyword(std::string_view keyword) {
    const auto* row = std::ranges::find(catalogue, keyword, &ScriptEventInfo::keyword);
    if (row == catalogue.end()) return std::nullopt;
    return row->code;
}

std::string_view inputVariableName(std::uint8_t kind) {
    return kind < inputVariableNames.size() ? inputVariableNames[kind] : std::string_view{};
}

}  // namespace quendra
