// qds build: what it refuses, and that it writes nothing then.
#include "cli/qds_run.h"

#include <algorithm>

namespace quendra::test {
namespace {

std::string times(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

class Build : public QdsTest {
  protected:
    // For legibility the form has ' in place of ".
    void expectRefused(std::string form, const std::string& message) {
        SCOPED_TRACE(message);
        std::ranges::replace(form, '\'', '"');
        const std::string out = file("out.qds", bytesOf("keep me"));
        const QdsRun run = runQds({"build", "-", "--output", out}, bytesOf(form));
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.find("qds: standard input: "), 0U) << run.err;
        EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
        EXPECT_EQ(run.err.find("topsecret"), std::string::npos) << run.err;
        EXPECT_EQ(linesOfText(run.err).size(), 1U) << run.err;
        EXPECT_EQ(readBytes(out), bytesOf("keep me"));
        EXPECT_EQ(names(), std::vector<std::string>{"out.qds"});
    }
    // The second entry of a form; the message goes on behind "entry 2".
    void expectRefused(const std::string& command, const std::string& fields,
                       const std::string& message, const std::string& hostType = "Mainframe") {
        expectRefused("{'hostType': '" + hostType +
                          "', 'entries': [{'command': 'Beep'}, {'command': '" + command + "', " +
                          fields + "}]}",
                      "entry 2" + message);
    }
};

TEST_F(Build, refusesWhatIsNoForm) {
    const std::string vt = "{'hostType': 'VT', ";
    const std::string beep = "{'command': 'Beep'}";
    std::string manyFields = "'f'";
    for (int i = 0; i < 1000; ++i)
        manyFields += ": 0, 'f" + std::to_string(i) + "'";
    expectRefused("", "not valid JSON at line 1, column 1 (byte offset 0)");
    expectRefused("{\n  hostType", "not valid JSON at line 2, column 3 (byte offset 4)");
    expectRefused("{'text': 'topsecret', 'x': 'topsecret", "not valid JSON");
    expectRefused("{'hostType': '\xC3\x28'}", "not valid JSON");
    expectRefused(vt + "'entries': [{'command': 'Comment', 'text': '\\ud800'}]}", "not valid JSON");
    expectRefused(vt + "'entries': []} {}", "not valid JSON");
    expectRefused(vt + "'entries': [{'command': 'Wait', 'number': 1e999}]}", "out of range");
    expectRefused(times("[", 100'000), "nested too deep");
    expectRefused(times("{'a':", 100'000), "nested too deep");
    expectRefused("[" + times("0,", 500'000) + "0]", "more than any script has");
    expectRefused("[" + times("{},", 500'000) + "0]", "more than any script has");
    expectRefused("{" + manyFields + ": 0}", "too many fields");
    expectRefused(vt + "'entries': [], 'entries': []}", "two fields called entries");
    expectRefused("[]", "must be an object");
    expectRefused("{'entries': []}", "hostType: must be");
    expectRefused("{'hostType': 'mainframe', 'entries': []}", "hostType: must be");
    expectRefused("{'hostType': 'VT'}", "entries: must be a list");
    expectRefused(vt + "'entries': {}}", "entries: must be a list");
    expectRefused(vt + "'entries': [], 'version': 1}", "version: unknown field");
    expectRefused(vt + "'entries': [" + times(beep + ",", 4096) + beep + "]}",
                  "entries: a script has at most 4096");
    expectRefused(vt + "'entries': [" + beep + ", 5]}", "entry 2: must be an object");
    expectRefused(vt + "'entries': [{}]}", "entry 1: command: is missing");
}

TEST_F(Build, refusesEntriesThatNoScriptHolds) {
    const std::string unknown = ": unknown field";
    expectRefused("type", "'text': ''", ": command: is not the name of a command");
    expectRefused("Beep", "'text': 'a'", ": text" + unknown);
    expectRefused("Beep", "'\\u001b[2J': 1", ": \\x1b[2J" + unknown);
    expectRefused("Beep", "'then': {'command': 'Beep'}", ": then" + unknown);
    expectRefused("Watch_For", "'else': {'command': 'Beep'}", ": else" + unknown);
    expectRefused("Wait_For", "'then': {'command': 'Beep'}", ": then: a Wait_For has it only when");
    expectRefused("Wait_For", "'timeoutSeconds': 5", ": timeoutSeconds: a Wait_For has it only");
    const auto expectActionRefused = [&](const std::string& action, const std::string& message) {
        expectRefused("Watch_For", "'then': {'command': " + action + "}", message);
    };
    expectActionRefused("'Wait_For', 'hasTimeout': false", ", then action: hasTimeout" + unknown);
    expectActionRefused("'If_Input_Is', 'text': 'a'", ", then action: command: cannot be an");
    expectActionRefused("'Beep', 'record': 'AAAA'", ", then action: record" + unknown);
    const std::string damaged = ": the record of an action is damaged";
    expectActionRefused("'Watch_For', 'record': 'AXc='", damaged);
    expectActionRefused("'Watch_For', 'record': 'ABQAFAAUABQAFAAA'", damaged);
}

TEST_F(Build, refusesFieldsOutsideTheirRange) {
    const std::string notWhole = ": number: must be a whole number from 0 to 4294967295";
    expectRefused("Comment", "'text': 5", ": text: must be a string");
    expectRefused("Comment", "'text': null", ": text: must be a string");
    expectRefused("Comment", "'text': '" + times("\u00e9", 256) + "'",
                  ": text: is longer than 255 characters");
    expectRefused("Input", "'prompt': '" + times("p", 1024) + "'",
                  ": prompt: is longer than 1023 characters");
    expectRefused("If_Input_Is", "'compareText': '" + times("p", 256) + "'",
                  ": compareText: is longer than 255");
    expectRefused("If_Input_Is", "'else': {'command': 'Label', 'text': '\\u4e2d'}",
                  ", else action: text: holds a character that windows-1252 lacks");
    for (const char* number : {"-1", "4294967296", "99999999999999999999999", "1.0", "'1'"})
        expectRefused("Wait", "'number': " + std::string(number), notWhole);
    expectRefused("Set_Cursor", "'row': 256", ": row: must be a whole number from 0 to 255");
    expectRefused("Set_Cursor", "'row': true", ": row: must be a whole number");
    expectRefused("Wait_For", "'exactPosition': 256",
                  ": exactPosition: must be true, false or a whole number");
    expectRefused("Wait_For", "'caseSensitive': 'yes'", ": caseSensitive: must be true, false");
    expectRefused("Input", "'inputVariable': 'VarOther'", ": inputVariable: is not a variable");
    expectRefused("Copy", "'area': [1, 1]", ": area: must be a list of 4 numbers");
    expectRefused("Paste", "'area': [1, 256]", ": area: must be a whole number from 0 to 255");
    expectRefused("Paste", "'area': [1, 1], 'commandId': 0", ": area: stands beside");
    expectRefused("LU_Function", "'group': 4, 'name': 'Help'", ": number: is missing");
    expectRefused("Menu_Command", "'name': 'Help'", ": commandId: is missing");
    expectRefused("Menu_Command", "'commandId': 201, 'text': 'a'", ": text: unknown field");
    expectRefused("Wait_Until", "'waitUntil': {'year': 65536}",
                  ", waitUntil: year: must be a whole number from 0 to 65535");
    expectRefused("Wait_Until", "'waitUntil': {'weekday': 1}",
                  ", waitUntil: weekday: unknown field");
}

TEST_F(Build, refusesTextsThatCannotBeHidden) {
    const auto expectHiddenRefused = [&](const std::string& fields, const std::string& message) {
        expectRefused("Type", "'hidden': true, " + fields, message);
    };
    expectHiddenRefused("'text': '" + times("s", 247) + "'",
                        ": text: is longer than 246 characters");
    expectHiddenRefused("'text': null", ": text: a hidden text is missing: show it with --reveal");
    expectHiddenRefused("'text': 'a\\u0000b'", ": text: a hidden text cannot hold a NUL");
    expectRefused("Type", "'sealed': 'AAAA'", ": sealed: only a hidden text");
    expectHiddenRefused("'text': 'topsecret', 'sealed': 'AAAA'", ": text: must be null");
    expectHiddenRefused("'sealed': 'A*=='", ": sealed: must be a base64 string");
    expectHiddenRefused("'sealed': 'AB=='", ": sealed: must be a base64 string");
    expectHiddenRefused("'sealed': '" + times("AAAA", 86) + "'",
                        ": sealed: has more than 255 bytes");
}

TEST_F(Build, refusesTransferSettingsThatNoRecordHolds) {
    const auto expectSettingsRefused = [&](const std::string& settings,
                                           const std::string& message) {
        expectRefused("Menu_Command", "'commandId': 236, 'transferSettings': {" + settings + "}",
                      ", transferSettings: " + message);
    };
    expectSettingsRefused("'host': 1", "host: unknown field");
    expectSettingsRefused("'member': '" + times("m", 32) + "'", "member: is longer than 31");
    expectSettingsRefused("'member': 'a\\u0000'", "member: holds a NUL");
    expectSettingsRefused("'recordFormat': 256", "recordFormat: must be a whole number from 0 to");
    expectSettingsRefused("'block': 'AAAA'", "block: must have 933 bytes");
    expectRefused("Menu_Command", "'commandId': 236, 'transferSettings': {}",
                  ": transferSettings: a VT script stores none", "VT");
    expectRefused("Menu_Command", "'commandId': 213", " cannot be stored in a VT script", "VT");
}

TEST_F(Build, replacesTheOutput) {
    const std::string source = file("a.json", bytesOf(R"({"hostType": "UTS", "entries": []})"));
    const std::string out = file("out.qds", bytesOf("an older result"));
    EXPECT_EQ(runQds({"build", source, "--output", out}).status, 0);
    EXPECT_EQ(readBytes(out), bytesOf("QDUDSCR="));
    EXPECT_EQ(runQds({"build", source, "--output", source}).status, 0);
    EXPECT_EQ(names(), (std::vector<std::string>{"a.json", "a.json.bak", "out.qds"}));
}

TEST_F(Build, enciphersUnderTheUsersIdentity) {
    const Bytes known = {0x6e, 0x81, 0x38, 0x3b, 0xa9, 0xc2, 0x9c, 0x0b,
                         0x05, 0xcd, 0x08, 0xb2, 0x8b, 0x5d, 0xae, 0x68};
    EXPECT_EQ(built(R"({"hostType": "Mainframe",
                        "entries": [{"command": "Type", "text": "secret7", "hidden": true}]})"),
              scriptFile("QDMDSCR=", {{15, 16}, known, {1}}));
}

}  // namespace
}  // namespace quendra::test
