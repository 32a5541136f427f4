// docs/format.md says what can change without anybody thinking of it: the bytes and lines of an
// example, the numbers and names of keys and menu commands, and where the fields of a transfer lie.
#include "cli/qds_run.h"
#include "transfer/file_transfer_settings.h"

#include <algorithm>
#include <map>
#include <regex>
#include <sstream>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

using Names = std::map<std::string, std::string>;

/// The lines from a heading to the next one of any level.
std::vector<std::string> section(const std::string& heading) {
    const Bytes document = readBytes(QUENDRA_FORMAT_DOCUMENT);
    std::vector<std::string> lines;
    bool inside = false;
    for (const std::string& line : linesOfText({document.begin(), document.end()})) {
        if (line.starts_with("#")) inside = line == heading;
        if (inside) lines.push_back(line);
    }
    EXPECT_GT(lines.size(), 2U) << heading;
    return lines;
}

/// The cells "NUMBER NAME" of a block; three blanks and more stand between them.
Names namesIn(const std::string& heading) {
    static const std::regex cell(R"((\d+(?:/\d+)?) (\S.*?)(?:   |$))");
    Names names;
    for (const std::string& line : section(heading)) {
        if (line.empty() || line.front() < '0' || line.front() > '9') continue;
        for (std::sregex_iterator at(line.begin(), line.end(), cell), end; at != end; ++at)
            EXPECT_TRUE(names.emplace((*at)[1], (*at)[2]).second) << (*at)[1];
    }
    return names;
}

/// A host type as the document spells it.
std::string spelled(HostType type) {
    return type == HostType::ISeries ? "iSeries" : std::string(hostTypeInfo(type).name);
}

TextSource englishTexts() {
    static LanguageLibrary library;
    EXPECT_FALSE(library.load({QUENDRA_PROGRAM_FOLDER, "", ""}));
    return library.textSource();
}

class FormatDocument : public QdsTest {};

TEST_F(FormatDocument, dumpsTheExampleByteForByteUnderItsLines) {
    static const std::regex dumped(R"(([0-9a-f]{4})  ((?:[0-9a-f]{2} ?)+).*)");
    Bytes bytes;
    std::vector<std::string> lines;
    for (const std::string& line : section("## A file in full")) {
        if (line.starts_with("-- ")) lines.push_back(line.substr(3));
        std::smatch match;
        if (!std::regex_match(line, match, dumped)) continue;
        EXPECT_EQ(std::stoul(match[1], nullptr, 16), bytes.size()) << line;
        std::istringstream pairs(match[2]);
        for (std::string pair; pairs >> pair;)
            bytes.push_back(static_cast<std::uint8_t>(std::stoul(pair, nullptr, 16)));
    }
    const fs::path example = fs::path(QUENDRA_EXAMPLES) / "uts-signon.qds";
    EXPECT_EQ(bytes, readBytes(example));
    EXPECT_EQ(lines, linesOfText(runQds({"show", example.string()}).out));
}

TEST_F(FormatDocument, tellsTheSignaturesOfEveryHostType) {
    const auto lines = section("## Signature");
    for (const HostType type : allHostTypes) {
        const HostTypeInfo& info = hostTypeInfo(type);
        const std::string row = "| " + spelled(type) + " | `" + std::string(info.signaturePrefix) +
                                "` | `" + info.oldestVersion + "` to `=` |";
        EXPECT_EQ(std::ranges::count(lines, row), 1) << row;
    }
}

TEST_F(FormatDocument, namesTheKeysOfEveryHostType) {
    const LuCatalogues catalogues = buildLuCatalogues(englishTexts());
    for (const HostType type : allHostTypes) {
        Names names;
        for (const LuFunction& row : catalogues.of(type).rows) {
            names.emplace(std::to_string(row.key.group) + "/" + std::to_string(row.key.number),
                          row.name);
        }
        EXPECT_EQ(namesIn("### " + spelled(type)), names);
    }
}

TEST_F(FormatDocument, namesTheMenuCommands) {
    const MenuCommandCatalogue catalogue = buildMenuCommandCatalogue(englishTexts());
    Names names;
    for (std::size_t i = 0; i < menuCommandCount; ++i)
        names.emplace(std::to_string(firstMenuCommand + i), catalogue.names[i]);
    EXPECT_EQ(namesIn("## Numbers of menu commands"), names);
}

TEST_F(FormatDocument, placesTheFieldsOfATransfer) {
    static const std::regex row(R"(\| (\d+) \| (\d+) \|.*)");
    std::string documented;
    for (const std::string& line : section("### Menu commands")) {
        std::smatch match;
        if (std::regex_match(line, match, row))
            documented += match[1].str() + ' ' + match[2].str() + '\n';
    }
    std::string fields;
    for (const TransferField& field : transferFields())
        fields += std::to_string(field.offset) + ' ' + std::to_string(field.size) + '\n';
    EXPECT_EQ(documented, fields);
}

}  // namespace
}  // namespace quendra::test
