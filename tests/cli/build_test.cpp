// qds build: what it refuses, and that it writes nothing then.
#include "cli/qds_run.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace quendra::test {
namespace {

std::string times(const std::string& text, std::size_t count) {
    std::ostringstream all;
    std::fill_n(std::ostream_iterator<std::string>(all), count, text);
    return all.str();
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
    std::string manyFields = "'f': 0";
    for (int i = 0; i < 1000; ++i)
        manyFields += ", 'f" + std::to_string(i) + "': 0";
    expectRefused("{\n  hostType", "not valid JSON at line 2, column 3 (byte offset 4)");
    expectRefused("{'text': 'topsecret', 'x': 'topsecret", "not valid JSON");
    expectRefused("{'hostType': '\xC3\x28'}", "not valid JSON");
    expectRefused(vt + "'entries': [{'command': 'Comment', 'text': '\\ud800'}]}", "not valid JSON");
    expectRefused(vt + "'entries': [{'command': 'Wait', 'number': 1e999}]}", "out of range");
    expectRefused(times("[", 100'000), "nested too deep");
    expectRefused("[" + times("0,", 500'000) + "0]", "more than any script has");
    expectRefused("{" + manyFields + "}", "too many fields");
    expectRefused(vt + "'entries': [], 'entries': []}", "two fields called entries");
    expectRefused("[]", "must be an object");
    expectRefused("{'hostType': 'mainframe', 'entries': []}", "hostType: must be");
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
    expectRefused("Watch_For", "'else': {'command': 'Beep'}", ": else" + unknown);
    expectRefused("Wait_For", "'then': {'command': 'Beep'}", ": then: a Wait_For has it only when");
    expectRefused("Wait_For", "'timeoutSeconds': 5", ": timeoutSeconds: a Wait_For has it only");
    const std::pair<std::string, std::string> actions[] = {
        {"'Wait_For', 'hasTimeout': false", ", then action: hasTimeout" + unknown},
        {"'If_Input_Is', 'text': 'a'", ", then action: command: cannot be an"},
        {"'Watch_For', 'record': 'AXc='", ": the record of an action is damaged"},
        {"'Watch_For', 'record': 'ABQAFAAUABQAFAAA'", ": the record of an action is damaged"},
    };
    for (const auto& [action, message] : actions)
        expectRefused("Watch_For", "'then': {'command': " + action + "}", message);
}

TEST_F(Build, refusesFieldsOutsideTheirRange) {
    const std::string notWhole = ": number: must be a whole number from 0 to 4294967295";
    expectRefused("Comment", "'text': 5", ": text: must be a string");
    expectRefused("Comment", "'text': '" + times("\u00e9", 256) + "'",
                  ": text: is longer than 255 characters");
    expectRefused("Input", "'prompt': '" + times("p", 1024) + "'",
                  ": prompt: is longer than 1023 characters");
    expectRefused("If_Input_Is", "'else': {'command': 'Label', 'text': '\\u4e2d'}",
                  ", else action: text: holds a character that windows-1252 lacks");
    for (const char* number : {"-1", "4294967296", "99999999999999999999999", "1.0", "'1'"})
        expectRefused("Wait", "'number': " + std::string(number), notWhole);
    expectRefused("Set_Cursor", "'row': 256", ": row: must be a whole number from 0 to 255");
    expectRefused("Wait_For", "'exactPosition': 256",
                  ": exactPosition: must be true, false or a whole number");
    expectRefused("Input", "'inputVariable': 'VarOther'", ": inputVariable: is not a variable");
    expectRefused("Copy", "'area': [1, 1]", ": area: must be a list of 4 numbers");
    expectRefused("Paste", "'area': [1, 1], 'commandId': 0", ": area: stands beside");
    expectRefused("LU_Function", "'group': 4, 'name': 'Help'", ": number: is missing");
    expectRefused("Menu_Command", "'name': 'Help'", ": commandId: is missing");
    expectRefused("Wait_Until", "'waitUntil': {'year': 65536}",
                  ", waitUntil: year: must be a whole number from 0 to 65535");
}

TEST_F(Build, refusesTextsThatCannotBeHidden) {
    const std::string hidden = "'hidden': true, ";
    expectRefused("Type", hidden + "'text': '" + times("s", 247) + "'",
                  ": text: is longer than 246 characters");
    expectRefused("Type", hidden + "'text': null",
                  ": text: a hidden text is missing: show it with --reveal");
    expectRefused("Type", hidden + "'text': 'a\\u0000b'",
                  ": text: a hidden text cannot hold a NUL");
    expectRefused("Type", "'sealed': 'AAAA'", ": sealed: only a hidden text");
    expectRefused("Type", hidden + "'text': 'topsecret', 'sealed': 'AAAA'", ": text: must be null");
    expectRefused("Type", hidden + "'sealed': 'A*=='", ": sealed: must be a base64 string");
    expectRefused("Type", hidden + "'sealed': '" + times("AAAA", 86) + "'",
                  ": sealed: has more than 255 bytes");
}

TEST_F(Build, refusesTransferSettingsThatNoRecordHolds) {
    const std::pair<std::string, std::string> rows[] = {
        {"'host': 1", "host: unknown field"},
        {"'member': '" + times("m", 32) + "'", "member: is longer than 31"},
        {"'member': 'a\\u0000'", "member: holds a NUL"},
        {"'block': 'AAAA'", "block: must have 933 bytes"},
    };
    for (const auto& [settings, message] : rows)
        expectRefused("Menu_Command", "'commandId': 236, 'transferSettings': {" + settings + "}",
                      ", transferSettings: " + message);
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
