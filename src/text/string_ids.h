// The numbers of the user-interface texts. The texts themselves, with the names that they have in
// "text/text_ids.h", lie in the language libraries (language/*.ts).
#pragma once

#include <span>

namespace quendra {

// The number of a text in the language library; every number in use is one of stringIds().
using StringId = int;

// Every string id of the language libraries, ascending and without repetition: each of them holds
// exactly these.
[[nodiscard]] std::span<const StringId> stringIds();

}  // namespace quendra
