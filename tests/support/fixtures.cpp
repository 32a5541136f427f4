#include "support/fixtures.h"

#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>

namespace quendra::test {
namespace {

// A function, since test parameters are made before the constants of this file would be.
std::filesystem::path casesFolder() {
    return std::filesystem::path(QUENDRA_FIXTURES) / "cases";
}

nlohmann::json manifest() {
    std::ifstream stream(casesFolder() / "manifest.json");
    return nlohmann::json::parse(stream);
}

Case readCase(const nlohmann::json& row) {
    const auto bytes = [&](const char* key) {
        return readBytes(casesFolder() / row.at(key).get<std::string>());
    };
    const Bytes lines = bytes("lines");
    const Bytes file = bytes("file");
    return {row.at("name"),
            hostTypeOfName(row.at("host").get<std::string>()).value(),
            static_cast<char>(file.at(7)),
            file,
            bytes("expected"),
            linesOfText({lines.begin(), lines.end()}),
            row.at("openRows")};
}

}  // namespace

const std::vector<Case>& frozenCases() {
    static const std::vector<Case> cases = [] {
        std::vector<Case> read;
        const nlohmann::json all = manifest();
        std::ranges::transform(all.at("cases"), std::back_inserter(read), readCase);
        return read;
    }();
    return cases;
}

const Case& frozenCase(std::string_view name) {
    return *std::ranges::find(frozenCases(), name, &Case::name);
}

std::string frozenIdentity() {
    return manifest().at("identity");
}

Bytes readBytes(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeBytes(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
}

Bytes bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

std::vector<std::string> linesOfText(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

Bytes joined(std::initializer_list<Bytes> pieces) {
    Bytes all;
    for (const Bytes& piece : pieces)
        all.insert(all.end(), piece.begin(), piece.end());
    return all;
}

Bytes counted(std::string_view text) {
    return joined({{static_cast<std::uint8_t>(text.size())}, bytesOf(text)});
}

Bytes commentRecord(std::string_view text) {
    return joined({Bytes{6}, counted(text)});
}

Bytes menuRecord(std::uint32_t commandId) {
    return joined({Bytes{2}, word(commandId), word(0)});
}

Bytes hiddenTypeRecord(std::string_view text, const std::string& identity) {
    const auto stored = HiddenTextCipher(identity).encipher(text).value();
    return joined({{15}, counted(std::string(stored.begin(), stored.end())), {1}});
}

Bytes transferRecord(const FileTransferSettings& settings, std::uint32_t command,
                     std::uint32_t data, std::uint8_t host) {
    const Bytes block(settings.bytes.begin(), settings.bytes.end());
    return joined({{2}, word(command), word(data), {3, host}, block});
}

Bytes scriptFile(std::string_view signature, std::initializer_list<Bytes> records) {
    return joined({bytesOf(signature), joined(records)});
}

Bytes commentFile(std::size_t count) {
    Bytes file = bytesOf("QDMDSCR=");
    for (std::size_t i = 1; i <= count; ++i)
        std::ranges::copy(commentRecord(std::to_string(i)), std::back_inserter(file));
    return file;
}

Bytes word(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)};
}

std::string numberedName(StringId id) {
    return "{" + std::to_string(id) + "}";
}

NumberedNames::NumberedNames() {
    luFunctions = buildLuCatalogues(numberedName);
    menuCommands = buildMenuCommandCatalogue(numberedName);
}

DisplayNames NumberedNames::of(HostType type) const {
    return {luFunctions.of(type), menuCommands};
}

std::vector<std::string> linesOf(const Script& script, HostType type,
                                 const HiddenTextCipher& cipher) {
    static const NumberedNames names;
    std::vector<std::string> lines;
    for (const EntryHandle& entry : script.entries)
        lines.push_back(formatEntryLine(unpackEntry(entry, cipher), names.of(type)));
    return lines;
}

}  // namespace quendra::test
