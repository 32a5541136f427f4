// The texts that the user meets together: a menu, a dialog, the names of one host type. Within a
// group mnemonics or names must not collide, which no single text shows.
#pragma once

#include "platform/string_ids.h"

#include <string>
#include <vector>

namespace quendra::test {

struct TextGroup {
    std::string name;
    std::vector<StringId> ids;
    // Texts of the same group that the program holds itself, the same in every language.
    std::vector<std::string> literals;
};

// One group per menu, and per dialog and command that gives it other labels, with every text that
// carries a mnemonic.
const std::vector<TextGroup>& mnemonicGroups();

// The menu commands, and the LU functions of each host type that takes their names from the
// library.
const std::vector<TextGroup>& nameGroups();

}  // namespace quendra::test
