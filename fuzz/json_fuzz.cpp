// The JSON form of a script from any bytes: refused, or a script that its own form gives back.

#include "forms/json_text.h"
#include "forms/script_json.h"
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"

#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
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
    const ParsedJson parsed = parseJson({data, size});
    require((parsed.value != nullptr) == parsed.refusal.empty());
    if (!parsed.value) return 0;
    const ScriptOfJson made = scriptOfJson(*parsed.value, cipher);
    if (!made.ok()) return 0;

    const ReadResult read = readScript(writeScript(made.script, HostType::Mainframe));
    require(read.isWhole() && read.script == made.script);
    const JsonPrinting printing = {luFunctions().of(made.hostType), menuCommands(), cipher, true};
    std::ostringstream out;
    printScript(out, made.script, made.hostType, printing);
    const std::string printed = out.str();
    const ParsedJson again =
        parseJson({reinterpret_cast<const std::uint8_t*>(printed.data()), printed.size()});
    require(again.value != nullptr);
    const ScriptOfJson remade = scriptOfJson(*again.value, cipher);
    require(remade.ok() && remade.script == made.script && remade.hostType == made.hostType);
    return 0;
}
