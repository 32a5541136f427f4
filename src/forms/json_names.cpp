#include "forms/json_names.h"

namespace quendra::cli {

namespace {

constexpr std::string_view noneName = "None";
constexpr std::string_view luFunctionName = "LU_Function";
constexpr std::string_view menuCommandName = "Menu_Command";

}  // namespace

std::string_view jsonCommandName(CommandCode code) {
    switch (code) {
        case CommandCode::None: return noneName;
        case CommandCode::LuFunction: return luFunctionName;
        case CommandCode::MenuCommand: return menuCommandName;
        default: return commandKeyword(code);
    }
}

std::optional<CommandCode> commandOfJsonName(std::string_view name) {
    if (name == noneName) return CommandCode::None;
    if (name == luFunctionName) return CommandCode::LuFunction;
    if (name == menuCommandName) return CommandCode::MenuCommand;
    return commandOfKeyword(name);
}

}  // namespace quendra::cli
