// Scripts of 4096 entries to measure with.
#pragma once

#include "model/script.h"
#include "scriptfile/hidden_text.h"

#include <string>
#include <string_view>

namespace quendra::bench {

/// What an administrator writes: waits with branches, typed texts, keys, comments; about 30 bytes
/// an entry.
[[nodiscard]] Script typicalScript(const HiddenTextCipher& cipher);
/// Every entry as large as the format allows, about 3 KB each.
[[nodiscard]] Script largestScript(const HiddenTextCipher& cipher);
/// Hidden Type entries of one text length.
[[nodiscard]] Script hiddenScript(const HiddenTextCipher& cipher, std::size_t textLength);

/// The script with every `each`th step changed from the `first` on: a text becomes another one,
/// that begins with the mark.
[[nodiscard]] Script changedScript(const Script& script, std::size_t first, std::size_t each,
                                   std::string_view mark);

}  // namespace quendra::bench
