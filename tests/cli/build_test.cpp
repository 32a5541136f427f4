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
    void refuses(std::string form, const std::string& message) {
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
    // A form with this as its second entry.
    void refusesEntry(const std::string& entry, const std::string& message,
                      const std::string& type = "UTS") {
        refuses("{'hostType': '" + type +
                    "', 'entries': [{'command': 'Beep'}, {'command': " + entry + "}]}",
                "entry 2" + message);
    }
};

TEST_F(Build, refusesWhatIsNoForm) {
    const std::string vt = "{'hostType': 'VT', ";
    std::string manyFields = "'f': 0";
    for (int i = 0; i < 1000; ++i)
        manyFields += ", 'f" + std::to_string(i) + "': 0";
    refuses("{\n  hostType", "not valid JSON at line 2, column 3 (byte offset 4)");
    refuses("{'text': 'topsecret', 'x': 'topsecret", "not valid JSON");
    refuses("{'hostType': '\xC3\x28'}", "not valid JSON");
    refuses(vt + "'entries': [{'command': 'Wait', 'number': 1e999}]}", "out of range");
    refuses(times("[", 100'000), "nested too deep");
    refuses("[" + times("0,", 500'000) + "0]", "more than any script has");
    refuses("{" + manyFields + "}", "too many fields");
    refuses(vt + "'entries': [], 'entries': []}", "two fields called entries");
    refuses("[]", "must be an object");
    refuses("{'hostType': 'mainframe', 'entries': []}", "hostType: must be");
    refuses(vt + "'entries': {}}", "entries: must be a list");
    refuses(vt + "'entries': [], 'version': 1}", "version: unknown field");
    refuses(vt + "'entries': [" + times("0,", 4096) + "0]}", "entries: a script has at most 4096");
    refuses(vt + "'entries': [5]}", "entry 1: must be an object");
    refuses(vt + "'entries': [{}]}", "entry 1: command: is missing");
}

TEST_F(Build, refusesEntriesThatNoScriptHolds) {
    refusesEntry("'type', 'text': ''", ": command: is not the name of a command");
    refusesEntry("'Beep', 'text': 'a'", ": text: unknown field");
    refusesEntry("'Beep', '\\u001b[2J': 1", ": \\x1b[2J: unknown field");
    refusesEntry("'Watch_For', 'else': {'command': 'Beep'}", ": else: unknown field");
    refusesEntry("'Wait_For', 'then': {'command': 'Beep'}", ": then: a Wait_For has it only when");
    refusesEntry("'Wait_For', 'timeoutSeconds': 5", ": timeoutSeconds: a Wait_For has it only");
    const auto refusesAction = [&](const std::string& action, const std::string& message) {
        refusesEntry("'Watch_For', 'then': {'command': " + action + "}", message);
    };
    refusesAction("'Wait_For', 'hasTimeout': false", ", then action: hasTimeout: unknown field");
    refusesAction("'If_Input_Is', 'text': 'a'", ", then action: command: cannot be an");
    refusesAction("'Watch_For', 'record': 'AXc='", ": the record of an action is damaged");
    refusesAction("'Watch_For', 'record': 'ABQAFAAUABQAFAAA'", ": the record of an action is");
}

TEST_F(Build, refusesFieldsOutsideTheirRange) {
    refusesEntry("'Comment', 'text': 5", ": text: must be a string");
    refusesEntry("'Label', 'text': '" + times("\u00e9", 256) + "'", ": text: is longer than 255");
    refusesEntry("'Input', 'prompt': '" + times("p", 1024) + "'", ": prompt: is longer than 1023");
    refusesEntry("'If_Input_Is', 'else': {'command': 'Label', 'text': '\\u4e2d'}",
                 ", else action: text: holds a character that windows-1252 lacks");
    for (const std::string number : {"-1", "4294967296", "99999999999999999999999", "1.0", "'1'"})
        refusesEntry("'Wait', 'number': " + number,
                     ": number: must be a whole number from 0 to 42");
    refusesEntry("'Set_Cursor', 'row': 256", ": row: must be a whole number from 0 to 255");
    refusesEntry("'Wait_For', 'exactPosition': 256", ": exactPosition: must be true, false or a");
    refusesEntry("'Input', 'inputVariable': 'VarOther'", ": inputVariable: is not a variable");
    refusesEntry("'Copy', 'area': [1, 1]", ": area: must be a list of 4 numbers");
    refusesEntry("'Paste', 'area': [1, 1], 'commandId': 0", ": area: stands beside");
    refusesEntry("'LU_Function', 'group': 4, 'name': 'Help'", ": number: is missing");
    refusesEntry("'Menu_Command', 'name': 'Help'", ": commandId: is missing");
    refusesEntry("'Wait_Until', 'waitUntil': {'year': 65536}",
                 ", waitUntil: year: must be a whole");
}

TEST_F(Build, refusesTextsThatCannotBeHidden) {
    const std::string hidden = "'Type', 'hidden': true, ";
    refusesEntry(hidden + "'text': '" + times("s", 247) + "'", ": text: is longer than 246");
    refusesEntry(hidden + "'text': null",
                 ": text: a hidden text is missing: show it with --reveal");
    refusesEntry(hidden + "'text': 'a\\u0000b'", ": text: a hidden text cannot hold a NUL");
    refusesEntry("'Type', 'sealed': 'AAAA'", ": sealed: only a hidden text");
    refusesEntry(hidden + "'text': 'topsecret', 'sealed': 'AAAA'", ": text: must be null");
    refusesEntry(hidden + "'sealed': 'A*=='", ": sealed: must be a base64 string");
    refusesEntry(hidden + "'sealed': '" + times("AAAA", 86) + "'", ": sealed: has more than 255");
}

TEST_F(Build, refusesTransferSettingsThatNoRecordHolds) {
    const std::string settings = "'Menu_Command', 'commandId': 236, 'transferSettings': {";
    refusesEntry(settings + "'host': 1}", ", transferSettings: host: unknown field");
    refusesEntry(settings + "'member': '" + times("m", 32) + "'}",
                 ", transferSettings: member: is longer");
    refusesEntry(settings + "'member': 'a\\u0000'}", ", transferSettings: member: holds a NUL");
    refusesEntry(settings + "'block': 'AAAA'}", ", transferSettings: block: must have 933 bytes");
    refusesEntry(settings + "}", ": transferSettings: a VT script stores none", "VT");
    refusesEntry("'Menu_Command', 'commandId': 213", " cannot be stored in a VT script", "VT");
}

TEST_F(Build, saysWhenAHiddenTextIsOnlyObscuredAndRefusesWhenNobodyKnows) {
    const std::string hidden = R"({"command": "Type", "hidden": true, "text": "x"})";
    const auto form = [](const std::string& entry) {
        return bytesOf(R"({"hostType": "UTS", "entries": [{"command": "Beep"}, )" + entry + "]}");
    };
    const Bytes forms[] = {
        form(hidden), form(R"({"command": "Watch_For", "text": "f", "then": )" + hidden + "}")};
    const Bytes open = form(R"({"command": "Type", "text": "x"})");
    const std::string registry = file(".config/quendra/registry.ini");
    const std::vector<std::string> build = {"build", "-", "--output", file("out.qds")};
    for (const Bytes& content : forms) {
        EXPECT_EQ(runQds(build, content).err, "") << "there is an identity";
        std::filesystem::remove(registry);
        const QdsRun told = runQds(build, content);
        EXPECT_EQ(told.status, 0);
        EXPECT_NE(told.err.find("note: entry 2: its hidden text is only obscured"),
                  std::string::npos);
        EXPECT_EQ(runQds(build, open).err, "") << "nothing is hidden";
        std::filesystem::create_directory(registry);
        std::filesystem::remove(file("out.qds"));
        const QdsRun refused = runQds(build, content);
        EXPECT_EQ(refused.status, 1);
        EXPECT_NE(refused.err.find("entry 2: its hidden text cannot be enciphered: your identity "
                                   "cannot be read from " +
                                   registry),
                  std::string::npos)
            << refused.err;
        EXPECT_EQ(names(), std::vector<std::string>()) << "nothing was written";
        EXPECT_EQ(runQds(build, open).status, 0);
        std::filesystem::remove(registry);
        setIdentity(frozenIdentity());
    }
}

TEST_F(Build, replacesTheOutput) {
    const std::string source = file("a.json", bytesOf(R"({"hostType": "UTS", "entries": []})"));
    const std::string out = file("out.qds", bytesOf("an older result"));
    EXPECT_EQ(runQds({"build", source, "--output", out}).status, 0);
    EXPECT_EQ(readBytes(out), bytesOf("QDUDSCR="));
    EXPECT_EQ(runQds({"build", source, "--output", source}).status, 0);
    EXPECT_EQ(names(), (std::vector<std::string>{"a.json", "a.json.bak", "out.qds"}));
}

}  // namespace
}  // namespace quendra::test
