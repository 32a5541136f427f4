// The names of the JSON form that are not those of the fields.
#pragma once

#include "model/command_catalogue.h"

#include <optional>
#include <string_view>

namespace quendra {

/// The whole block of a transfer's settings as base64, for bytes that no field tells.
inline constexpr const char* transferBlockName = "block";

/// The keyword of a Script Event, "LU_Function", "Menu_Command" or "None".
[[nodiscard]] std::string_view jsonCommandName(CommandCode code);
[[nodiscard]] std::optional<CommandCode> commandOfJsonName(std::string_view name);

}  // namespace quendra
