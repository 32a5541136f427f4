// The file's text encoding, windows-1252, and the UTF-8 that everything seen or typed uses.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quendra {

/// UTF-8 of windows-1252 bytes. Total: the five bytes that the encoding leaves undefined (81, 8D,
/// 8F, 90, 9D) become the C1 control characters of the same number, so that nothing is lost on the
/// way back.
[[nodiscard]] std::string utf8FromWindows1252(std::string_view bytes);

/// windows-1252 of UTF-8 text; none when the text is not valid UTF-8 or has a character that the
/// encoding lacks.
[[nodiscard]] std::optional<std::string> windows1252FromUtf8(std::string_view text);

/// The windows-1252 byte of one character, or none when the encoding lacks it.
[[nodiscard]] std::optional<char> windows1252FromCharacter(char32_t character);

/// The text with every control character (C0, DEL, C1) written as \xNN, so that it stays on one
/// line and cannot drive a terminal. UTF-8 in and out; invalid bytes pass through.
[[nodiscard]] std::string escapeControlCharacters(std::string_view utf8);

/// At most the first `longest` characters of a UTF-8 text, with an ellipsis behind them when there
/// are more.
[[nodiscard]] std::string shortened(std::string_view utf8, std::size_t longest);

}  // namespace quendra
