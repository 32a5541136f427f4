// What every form of a script calls a command.
#pragma once

#include "model/command_catalogue.h"

#include <optional>
#include <string_view>

namespace quendra {

/// The keyword of a Script Event, "LU_Function", "Menu_Command" or "None".
[[nodiscard]] std::string_view commandName(CommandCode code);
/// The command of such a name; none when there is none.
[[nodiscard]] std::optional<CommandCode> commandOfName(std::string_view name);

}  // namespace quendra
