// Fingerprints of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace quendra {

/// The first `digits` (at most 64) hexadecimal digits of the SHA-256 of the bytes.
[[nodiscard]] std::string sha256Digits(std::span<const std::uint8_t> bytes, std::size_t digits);

}  // namespace quendra
