// A script shown as JSON and built again is the same file, byte for byte.
#include "cli/json_text.h"
#include "cli/qds_run.h"
#include "scriptfile/hidden_text.h"
#include "transfer/file_transfer_settings.h"

#include <nlohmann/json.hpp>

namespace quendra::test {

namespace {

using Json = nlohmann::ordered_json;

Bytes everyByte(int first, int last) {
    Bytes bytes;
    for (int byte = first; byte <= last; ++byte) {
        bytes.push_back(static_cast<std::uint8_t>(byte));
    }
    return bytes;
}

Bytes countedBytes(const Bytes& bytes) {
    return joined({{static_cast<std::uint8_t>(bytes.size())}, bytes});
}

Bytes transferRecord(const FileTransferSettings& settings) {
    return joined({{2},
                   word(236),
                   word(0xFFFFFFFF),
                   {3, 255},
                   Bytes(settings.bytes.begin(), settings.bytes.end())});
}

FileTransferSettings settingsOf(std::uint8_t filling) {
    FileTransferSettings settings;
    settings.bytes.fill(filling);
    return settings;
}

// Text behind the NUL of a text, as a program leaves it that shortens a text.
FileTransferSettings settingsWithRemains() {
    FileTransferSettings settings = defaultTransferSettings();
    settings.bytes[transfer::member.offset + 5] = 'x';
    return settings;
}

Bytes typeRecord(const Bytes& stored, std::uint8_t hidden) {
    return joined({{15}, countedBytes(stored), {hidden}});
}

Bytes enciphered(const std::string& text, const std::string& identity) {
    return HiddenTextCipher(identity).encipher(text).value();
}

// Enciphered by a program that leaves out the closing NUL.
Bytes encipheredWithoutNul() {
    const TripleDesCbc cipher(deriveTripleDesKey(frozenIdentity()).value());
    return cipher.encipher(bytesOf("abcde")).value();
}

struct Extreme {
    const char* name;
    Bytes record;
};

std::vector<Extreme> extremes() {
    const Bytes beep = {4};
    const Bytes watch = joined({{20}, counted("w"), beep});
    const Bytes compare = joined({{9}, counted("a"), {1}, counted("b"), {2}, beep, {0}});
    const Bytes waitFor = joined({{17}, counted("f"), {1, 1, 0, 1, 1, 9}, beep, {12}});
    const auto watched = [](const Bytes& action) { return joined({{20}, counted("w"), action}); };
    return {
        {"TextOfEveryByte", joined({{6}, countedBytes(everyByte(1, 255))})},
        {"TextOfNuls", joined({{11}, countedBytes(Bytes(255, 0))})},
        {"EmptyCode", {0}},
        {"LongestInput",
         joined(
             {{8}, countedBytes(Bytes(255, 0x81)), word(1023), Bytes(1023, '\\'), {255, 2, 255}})},
        {"UnknownVariables", joined({{9}, counted(""), {6}, counted(""), {255}, {0}, {0}})},
        {"LastKey", {1, 255, 255}},
        {"MenuCommandOutOfRange", joined({{2}, word(0xFFFFFFFF), word(0x80000000)})},
        {"SettingsAllSet", transferRecord(settingsOf(0xFF))},
        {"SettingsAllZero", transferRecord(settingsOf(0))},
        {"SettingsWithRemains", transferRecord(settingsWithRemains())},
        {"HighNumbers", joined({{16}, word(0xFFFFFFFF)})},
        {"DateAllSet", joined({{19}, Bytes(16, 0xFF)})},
        {"CopyAllSet", joined({{22}, word(0xFFFFFFFF), word(0xFFFFFFFF)})},
        {"PasteWithEnd", joined({{23}, word(0x50180101), word(2)})},
        {"OddFlags", joined({{17}, counted("f"), {0, 255, 2, 3, 4, 255}, {0}, {0}})},
        {"NoTimeout", joined({{17}, counted("f"), {0, 0, 0, 0, 0}})},
        {"Hidden", typeRecord(enciphered("p\xE4ss\"word", frozenIdentity()), 1)},
        {"HiddenLongest", typeRecord(enciphered(std::string(246, '*'), frozenIdentity()), 1)},
        {"HiddenEmpty", typeRecord(enciphered("", frozenIdentity()), 1)},
        {"HiddenOfAnother", typeRecord(enciphered("secret", "{ANOTHER}"), 1)},
        {"HiddenNothing", typeRecord({}, 1)},
        {"HiddenWithoutNul", typeRecord(encipheredWithoutNul(), 1)},
        {"HiddenGarbage", typeRecord(Bytes(255, 7), 1)},
        {"HiddenFlagTwo", typeRecord(bytesOf("in clear"), 2)},
        {"WatchedWaitFor", watched(joined({{17}, counted("f"), {62, 160, 1, 0, 0}}))},
        {"ForeignCompare", watched(compare)},
        {"ForeignWatch", watched(watch)},
        {"ForeignWaitFor", joined({{9}, counted("a"), {0}, counted(""), {1}, waitFor, waitFor})},
        {"ForeignSealed", watched(watched(typeRecord(enciphered("deep", "{ANOTHER}"), 1)))},
        {"ActionsOfEveryKind", joined({{17},
                                       counted("f"),
                                       {1, 1, 0, 1, 1, 9},
                                       transferRecord(settingsOf(1)),
                                       typeRecord(enciphered("x", "{ANOTHER}"), 1)})},
    };
}

// Shown and built again. The form has to be UTF-8 without control characters but line ends.
Bytes throughJson(const Bytes& script) {
    const QdsRun shown = runQds({"show", "--json", "--reveal", "-"}, script);
    EXPECT_EQ(shown.status, 0) << shown.err;
    for (const char c : shown.out) {
        EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
    }
    const QdsRun built = runQds({"build", "-", "--output", "-"}, bytesOf(shown.out));
    EXPECT_EQ(built.status, 0) << built.err;
    return bytesOf(built.out);
}

}  // namespace

class RoundTrip : public QdsTest, public testing::WithParamInterface<Extreme> {};

TEST_P(RoundTrip, givesTheSameRecordForEveryHostType) {
    // Built alone and behind another entry, whose fields must not show through.
    const Bytes before =
        joined({{17}, counted("before"), {9, 9, 1, 1, 1, 9}, {14, 8, 8}, {16}, word(77)});
    for (const char* signature : {"QDMDSCR=", "QD7DSCR="}) {
        const Bytes script = scriptFile(signature, {before, GetParam().record});
        EXPECT_EQ(throughJson(script), script) << signature;
    }
}

INSTANTIATE_TEST_SUITE_P(, RoundTrip, testing::ValuesIn(extremes()), rowName);

class JsonForm : public QdsTest {};

TEST_F(JsonForm, givesBackEveryFrozenFile) {
    for (const Case& frozen : frozenCases()) {
        SCOPED_TRACE(frozen.name);
        EXPECT_EQ(throughJson(frozen.expected), frozen.expected);
    }
}

TEST_F(JsonForm, givesBackAFullScript) {
    const Bytes record = joined({{9}, counted("a"), {1}, counted("b"), {2}, {4}, {16}, word(9)});
    Bytes script = bytesOf("QDMDSCR=");
    for (int i = 0; i < 4096; ++i) {
        script.insert(script.end(), record.begin(), record.end());
    }
    EXPECT_EQ(throughJson(script), script);
}

TEST_F(JsonForm, givesBackWhatVtStores) {
    // A file transfer in a VT script has no settings; its stored number is another.
    const Bytes script = scriptFile("QDVTSCR=", {joined({{2}, word(234), word(5)}),
                                                 joined({{2}, word(217), word(0), counted("c")}),
                                                 joined({{2}, word(267), word(0)})});
    EXPECT_EQ(throughJson(script), script);
}

TEST_F(JsonForm, sealsForeignTextsAndNullsHiddenOnes) {
    const Bytes script =
        scriptFile("QDMDSCR=", {typeRecord(enciphered("mine", frozenIdentity()), 1),
                                typeRecord(enciphered("theirs", "{ANOTHER}"), 1)});
    const QdsRun run = runQds({"show", "--json", "-"}, script);
    const Json entries = Json::parse(run.out).at("entries");
    EXPECT_TRUE(entries[0].at("text").is_null());
    EXPECT_FALSE(entries[0].contains("sealed"));
    EXPECT_TRUE(entries[1].at("text").is_null());
    EXPECT_TRUE(entries[1].at("sealed").is_string());

    const QdsRun built = runQds({"build", "-", "--output", "-"}, bytesOf(run.out));
    EXPECT_EQ(built.status, 1);
    EXPECT_NE(built.err.find("--reveal"), std::string::npos) << built.err;
}

TEST_F(JsonForm, namesWhatReadersWantToKnow) {
    const Bytes script = scriptFile("QDMDSCR=", {{1, 5, 1},
                                                 joined({{2}, word(201), word(0)}),
                                                 joined({{8}, counted("t"), word(0), {5, 1, 2}})});
    const Json form = Json::parse(runQds({"show", "--json", "-"}, script).out);
    EXPECT_EQ(form.at("hostType"), "Mainframe");
    const Json& entries = form.at("entries");
    EXPECT_EQ(entries[0].at("command"), "LU_Function");
    EXPECT_EQ(entries[0].at("group"), 5);
    EXPECT_EQ(entries[0].at("number"), 1);
    EXPECT_TRUE(entries[0].at("name").is_string());
    EXPECT_FALSE(entries[1].at("name").get<std::string>().empty());
    EXPECT_EQ(entries[2].at("inputVariable"), "VarUserId");
    EXPECT_EQ(entries[2].at("hidden"), true);
}

struct Default {
    const char* name;
    const char* entry;
    Bytes record;
};

class Defaults : public QdsTest, public testing::WithParamInterface<Default> {};

TEST_P(Defaults, areThoseOfANewEntry) {
    const std::string json =
        R"({"entries": [)" + std::string(GetParam().entry) + R"(], "hostType": "Mainframe"})";
    EXPECT_EQ(built(json), scriptFile("QDMDSCR=", {GetParam().record}));
}

INSTANTIATE_TEST_SUITE_P(
    , Defaults,
    testing::Values(
        Default{"Wait", R"({"command": "Wait"})", joined({{16}, word(3)})},
        Default{"WaitReady", R"({"command": "Wait_Ready"})", joined({{18}, word(1)})},
        Default{"Input", R"({"command": "Input"})", joined({{8, 0}, word(0), {255, 0, 0}})},
        Default{"Copy", R"({"command": "Copy"})", joined({{22}, {1, 1, 24, 80}, word(0)})},
        Default{"Paste", R"({"command": "Paste"})", joined({{23}, {1, 1, 0, 0}, word(0)})},
        Default{"WaitFor", R"({"command": "Wait_For"})", {17, 0, 1, 1, 0, 1, 0}},
        Default{"WaitForTimeout",
                R"({"command": "Wait_For", "hasTimeout": true})",
                {17, 0, 1, 1, 0, 1, 1, 0, 0, 0}},
        Default{"WatchedWaitFor",
                R"({"command": "Watch_For", "then": {"command": "Wait_For"}})",
                {20, 0, 17, 0, 1, 1, 0, 1, 0}},
        Default{
            "ActionsHaveThemToo",
            R"({"command": "If_Input_Is", "then": {"command": "Copy"}, "else": {"command": "Wait"}})",
            joined({{9, 0, 0, 0, 0}, {22, 1, 1, 24, 80}, word(0), {16}, word(3)})},
        Default{"AreaByPlaces",
                R"({"command": "If_Input_Is", "then": {"command": "Copy", "area": [2, 3, 4, 5]},
                    "else": {"command": "Paste", "area": [6, 7], "number": true}})",
                joined({{9, 0, 0, 0, 0}, {22, 2, 3, 4, 5}, word(0), {23, 6, 7, 0, 0}, word(1)})},
        Default{
            "VariableByNumberAndName",
            R"({"command": "If_Input_Is", "firstOperandKind": 4, "secondOperandKind": "VarPassword"})",
            {9, 0, 4, 0, 1, 0, 0}},
        Default{
            "DayOfWeek",
            R"({"command": "Wait_Until", "waitUntil": {"year": 2006, "month": 3, "day": 7, "hour": 9, "minute": 5}})",
            {19, 0xD6, 7, 3, 0, 2, 0, 7, 0, 9, 0, 5, 0, 0, 0, 0, 0}},
        Default{"DateUnset", R"({"command": "Wait_Until"})", joined({{19}, Bytes(16, 0)})},
        Default{"NamesAreIgnored",
                R"({"command": "LU_Function", "group": 4, "number": 31, "name": "Help"})",
                {1, 4, 31}}),
    rowName);

TEST_F(JsonForm, startsTransfersFromTheDefaultSettings) {
    const Bytes script =
        built(R"({"hostType": "Mainframe", "entries": [{"command": "Menu_Command", "commandId": 236,
        "transferHost": 1, "transferSettings": {"hostFileName": "A.B", "append": true, "recordLength": 80}}]})");
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, "A.B");
    setTransferNumber(settings, transfer::append, 1);
    setTransferNumber(settings, transfer::recordLength, 80);
    EXPECT_EQ(script, scriptFile("QDMDSCR=",
                                 {joined({{2},
                                          word(236),
                                          word(0),
                                          {3, 1},
                                          Bytes(settings.bytes.begin(), settings.bytes.end())})}));
    EXPECT_EQ(
        built(R"({"hostType": "VT", "entries": [{"command": "Menu_Command", "commandId": 236}]})"),
        scriptFile("QDVTSCR=", {joined({{2}, word(234), word(0)})}));
}

TEST_F(JsonForm, letsAFieldChangeASettingsBlock) {
    Json form = Json::parse(runQds({"show", "--json", "-"},
                                   scriptFile("QDMDSCR=", {transferRecord(settingsWithRemains())}))
                                .out);
    Json& settings = form["entries"][0]["transferSettings"];
    ASSERT_TRUE(settings.contains("block"));
    settings["member"] = "NEW";
    settings["blockSize"] = 800;
    FileTransferSettings expected = defaultTransferSettings();
    setTransferText(expected, transfer::member, "NEW");
    setTransferNumber(expected, transfer::blockSize, 800);
    EXPECT_EQ(built(form.dump()), scriptFile("QDMDSCR=", {transferRecord(expected)}));
}

}  // namespace quendra::test
