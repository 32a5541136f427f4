#include "model/command_names.h"

#include <algorithm>
#include <array>

namespace quendra {

namespace {

// What has no keyword: no Script Event is called so.
struct CommandName {
    CommandCode code;
    std::string_view name;
};
constexpr std::array otherNames = {
    CommandName{CommandCode::None, "None"},
    CommandName{CommandCode::LuFunction, "LU_Function"},
    CommandName{CommandCode::MenuCommand, "Menu_Command"},
};

}  // namespace

std::string_view commandName(CommandCode code) {
    const auto* row = std::ranges::find(otherNames, code, &CommandName::code);
    return row == otherNames.end() ? commandKeyword(code) : row->name;
}

std::optional<CommandCode> commandOfName(std::string_view name) {
    const auto* row = std::ranges::find(otherNames, name, &CommandName::name);
    return row == otherNames.end() ? commandOfKeyword(name) : row->code;
}

}  // namespace quendra
