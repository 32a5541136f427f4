// Bytes as text, for forms of a script that are text.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// The standard alphabet, padded, on one line.
[[nodiscard]] std::string base64Of(std::span<const std::uint8_t> bytes);

/// None for anything that base64Of would not give.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> bytesOfBase64(std::string_view text);

}  // namespace quendra
