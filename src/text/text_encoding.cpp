#include "text/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quendra {

namespace {

// Characters of the bytes 80 to 9F; all other bytes are the character of the same number.
constexpr std::array<char32_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Takes one character off the front. Overlong forms, surrogates and everything above U+FFFF are
// refused: no character of the encoding needs them.
std::optional<char32_t> takeCharacter(std::string_view& text) {
    const auto byteAt = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const auto isTail = [&](std::size_t i) {
        return i < text.size() && (byteAt(i) & 0xC0) == 0x80;
    };
    const std::uint8_t lead = byteAt(0);
    if (lead < 0x80) {
        text.remove_prefix(1);
        return lead;
    }
    if ((lead & 0xE0) == 0xC0 && isTail(1)) {
        const char32_t c = (char32_t{lead} & 0x1F) << 6 | (byteAt(1) & 0x3Fu);
        text.remove_prefix(2);
        return c >= 0x80 ? std::optional(c) : std::nullopt;
    }
    if ((lead & 0xF0) == 0xE0 && isTail(1) && isTail(2)) {
        const char32_t c =
            (char32_t{lead} & 0x0F) << 12 | (byteAt(1) & 0x3Fu) << 6 | (byteAt(2) & 0x3Fu);
        text.remove_prefix(3);
        return c >= 0x800 && (c < 0xD800 || c > 0xDFFF) ? std::optional(c) : std::nullopt;
    }
    return std::nullopt;
}

void appendEscape(std::string& out, std::uint8_t control) {
    constexpr std::string_view digits = "0123456789abcdef";
    out += "\\x";
    out += digits[control >> 4];
    out += digits[control & 0xF];
}

}  // namespace

std::string utf8FromWindows1252(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<std::uint8_t>(byte);
        appendUtf8(out, value >= 0x80 && value < 0xA0 ? upperControls[value - 0x80u] : value);
    }
    return out;
}

std::optional<char> windows1252FromCharacter(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* found = std::ranges::find(upperControls, character);
    if (found == upperControls.end()) return std::nullopt;
    return static_cast<char>(0x80 + (found - upperControls.begin()));
}

std::optional<std::string> windows1252FromUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        const auto byte = character ? windows1252FromCharacter(*character) : std::nullopt;
        if (!byte) return std::nullopt;
        out += *byte;
    }
    return out;
}

std::string escapeControlCharacters(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(utf8[i]);
        const auto next =
            i + 1 < utf8.size() ? static_cast<std::uint8_t>(utf8[i + 1]) : std::uint8_t{0};
        if (byte < 0x20 || byte == 0x7F) {
            appendEscape(out, byte);
        } else if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {
            appendEscape(out, next);
            ++i;
        } else {
            out += utf8[i];
        }
    }
    return out;
}

std::string shortened(std::string_view utf8, std::size_t longest) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const bool startsCharacter = (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80;
        if (startsCharacter && count++ == longest) {
            return std::string(utf8.substr(0, at)) + "\u2026";
        }
    }
    return std::string(utf8);
}

}  // namespace quendra
