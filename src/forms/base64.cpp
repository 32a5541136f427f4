#include "forms/base64.h"

#include <algorithm>

namespace quendra::cli {

namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}  // namespace

std::string base64Of(std::span<const std::uint8_t> bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const auto group = bytes.subspan(i, std::min<std::size_t>(3, bytes.size() - i));
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            bits = bits << 8 | (k < group.size() ? group[k] : 0u);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            text += k <= group.size() ? alphabet[bits >> (18 - 6 * k) & 0x3F] : '=';
        }
    }
    return text;
}

std::optional<std::vector<std::uint8_t>> bytesOfBase64(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : text.substr(0, text.find('='))) {
        const std::size_t value = alphabet.find(c);
        if (value == std::string_view::npos) return std::nullopt;
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        count += 6;
        if (count >= 8) bytes.push_back(static_cast<std::uint8_t>(bits >> (count -= 8)));
    }
    // Padding and the bits left over have one right form.
    if (base64Of(bytes) != text) return std::nullopt;
    return bytes;
}

}  // namespace quendra::cli
