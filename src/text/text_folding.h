// Texts without regard to upper and lower case, in all of Unicode.
#pragma once

#include <string>
#include <string_view>

namespace quendra {

/// The UTF-8 text as UTF-16 with the differences of case taken out. A text holds another without
/// regard to case when its folded form holds the other's.
[[nodiscard]] std::u16string foldedText(std::string_view utf8);

}  // namespace quendra
