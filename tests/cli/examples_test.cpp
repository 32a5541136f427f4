// The example scripts: each .qds is what qds builds from the .json beside it.
#include "cli/qds_run.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_reader.h"

#include <nlohmann/json.hpp>
#include <set>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

// Of keys and menu commands.
std::multiset<std::string> namesIn(const std::string& json) {
    std::multiset<std::string> names;
    const nlohmann::ordered_json flat = nlohmann::ordered_json::parse(json).flatten();
    for (const auto& [path, value] : flat.items())
        if (path.ends_with("/name")) names.insert(value);
    return names;
}

class Examples : public QdsTest {
  protected:
    // The same for everyone.
    Examples() { setIdentity(""); }
};

TEST_F(Examples, areWhatTheirSourcesBuildAndName) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(QUENDRA_EXAMPLES)) {
        const fs::path source = entry.path();
        if (source.extension() != ".json") continue;
        SCOPED_TRACE(source);
        const Bytes script = readBytes(fs::path(source).replace_extension(".qds"));
        const Bytes typed = readBytes(source);
        EXPECT_EQ(bytesOf(runQds({"build", source, "--output", "-"}).out), script);
        // A name in a source is a remark: this finds the one that is not the name of its number.
        EXPECT_EQ(namesIn({typed.begin(), typed.end()}),
                  namesIn(runQds({"show", "--json", "-"}, script).out));
        ++count;
    }
    EXPECT_EQ(count, 8);
}

TEST_F(Examples, showEveryCommandInEveryPlaceWhereItMayStand) {
    const Bytes bytes = readBytes(fs::path(QUENDRA_EXAMPLES) / "every-command.qds");
    const HiddenTextCipher cipher("");
    std::set<CommandCode> entries;
    std::set<CommandCode> thenActions;
    std::set<CommandCode> elseActions;
    for (const EntryHandle& handle : readScript(bytes).script.entries) {
        const ScriptEntry entry = unpackEntry(handle, cipher);
        entries.insert(entry.commandCode);
        thenActions.insert(entry.thenCode);
        elseActions.insert(entry.elseCode);
    }
    for (std::uint8_t value = 1; value < 24; ++value) {
        if (!isCommandCode(value)) continue;
        const auto code = static_cast<CommandCode>(value);
        EXPECT_TRUE(entries.contains(code)) << +value;
        EXPECT_TRUE(ownsActions(code) || thenActions.contains(code)) << +value;
        EXPECT_TRUE(ownsActions(code) || elseActions.contains(code)) << +value;
    }
}

}  // namespace
}  // namespace quendra::test
