// The numbers of the user-interface texts. The texts themselves lie in the language libraries
// (language/*.ts).
#pragma once

#include <span>

namespace quendra {

// The number of a text in the language library; every number in use is one of stringIds().
using StringId = int;

// Every string id that the program uses, ascending and without repetition. A language library is
// whole when it holds exactly these; an id that code asks for and that is missing here would be an
// empty text on the screen.
[[nodiscard]] std::span<const StringId> stringIds();

}  // namespace quendra
