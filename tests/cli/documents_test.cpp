// What documents tell of scripts and can change without anybody thinking of it: the examples, and
// in docs/format.md the bytes and lines of one, the numbers and names of keys and menu commands,
// and where the fields of a transfer lie.
#include "cli/qds_run.h"
#include "model/file_transfer_settings.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

// The names of keys and menu commands in a JSON form.
std::multiset<std::string> namesIn(std::span<const std::uint8_t> form) {
    std::multiset<std::string> names;
    const nlohmann::json flat = nlohmann::json::parse(form).flatten();
    for (const auto& [path, value] : flat.items())
        if (path.ends_with("/name")) names.insert(value);
    return names;
}

// The lines of docs/format.md from a heading to the next one of any level.
std::vector<std::string> section(const std::string& heading) {
    const Bytes document = readBytes(QUENDRA_FORMAT_DOCUMENT);
    std::vector<std::string> lines;
    bool inside = false;
    for (const std::string& line : linesOfText({document.begin(), document.end()})) {
        if (line.starts_with("#")) inside = line == heading;
        if (inside) lines.push_back(line + "   ");
    }
    return lines;
}

// Whether a line begins with the cell, or has it behind three blanks.
bool holds(const std::vector<std::string>& lines, const std::string& cell) {
    return std::ranges::any_of(lines, [&](const std::string& line) {
        return ("   " + line).find("   " + cell) != std::string::npos;
    });
}

class Documents : public QdsTest {
  protected:
    // Examples are the same for everyone.
    Documents() { setIdentity(""); }
};

TEST_F(Documents, examplesAreWhatTheirSourcesBuildAndName) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(QUENDRA_EXAMPLES)) {
        const fs::path& source = entry.path();
        if (source.extension() != ".json") continue;
        SCOPED_TRACE(source);
        const Bytes script = readBytes(fs::path(source).replace_extension(".qds"));
        EXPECT_EQ(bytesOf(runQds({"build", source, "--output", "-"}).out), script);
        // A name in a source is a remark: this finds the one that is not the name of its number.
        const std::string shown = runQds({"show", "--json", "-"}, script).out;
        EXPECT_EQ(namesIn(readBytes(source)), namesIn(bytesOf(shown)));
        ++count;
    }
    EXPECT_EQ(count, 8);
}

TEST_F(Documents, examplesHaveNothingThatCheckFinds) {
    // Their hidden texts are foreign to everyone who has an identity.
    for (const char* identity : {"", "somebody"}) {
        setIdentity(identity);
        const QdsRun run = runQds({"check", QUENDRA_EXAMPLES});
        EXPECT_EQ(run.out, "") << identity;
        EXPECT_EQ(run.err, "qds: 8 scripts: 0 errors, 0 warnings\n");
    }
}

TEST_F(Documents, formatDumpsTheExampleByteForByteUnderItsLines) {
    Bytes bytes;
    std::string lines;
    for (const std::string& line : section("## A file in full")) {
        if (line.starts_with("-- ")) lines += line.substr(3, line.size() - 6) + '\n';
        if (line.find("  ") != 4) continue;
        EXPECT_EQ(std::stoul(line, nullptr, 16), bytes.size()) << line;
        std::istringstream pairs(line.substr(6, 48));
        for (unsigned int byte = 0; pairs >> std::hex >> byte;)
            bytes.push_back(static_cast<std::uint8_t>(byte));
    }
    const fs::path example = fs::path(QUENDRA_EXAMPLES) / "uts-signon.qds";
    EXPECT_EQ(bytes, readBytes(example));
    EXPECT_EQ(lines, runQds({"show", example}).out);
}

TEST_F(Documents, formatTellsKeysMenuCommandsAndTheFieldsOfATransfer) {
    LanguageLibrary library;
    EXPECT_FALSE(library.load({QUENDRA_PROGRAM_FOLDER, "", ""}));
    const LuCatalogues catalogues = buildLuCatalogues(library.textSource());
    for (const HostType type : allHostTypes) {
        const std::string name(hostTypeInfo(type).name);
        const auto keys = section("### " + (type == HostType::ISeries ? "iSeries" : name));
        for (const auto& [rowName, key] : catalogues.of(type).rows) {
            const std::string first(findLuFunction(catalogues.of(type), key).value());
            const auto number = std::to_string(key.group) + "/" + std::to_string(key.number);
            EXPECT_TRUE(holds(keys, number + " " + first + "   ")) << name << " " << rowName;
        }
    }
    const auto commands = section("## Numbers of menu commands");
    std::size_t number = firstMenuCommand;
    for (const std::string& name : buildMenuCommandCatalogue(library.textSource()).names)
        EXPECT_TRUE(holds(commands, std::to_string(number++) + " " + name + "   ")) << name;
    const auto fields = section("### Menu commands");
    for (const TransferField& field : transferFields()) {
        const auto place = std::to_string(field.offset) + " | " + std::to_string(field.size);
        EXPECT_TRUE(holds(fields, "| " + place + " | ")) << field.name;
    }
}

}  // namespace
}  // namespace quendra::test
