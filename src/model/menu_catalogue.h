// The 68 commands of the emulator's own menu that a script can choose.
#pragma once

#include "text/language_library.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace quendra {

inline constexpr std::uint32_t firstMenuCommand = 201;
inline constexpr std::size_t menuCommandCount = 68;

/// The names in code order; palette row n is code 201 + n.
struct MenuCommandCatalogue {
    std::array<std::string, menuCommandCount> names;
};
[[nodiscard]] MenuCommandCatalogue buildMenuCommandCatalogue(const TextSource& texts);

/// The text id of a menu command's name; 0 for a code outside 201 to 268.
[[nodiscard]] StringId menuCommandNameId(std::uint32_t code);

/// The name (UTF-8) of a code; "<Menu Command 300>" for a code outside 201 to 268, which only a
/// foreign file holds.
[[nodiscard]] std::string menuCommandName(const MenuCommandCatalogue& catalogue,
                                          std::uint32_t code);

/// True for the seven codes that take a file name or transfer settings.
[[nodiscard]] bool menuCommandTakesParameters(std::uint32_t code);

}  // namespace quendra
