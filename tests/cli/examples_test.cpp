// The example scripts: each .qds is what qds builds from the .json beside it.
#include "cli/qds_run.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_reader.h"

#include <algorithm>
#include <set>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> exampleSources() {
    std::vector<fs::path> sources;
    for (const auto& entry : fs::directory_iterator(QUENDRA_EXAMPLES))
        if (entry.path().extension() == ".json") sources.push_back(entry.path());
    std::ranges::sort(sources);
    return sources;
}

std::string testName(const testing::TestParamInfo<fs::path>& row) {
    std::string name = row.param.stem().string();
    std::ranges::replace(name, '-', '_');
    return name;
}

}  // namespace

class Example : public QdsTest, public testing::WithParamInterface<fs::path> {
  protected:
    // Examples are the same for everyone.
    Example() { setIdentity(""); }
};

TEST_P(Example, isWhatItsSourceBuilds) {
    const Bytes script = readBytes(fs::path(GetParam()).replace_extension(".qds"));
    const QdsRun run = runQds({"build", GetParam().string(), "--output", "-"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(bytesOf(run.out), script);
}

// A name in a source is a remark: this finds the one that is not the name of its number.
TEST_P(Example, namesKeysAndMenuCommandsRightly) {
    const Bytes source = readBytes(GetParam());
    const std::string typed(source.begin(), source.end());
    const QdsRun shown =
        runQds({"show", "--json", fs::path(GetParam()).replace_extension(".qds").string()});
    ASSERT_EQ(shown.status, 0) << shown.err;
    const auto namesIn = [](const std::string& text) {
        std::set<std::string> names;
        constexpr std::string_view before = "\"name\": \"";
        for (auto at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
            at += before.size();
            names.insert(text.substr(at, text.find('"', at) - at));
        }
        return names;
    };
    EXPECT_EQ(namesIn(typed), namesIn(shown.out));
    EXPECT_EQ(shown.out.find("\"name\": null"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(, Example, testing::ValuesIn(exampleSources()), testName);

TEST(Examples, showEveryCommandInEveryPlaceWhereItMayStand) {
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

}  // namespace quendra::test
