// The kinds of script steps and the fixed catalogue of the twenty Script Events.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace quendra {

/// The kind of an entry or of one of its actions, as one byte in memory and in the file.
enum class CommandCode : std::uint8_t {
    None = 0,
    LuFunction = 1,
    MenuCommand = 2,
    Beep = 4,
    ClearWatch = 5,
    Comment = 6,
    Goto = 7,
    Input = 8,
    IfInputIs = 9,
    Label = 10,
    Message = 11,
    Return = 12,
    Run = 13,
    SetCursor = 14,
    Type = 15,
    Wait = 16,
    WaitFor = 17,
    WaitReady = 18,
    WaitUntil = 19,
    WatchFor = 20,
    ExpressLogon = 21,
    Copy = 22,
    Paste = 23,
};

/// True for the codes that name a kind: 0 to 23 without 3. No other code is ever held in an entry.
[[nodiscard]] constexpr bool isCommandCode(std::uint32_t value) {
    return value <= 23 && value != 3;
}

/// True for the twenty Script Events (codes 4 to 23).
[[nodiscard]] bool isScriptEvent(CommandCode code);

/// True for the three commands that carry actions: Wait_For, If_Input_Is and Watch_For.
[[nodiscard]] constexpr bool ownsActions(CommandCode code) {
    return code == CommandCode::WaitFor || code == CommandCode::IfInputIs ||
           code == CommandCode::WatchFor;
}

/// True for a command that an action of `owner` may be: none that carries actions itself, but a
/// Watch_For may run a Wait_For.
[[nodiscard]] constexpr bool mayBeAction(CommandCode code, CommandCode owner) {
    return !ownsActions(code) || (code == CommandCode::WaitFor && owner == CommandCode::WatchFor);
}

struct ScriptEventInfo {
    CommandCode code;
    std::string_view keyword;
    int bitmapId;
};

/// The Script Events in palette order, which is not code order.
[[nodiscard]] std::span<const ScriptEventInfo> scriptEvents();

/// The keyword of a Script Event ("Wait_For"); empty for every other code.
[[nodiscard]] std::string_view commandKeyword(CommandCode code);

/// The Script Event of a keyword, compared with regard to case; none when there is none.
[[nodiscard]] std::optional<CommandCode> commandOfKeyword(std::string_view keyword);

/// Bitmap of an LU function; Script Events have code + 106, menu commands their own identifier.
inline constexpr int luFunctionBitmapId = 103;

/// The variables that Input stores into and If_Input_Is compares, by kind 0 to 5.
inline constexpr std::array<std::string_view, 6> inputVariableNames = {
    "InputStr", "VarPassword", "VarUserId", "VarScreenText", "VarStaticText", "VarUserPrompt"};

/// The name of a variable kind; empty for a kind above 5, which only a damaged file holds.
[[nodiscard]] std::string_view inputVariableName(std::uint8_t kind);

}  // namespace quendra
