// Filling the %s and %d places of a text that someone else wrote.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace quendra {

// Gives `format` with its %s, %d and %u places replaced, from left to right, by `args`, and "%%" by
// "%". Meant for texts of the language library, which are never passed to printf: a translator's
// stray or surplus place must not read memory. What is no such place, and a place for which no
// argument is left, stands as it is; surplus arguments are dropped. The arguments are not searched
// for places themselves.
[[nodiscard]] std::string formatText(std::string_view format,
                                     std::initializer_list<std::string> args);

}  // namespace quendra
