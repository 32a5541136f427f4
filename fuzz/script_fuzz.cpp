// Any bytes at all: they are refused or loaded, what was loaded is stored and read back alike, and
// every entry survives being taken apart, shown and stored again.
#include "analysis/entry_display.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"

#include <cstdint>
#include <cstdlib>
#include <span>

namespace {

using namespace quendra;

void require(bool holds) {
    if (!holds) std::abort();
}

const HiddenTextCipher& cipher() {
    static const HiddenTextCipher made("fuzz");
    return made;
}

DisplayNames names(HostType type) {
    static const TextSource texts = [](StringId id) { return std::to_string(id); };
    static const LuCatalogues luFunctions = buildLuCatalogues(texts);
    static const MenuCommandCatalogue menuCommands = buildMenuCommandCatalogue(texts);
    return {luFunctions.of(type), menuCommands};
}

void checkEntries(const Script& script, HostType type) {
    for (const EntryHandle& entry : script.entries) {
        const ScriptEntry unpacked = unpackEntry(entry, cipher());
        static_cast<void>(formatEntryLine(unpacked, names(type)));
        const PackResult packed = packEntry(unpacked, cipher());
        require(packed.ok() && packed.entry == entry);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ReadResult read = readScript({data, size});
    if (read.refusal) return 0;
    const HostType type = read.signature.hostType;
    require(read.script.entryCount() <= maxEntries);
    require(read.isWhole() || read.stopOffset <= size);
    const auto written = writeScript(read.script, type);
    const ReadResult again = readScript(written);
    if (unstorableEntries(read.script, type).empty()) {
        require(again.isWhole() && again.script == read.script);
        require(writeScript(again.script, type) == written);
    }
    checkEntries(read.script, type);
    return 0;
}
