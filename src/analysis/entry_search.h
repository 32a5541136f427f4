// Which entries hold a text: in the line that the list shows, or in a field that it does not show.
#pragma once

#include "analysis/entry_display.h"
#include "model/script.h"

#include <string_view>
#include <vector>

namespace quendra {

/// Indexes of the entries with this text (UTF-8) in their display line or in any text of theirs or
/// of their actions, without regard to case; ascending. Hidden texts are never looked into, since
/// an answer would give them away letter by letter. None for the empty text.
[[nodiscard]] std::vector<std::size_t> findEntries(const Script& script,
                                                   const HiddenTextCipher& cipher,
                                                   const DisplayNames& names,
                                                   std::string_view text);

}  // namespace quendra
