// qds build: what it refuses, and that it writes nothing then.
#include "cli/qds_run.h"

namespace quendra::test {

namespace {

struct Refusal {
    const char* name;
    std::string json;
    const char* message;
};

std::string formOf(const std::string& entry, const std::string& hostType = "Mainframe") {
    return R"({"hostType": ")" + hostType + R"(", "entries": [{"command": "Beep"}, )" + entry +
           "]}";
}

std::string entryOf(const std::string& command, const std::string& fields) {
    return formOf(R"({"command": ")" + command + "\", " + fields + "}");
}

std::string times(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

std::string quoted(const std::string& text) {
    return '"' + text + '"';
}

std::string manyFields() {
    std::string fields;
    for (int i = 0; i < 1000; ++i) {
        fields += quoted("f" + std::to_string(i)) + ": 0, ";
    }
    return "{" + fields + R"("hostType": "VT"})";
}

std::vector<Refusal> badForms() {
    const std::string many = times(R"({"command": "Beep"},)", 4096) + R"({"command": "Beep"})";
    return {
        {"NothingAtAll", "", "not valid JSON at line 1, column 1 (byte offset 0)"},
        {"NoJson", "{\n  hostType", "not valid JSON at line 2, column 3 (byte offset 4)"},
        {"SecretInBrokenJson", R"({"text": "topsecret", "x": "topsecret)", "not valid JSON"},
        {"InvalidUtf8", "{\"hostType\": \"\xC3\x28\"}", "not valid JSON"},
        {"LoneSurrogate", entryOf("Comment", R"("text": "\ud800")"), "not valid JSON"},
        {"TwoForms", R"({"hostType": "VT", "entries": []} {})", "not valid JSON"},
        {"HugeNumber", entryOf("Wait", R"("number": 1e999)"), "out of range"},
        {"DeepNesting", times("[", 100'000), "nested too deep"},
        {"DeepObjects", times(R"({"a":)", 100'000), "nested too deep"},
        {"ManyValues", "[" + times("0,", 500'000) + "0]", "more than any script has"},
        {"ManyObjects", "[" + times("{},", 500'000) + "0]", "more than any script has"},
        {"ManyFields", manyFields(), "too many fields"},
        {"FieldTwice", entryOf("Comment", R"("text": "a", "text": "b")"), "two fields called text"},
        {"NoObject", "[]", "must be an object"},
        {"NoHostType", R"({"entries": []})", "hostType: must be"},
        {"OtherHostType", R"({"hostType": "mainframe", "entries": []})", "hostType: must be"},
        {"NoEntries", R"({"hostType": "VT"})", "entries: must be a list"},
        {"EntriesAnObject", R"({"hostType": "VT", "entries": {}})", "entries: must be a list"},
        {"UnknownTopField", R"({"hostType": "VT", "entries": [], "version": 1})",
         "version: unknown field"},
        {"TooManyEntries", R"({"hostType": "VT", "entries": [)" + many + "]}",
         "entries: a script has at most 4096"},
    };
}

std::vector<Refusal> badEntries() {
    return {
        {"EntryNoObject", formOf("5"), "entry 2: must be an object"},
        {"NoCommand", formOf("{}"), "entry 2: command: is missing"},
        {"UnknownCommand", entryOf("type", R"("text": "")"),
         "entry 2: command: is not the name of a command"},
        {"UnknownField", entryOf("Beep", R"("text": "a")"), "entry 2: text: unknown field"},
        {"ControlsInFieldName", entryOf("Beep", R"("\u001b[2J": 1)"),
         "entry 2: \\x1b[2J: unknown field"},
        {"ActionOfBeep", entryOf("Beep", R"("then": {"command": "Beep"})"),
         "entry 2: then: unknown field"},
        {"ElseOfWatchFor", entryOf("Watch_For", R"("else": {"command": "Beep"})"),
         "entry 2: else: unknown field"},
        {"ActionWithoutTimeout", entryOf("Wait_For", R"("then": {"command": "Beep"})"),
         "entry 2: then: a Wait_For has it only when hasTimeout"},
        {"SecondsWithoutTimeout", entryOf("Wait_For", R"("timeoutSeconds": 5)"),
         "entry 2: timeoutSeconds: a Wait_For has it only"},
        {"TimeoutOfWatched",
         entryOf("Watch_For", R"("then": {"command": "Wait_For", "hasTimeout": false})"),
         "entry 2, then action: hasTimeout: unknown field"},
        {"CompareAsAction",
         entryOf("Watch_For", R"("then": {"command": "If_Input_Is", "text": "a"})"),
         "entry 2, then action: command: cannot be an action"},
        {"DamagedRecord",
         entryOf("Watch_For", R"("then": {"command": "Watch_For", "record": "AXc="})"),
         "entry 2: the record of an action is damaged"},
        {"RecordNestedTooDeep",
         entryOf("Watch_For", R"("then": {"command": "Watch_For", "record": "ABQAFAAUABQAFAAA"})"),
         "entry 2: the record of an action is damaged"},
        {"RecordOfBeep", entryOf("Watch_For", R"("then": {"command": "Beep", "record": "AAAA"})"),
         "entry 2, then action: record: unknown field"},
        {"TextNumber", entryOf("Comment", R"("text": 5)"), "entry 2: text: must be a string"},
        {"TextNull", entryOf("Comment", R"("text": null)"), "entry 2: text: must be a string"},
        {"TextTooLong", entryOf("Comment", R"("text": )" + quoted(times("\u00e9", 256))),
         "entry 2: text: is longer than 255 characters"},
        {"PromptTooLong", entryOf("Input", R"("prompt": )" + quoted(times("p", 1024))),
         "entry 2: prompt: is longer than 1023 characters"},
        {"CompareTextTooLong",
         entryOf("If_Input_Is", R"("compareText": )" + quoted(times("p", 256))),
         "entry 2: compareText: is longer than 255"},
        {"OtherCharacter",
         entryOf("If_Input_Is", R"("else": {"command": "Label", "text": "\u4e2d"})"),
         "entry 2, else action: text: holds a character that windows-1252 lacks"},
        {"Emoji", entryOf("Comment", R"("text": "😀")"), "entry 2: text: holds a character"},
        {"Negative", entryOf("Wait", R"("number": -1)"),
         "entry 2: number: must be a whole number from 0 to 4294967295"},
        {"TooHigh", entryOf("Wait", R"("number": 4294967296)"),
         "entry 2: number: must be a whole number"},
        {"MuchTooHigh", entryOf("Wait", R"("number": 99999999999999999999999)"),
         "entry 2: number: must be a whole number"},
        {"Fraction", entryOf("Wait", R"("number": 1.0)"),
         "entry 2: number: must be a whole number"},
        {"NumberAsText", entryOf("Wait", R"("number": "1")"),
         "entry 2: number: must be a whole number"},
        {"RowTooHigh", entryOf("Set_Cursor", R"("row": 256)"),
         "entry 2: row: must be a whole number from 0 to 255"},
        {"RowTrue", entryOf("Set_Cursor", R"("row": true)"),
         "entry 2: row: must be a whole number"},
        {"FlagTooHigh", entryOf("Wait_For", R"("exactPosition": 256)"),
         "entry 2: exactPosition: must be true, false or a whole number"},
        {"FlagAsText", entryOf("Wait_For", R"("caseSensitive": "yes")"),
         "entry 2: caseSensitive: must be true, false"},
        {"OtherVariable", entryOf("Input", R"("inputVariable": "VarOther")"),
         "entry 2: inputVariable: is not a variable"},
        {"AreaTooShort", entryOf("Copy", R"("area": [1, 1])"),
         "entry 2: area: must be a list of 4 numbers"},
        {"AreaOutside", entryOf("Paste", R"("area": [1, 256])"),
         "entry 2: area: must be a whole number from 0 to 255"},
        {"AreaTwice", entryOf("Paste", R"("area": [1, 1], "commandId": 0)"),
         "entry 2: area: stands beside"},
        {"KeyWithoutNumber", entryOf("LU_Function", R"("group": 4, "name": "Help")"),
         "entry 2: number: is missing"},
        {"MenuWithoutId", entryOf("Menu_Command", R"("name": "Help")"),
         "entry 2: commandId: is missing"},
        {"FileNameForNone", entryOf("Menu_Command", R"("commandId": 201, "text": "a")"),
         "entry 2: text: unknown field"},
        {"DateTooHigh", entryOf("Wait_Until", R"("waitUntil": {"year": 65536})"),
         "entry 2, waitUntil: year: must be a whole number from 0 to 65535"},
        {"DateUnknownField", entryOf("Wait_Until", R"("waitUntil": {"weekday": 1})"),
         "entry 2, waitUntil: weekday: unknown field"},
    };
}

std::vector<Refusal> badTextsAndSettings() {
    const std::string transfer = R"("commandId": 236, "transferSettings": )";
    return {
        {"HiddenTooLong", entryOf("Type", R"("hidden": true, "text": )" + quoted(times("s", 247))),
         "entry 2: text: is longer than 246 characters"},
        {"HiddenNull", entryOf("Type", R"("hidden": true, "text": null)"), "--reveal"},
        {"HiddenNul", entryOf("Type", R"("hidden": true, "text": "a\u0000b")"),
         "entry 2: text: a hidden text cannot hold a NUL"},
        {"SealedInClear", entryOf("Type", R"("sealed": "AAAA")"),
         "entry 2: sealed: only a hidden text"},
        {"SealedWithText",
         entryOf("Type", R"("hidden": true, "text": "topsecret", "sealed": "AAAA")"),
         "entry 2: text: must be null"},
        {"SealedNoBase64", entryOf("Type", R"("hidden": true, "sealed": "A*==")"),
         "entry 2: sealed: must be a base64 string"},
        {"SealedLooseBits", entryOf("Type", R"("hidden": true, "sealed": "AB==")"),
         "entry 2: sealed: must be a base64 string"},
        {"SealedTooLong",
         entryOf("Type", R"("hidden": true, "sealed": )" + quoted(times("AAAA", 86))),
         "entry 2: sealed: has more than 255 bytes"},
        {"SettingsUnknownField", entryOf("Menu_Command", transfer + R"({"host": 1})"),
         "entry 2, transferSettings: host: unknown field"},
        {"SettingsTextTooLong",
         entryOf("Menu_Command", transfer + R"({"member": )" + quoted(times("m", 32)) + "}"),
         "entry 2, transferSettings: member: is longer than 31"},
        {"SettingsNul", entryOf("Menu_Command", transfer + R"({"member": "a\u0000"})"),
         "entry 2, transferSettings: member: holds a NUL"},
        {"SettingsNumberTooHigh", entryOf("Menu_Command", transfer + R"({"recordFormat": 256})"),
         "entry 2, transferSettings: recordFormat: must be a whole number from 0 to 255"},
        {"BlockTooShort", entryOf("Menu_Command", transfer + R"({"block": "AAAA"})"),
         "entry 2, transferSettings: block: must have 933 bytes"},
        {"VtSettings",
         formOf(R"({"command": "Menu_Command", "commandId": 236, "transferSettings": {}})", "VT"),
         "entry 2: transferSettings: a VT script stores none"},
        {"Vt213", formOf(R"({"command": "Menu_Command", "commandId": 213})", "VT"),
         "entry 2 cannot be stored in a VT script"},
    };
}

}  // namespace

class Refused : public QdsTest, public testing::WithParamInterface<Refusal> {};

TEST_P(Refused, namesThePlaceAndWritesNothing) {
    const std::string out = file("out.qds", bytesOf("keep me"));
    const QdsRun run = runQds({"build", "-", "--output", out}, bytesOf(GetParam().json));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.find("qds: standard input: "), 0u) << run.err;
    EXPECT_NE(run.err.find(GetParam().message), std::string::npos) << run.err;
    EXPECT_EQ(run.err.find("topsecret"), std::string::npos) << run.err;
    EXPECT_EQ(linesOfText(run.err).size(), 1u) << run.err;
    EXPECT_EQ(readBytes(out), bytesOf("keep me"));
    EXPECT_EQ(names(), std::vector<std::string>{"out.qds"});
}

INSTANTIATE_TEST_SUITE_P(Form, Refused, testing::ValuesIn(badForms()), rowName);
INSTANTIATE_TEST_SUITE_P(Entry, Refused, testing::ValuesIn(badEntries()), rowName);
INSTANTIATE_TEST_SUITE_P(Text, Refused, testing::ValuesIn(badTextsAndSettings()), rowName);

class Build : public QdsTest {};

TEST_F(Build, replacesTheOutput) {
    const std::string source = file("a.json", bytesOf(R"({"hostType": "UTS", "entries": []})"));
    const std::string out = file("out.qds", bytesOf("an older result"));
    EXPECT_EQ(runQds({"build", source, "--output", out}).status, 0);
    EXPECT_EQ(readBytes(out), bytesOf("QDUDSCR="));
    EXPECT_EQ(runQds({"build", source, "--output", source}).status, 0);
    EXPECT_EQ(names(), (std::vector<std::string>{"a.json", "a.json.bak", "out.qds"}));
}

TEST_F(Build, enciphersUnderTheUsersIdentity) {
    const std::string json =
        R"({"hostType": "Mainframe", "entries": [{"command": "Type", "text": "secret7", "hidden": true}]})";
    const Bytes known = {0x6e, 0x81, 0x38, 0x3b, 0xa9, 0xc2, 0x9c, 0x0b,
                         0x05, 0xcd, 0x08, 0xb2, 0x8b, 0x5d, 0xae, 0x68};
    EXPECT_EQ(built(json), scriptFile("QDMDSCR=", {{15, 16}, known, {1}}));
}

}  // namespace quendra::test
