// What a slot's command is called in the JSON form.
#pragma once

#include "model/command_catalogue.h"

#include <optional>
#include <string_view>

namespace quendra::cli {

/// The keyword of a Script Event, "LU_Function", "Menu_Command" or "None".
[[nodiscard]] std::string_view jsonCommandName(CommandCode code);
[[nodiscard]] std::optional<CommandCode> commandOfJsonName(std::string_view name);

}  // namespace quendra::cli
