// A script shown as JSON and built again is the same file, byte for byte.
#include "cli/qds_run.h"
#include "model/file_transfer_settings.h"
#include "scriptfile/hidden_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <numeric>

namespace quendra::test {
namespace {

using Json = nlohmann::ordered_json;

// Text behind the NUL of a text, as a program leaves it that shortens a text.
FileTransferSettings settingsWithRemains() {
    FileTransferSettings settings = defaultTransferSettings();
    settings.bytes[transfer::member.offset + 5] = 'x';
    return settings;
}

Bytes typeRecord(const Bytes& stored, std::uint8_t hidden = 1) {
    return joined({{15, static_cast<std::uint8_t>(stored.size())}, stored, {hidden}});
}

std::vector<std::pair<const char*, Bytes>> extremes() {
    const Bytes beep = {4};
    const Bytes watch = {20, 1, 'w'};
    const Bytes compare = joined({{9}, counted("a"), {1}, counted("b"), {2}});
    const Bytes waiting = joined({{17}, counted("f"), {1, 1, 0, 1, 1, 9}});
    const Bytes waitFor = joined({waiting, beep, {12}});
    const Bytes type = hiddenTypeRecord("x", "{ANOTHER}");
    std::string everyByte(255, '\0');
    std::iota(everyByte.begin(), everyByte.end(), '\1');
    const Bytes title = counted(std::string(255, '\0'));
    FileTransferSettings allSet;
    allSet.bytes.fill(0xFF);
    // Of a program that leaves out the closing NUL.
    const TripleDesCbc cipher(deriveTripleDesKey(frozenIdentity()).value());
    const Bytes withoutNul = cipher.encipher(bytesOf("abcde")).value();
    return {
        {"text of every byte", commentRecord(everyByte)},
        {"empty code", {0}},
        {"longest Input", joined({{8}, title, word(1023), Bytes(1023, '\\'), {255, 2, 255}})},
        {"unknown variables", {9, 0, 6, 0, 255, 0, 0}},
        {"last key", {1, 255, 255}},
        {"menu command out of range", joined({{2}, word(0xFFFFFFFF), word(0x80000000)})},
        {"settings all set", transferRecord(allSet, 236, 0xFFFFFFFF, 255)},
        {"settings with remains", transferRecord(settingsWithRemains(), 236)},
        {"high number", joined({{16}, word(0xFFFFFFFF)})},
        {"date all set", joined({{19}, Bytes(16, 0xFF)})},
        {"Copy all set", joined({{22}, word(0xFFFFFFFF), word(0xFFFFFFFF)})},
        {"Paste with end", joined({{23}, word(0x50180101), word(2)})},
        {"odd flags", {17, 1, 'f', 0, 255, 2, 3, 4, 255, 0, 0}},
        {"no timeout", {17, 1, 'f', 0, 0, 0, 0, 0}},
        {"hidden", hiddenTypeRecord("p\xE4ss\"word", frozenIdentity())},
        {"longest hidden", hiddenTypeRecord(std::string(246, '*'), frozenIdentity())},
        {"hidden by another", hiddenTypeRecord("secret", "{ANOTHER}")},
        {"hidden nothing", typeRecord({})},
        {"hidden without NUL", typeRecord(withoutNul)},
        {"hidden garbage", typeRecord(Bytes(255, 7))},
        {"hidden flag 2", typeRecord(bytesOf("in clear"), 2)},
        {"watched Wait_For", joined({watch, {17, 1, 'f', 62, 160, 1, 0, 0}})},
        {"foreign compare", joined({watch, compare, beep, {0}})},
        {"foreign Wait_For", joined({compare, waitFor, waitFor})},
        {"foreign hidden text", joined({watch, watch, type})},
        {"large actions", joined({waiting, transferRecord(settingsWithRemains(), 236), type})},
    };
}

// Shown and built again. The form has to be UTF-8 without control characters but line ends.
Bytes throughJson(const Bytes& script) {
    const QdsRun shown = runQds({"show", "--json", "--reveal", "-"}, script);
    EXPECT_EQ(shown.status, 0) << shown.err;
    EXPECT_TRUE(std::ranges::all_of(
        shown.out, [](char c) { return c == '\n' || static_cast<unsigned char>(c) >= 0x20; }));
    const QdsRun built = runQds({"build", "-", "--output", "-"}, bytesOf(shown.out));
    EXPECT_EQ(built.status, 0) << built.err;
    return bytesOf(built.out);
}

class JsonForm : public QdsTest {};

TEST_F(JsonForm, givesBackEveryRecordForEveryHostType) {
    // Built behind another entry, whose fields must not show through.
    const Bytes before =
        joined({{17}, counted("before"), {9, 9, 1, 1, 1, 9}, {14, 8, 8}, {16}, word(77)});
    for (const auto& [name, record] : extremes()) {
        for (const char* signature : {"QDMDSCR=", "QD7DSCR="}) {
            SCOPED_TRACE(name);
            const Bytes script = scriptFile(signature, {before, record});
            EXPECT_EQ(throughJson(script), script) << signature;
        }
    }
}

TEST_F(JsonForm, givesBackEveryFrozenFileAndSoDoesConvert) {
    for (const Case& frozen : frozenCases()) {
        SCOPED_TRACE(frozen.name);
        EXPECT_EQ(throughJson(frozen.expected), frozen.expected);
        const QdsRun converted = runQds({"convert", "--output", "-", "-"}, frozen.file);
        EXPECT_EQ(converted.status, 0) << converted.err;
        EXPECT_EQ(bytesOf(converted.out), frozen.expected);
    }
}

TEST_F(JsonForm, givesBackAFullScriptAndWhatVtStores) {
    const Bytes record = joined({{9}, counted("a"), {1}, counted("b"), {2}, {4}, {16}, word(9)});
    Bytes full = bytesOf("QDMDSCR=");
    for (int i = 0; i < 4096; ++i)
        full.insert(full.end(), record.begin(), record.end());
    EXPECT_EQ(throughJson(full), full);
    // A file transfer in a VT script has no settings; its stored number is another.
    const Bytes vt =
        scriptFile("QDVTSCR=", {joined({{2}, word(234), word(5)}),
                                joined({{2}, word(217), word(0), counted("c")}), menuRecord(267)});
    EXPECT_EQ(throughJson(vt), vt);
}

TEST_F(JsonForm, sealsForeignTextsNullsHiddenOnesAndNamesTheRest) {
    const Bytes input = joined({{8}, counted("t"), word(0), {5, 1, 2}});
    const QdsRun run =
        runQds({"show", "--json", "-"},
               scriptFile("QDMDSCR=", {hiddenTypeRecord("mine", frozenIdentity()),
                                       hiddenTypeRecord("theirs", "{ANOTHER}"), input}));
    const Json entries = Json::parse(run.out).at("entries");
    EXPECT_TRUE(entries[0].at("text").is_null());
    EXPECT_FALSE(entries[0].contains("sealed"));
    EXPECT_TRUE(entries[1].at("text").is_null());
    EXPECT_TRUE(entries[1].at("sealed").is_string());
    EXPECT_EQ(entries[2].at("inputVariable"), "VarUserId");
    EXPECT_EQ(entries[2].at("hidden"), true);
    const QdsRun built = runQds({"build", "-", "--output", "-"}, bytesOf(run.out));
    EXPECT_EQ(built.status, 1);
    EXPECT_NE(built.err.find("--reveal"), std::string::npos) << built.err;
}

TEST_F(JsonForm, givesFieldsThatAreLeftOutTheirDefaults) {
    const Bytes compare = {9, 0, 0, 0, 0};
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, "A.B");
    setTransferNumber(settings, transfer::append, 1);
    const std::pair<std::string, Bytes> rows[] = {
        {"'Wait'", joined({{16}, word(3)})},
        {"'Wait_Ready'", joined({{18}, word(1)})},
        {"'Input'", joined({{8, 0}, word(0), {255, 0, 0}})},
        {"'Copy'", joined({{22}, {1, 1, 24, 80}, word(0)})},
        {"'Paste'", joined({{23}, {1, 1, 0, 0}, word(0)})},
        {"'Wait_For', 'hasTimeout': true", {17, 0, 1, 1, 0, 1, 1, 0, 0, 0}},
        {"'Watch_For', 'then': {'command': 'Wait_For'}", {20, 0, 17, 0, 1, 1, 0, 1, 0}},
        {"'If_Input_Is', 'then': {'command': 'Copy'}, 'else': {'command': 'Wait'}",
         joined({compare, {22, 1, 1, 24, 80}, word(0), {16}, word(3)})},
        {"'If_Input_Is', 'then': {'command': 'Copy', 'area': [2, 3, 4, 5]}, "
         "'else': {'command': 'Paste', 'area': [6, 7], 'number': true}",
         joined({compare, {22, 2, 3, 4, 5}, word(0), {23, 6, 7, 0, 0}, word(1)})},
        {"'If_Input_Is', 'secondOperandKind': 'VarPassword'", {9, 0, 0, 0, 1, 0, 0}},
        {"'Wait_Until', 'waitUntil': {'year': 2006, 'month': 3, 'day': 7, 'hour': 9, 'minute': 5}",
         {19, 0xD6, 7, 3, 0, 2, 0, 7, 0, 9, 0, 5, 0, 0, 0, 0, 0}},
        {"'Menu_Command', 'commandId': 236", transferRecord(defaultTransferSettings(), 236)},
        {"'Menu_Command', 'commandId': 236, 'transferHost': 1, 'transferSettings': "
         "{'hostFileName': 'A.B', 'append': true}",
         transferRecord(settings, 236, 0, 1)},
    };
    for (const auto& [fields, record] : rows) {
        SCOPED_TRACE(fields);
        std::string form = "{'hostType': 'Mainframe', 'entries': [{'command': " + fields + "}]}";
        std::ranges::replace(form, '\'', '"');
        EXPECT_EQ(built(form), scriptFile("QDMDSCR=", {record}));
    }
}

}  // namespace
}  // namespace quendra::test
