// How a script marks what a merge could not decide: three Comments around and between the two
// sides.
#pragma once

#include <algorithm>
#include <string_view>

namespace quendra {

inline constexpr std::string_view conflictStart = "<<<<<<<";
inline constexpr std::string_view conflictMiddle = "=======";
inline constexpr std::string_view conflictEnd = ">>>>>>>";

/// Whether the text of a Comment is this mark, alone or with a name behind it.
[[nodiscard]] constexpr bool isConflictMark(std::string_view text, std::string_view mark) {
    return text.starts_with(mark) && (text.size() == mark.size() || text[mark.size()] == ' ');
}

/// The name behind a mark; empty where there is none.
[[nodiscard]] constexpr std::string_view conflictSide(std::string_view text) {
    return text.substr(std::min(text.size(), conflictStart.size() + 1));
}

}  // namespace quendra
