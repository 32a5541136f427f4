// The JSON form of a script: lossless, for review, version control and pipelines.
//
// {"hostType": "Mainframe", "entries": [{"command": "Wait_For", ...}, ...]}
#pragma once

#include "hosts/host_type.h"
#include "hosts/lu_catalogue.h"
#include "model/menu_commands.h"
#include "model/script.h"
#include "scriptfile/hidden_text.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <span>
#include <string>

namespace quendra {

/// What printing needs beside the script.
struct JsonPrinting {
    const LuCatalogue& luFunctions;
    const MenuCommandCatalogue& menuCommands;
    const HiddenTextCipher& cipher;
    /// Hidden texts are printed; otherwise they are null, and what comes out cannot be built.
    bool reveal = false;
    /// Why the script is not all that its file holds, which the form then says; empty when it is.
    std::string incomplete;
};

/// Prints the JSON form with every field of every entry, without a line break at its end. A hidden
/// text that the cipher does not open is null with its enciphered bytes beside it.
void printScript(std::ostream& out, const Script& script, HostType hostType,
                 const JsonPrinting& printing);

/// A script made from its JSON form, or why it was refused: entry (from 1), slot and field, what is
/// wrong with it, and where in the text it stands; never the value.
struct ScriptOfJson {
    std::string refusal;
    HostType hostType = HostType::Mainframe;
    Script script;
    /// What the form says of a file that was not whole; empty when it says nothing.
    std::string incomplete;

    [[nodiscard]] bool ok() const { return refusal.empty(); }
};

/// What building needs beside the text.
struct JsonBuilding {
    const HiddenTextCipher& cipher;
    /// The keys of a host type by their names in the form, which are English. Asked only for a key
    /// that is given by its name.
    std::function<LuCatalogue(HostType)> luFunctions;
};

/// The largest script, with every character escaped, stays below; longer texts are not worth
/// reading.
inline constexpr std::size_t maxJsonSize = std::size_t{128} * 1024 * 1024;

/// Reads a text of any bytes. Fields left out are those of a new entry. Gives back the very records
/// that printScript was given when hidden texts were revealed and the cipher is the same.
[[nodiscard]] ScriptOfJson scriptOfJson(std::span<const std::uint8_t> text,
                                        const JsonBuilding& building);

}  // namespace quendra
