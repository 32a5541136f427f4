// The JSON form of a script from any bytes: refused, or a script that its own form gives back.

#include "forms/script_json.h"
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"

#include <cstdint>
#include <cstdlib>
#include <span>
#include <sstream>

namespace {

using namespace quendra;

void require(bool holds) {
    if (!holds) std::abort();
}

const LuCatalogues& luFunctions() {
    static const LuCatalogues catalogues = buildLuCatalogues([](StringId) { return "a key"; });
    return catalogues;
}

const MenuCommandCatalogue& menuCommands() {
    static const MenuCommandCatalogue catalogue =
        buildMenuCommandCatalogue([](StringId) { return "a command"; });
    return catalogue;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const HiddenTextCipher cipher("");
    const JsonBuilding building = {cipher, [](HostType type) { return luFunctions().of(type); }};
    const ScriptOfJson made = scriptOfJson({data, size}, building);
    if (!made.ok()) return 0;

    const ReadResult read = readScript(writeScript(made.script, HostType::Mainframe));
    require(read.isWhole() && read.script == made.script);
    const JsonPrinting printing = {luFunctions().of(made.hostType), menuCommands(), cipher, true};
    std::ostringstream out;
    printScript(out, made.script, made.hostType, printing);
    const std::string printed = out.str();
    const ScriptOfJson remade = scriptOfJson(
        {reinterpret_cast<const std::uint8_t*>(printed.data()), printed.size()}, building);
    require(remade.ok() && remade.script == made.script && remade.hostType == made.hostType);
    return 0;
}
