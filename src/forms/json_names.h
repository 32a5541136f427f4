// The name of the JSON form that is not one of the fields.
#pragma once

namespace quendra {

/// The whole block of a transfer's settings as base64, for bytes that no field tells.
inline constexpr const char* transferBlockName = "block";

}  // namespace quendra
