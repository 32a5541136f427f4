// qds build: what it refuses, and that it writes nothing then.
#include "cli/qds_run.h"
#include "scriptfile/format_version.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
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
        EXPECT_NE(run.err.find(" at line "), std::string::npos) << run.err;
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
    const std::string wait = vt + "\n'entries': [\n{'command': 'Wait', 'number': ";
    refuses(wait + "1e999}]}", "entry 1: number: a number is out of range at line 3, column 31 (b");
    refuses(wait + "-1}]}",
            "entry 1: number: must be a whole number from 0 to 4294967295 at line 3, "
            "column 21 (byte offset 53)");
    refuses(wait + "7, 'a\\'b': 1, 'a\\'b' : 2}]}",
            "entry 1: a\"b: the field is there twice at line 3, column 45 (");
    refuses(times("[", 100'000), "nested too deep at line 1, column 9 (byte offset 8)");
    refuses(wait + times("[", 9), "entry 1: number: nested too deep at line 3, column 36 (");
    refuses("[" + times("0,", 500'000) + "0]",
            "more than any script has at line 1, column 819200 (");
    refuses("{" + manyFields + "}", "f99: one field too many at line 1, column ");
    refuses(vt + "'entries': [], 'entries': []}", ": entries: the field is there twice");
    refuses("[]", "must be an object at line 1, column 1 (byte offset 0)");
    refuses(vt + "'entries': [], 'incomplete': ''}", "incomplete: must say why");
    refuses("{'hostType': 'mainframe', 'entries': []}",
            "hostType: must be Mainframe, ISeries, VT, UTS, T27 or ICL at line 1, column 2 (");
    refuses(vt + "'entries': {}}", "entries: must be a list");
    refuses(vt + "'entries': [], 'version': 1}", "version: unknown field");
    refuses(vt + "'entries': [" + times("0,", 4096) + "0]}",
            "entries: a script has at most 4096 at line 1, column 8224");
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
    // A text and options of its own, and the timeout of another.
    refusesAction("'Wait_For', 'text': 'i', 'record': 'AW8BAQABAR4AAA=='", ": the record of an");
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
    refusesEntry("'LU_Function', 'name': null", ": group: is missing");
    refusesEntry("'LU_Function', 'name': 'Entre'", ": name: is not the name of a key that");
    refusesEntry("'LU_Function', 'name': 4", ": name: is not the name of a key that");
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
}

TEST_F(Build, keepsTheOutputThatItReplacesUnlessItIsTheSame) {
    const std::string source = file("a.json", bytesOf(R"({"hostType": "UTS", "entries": []})"));
    const std::string out = file("out.qds", bytesOf("an older result"));
    file("empty.qds", bytesOf(""));
    for (const std::string& output : {out, out, file("empty.qds"), source})
        EXPECT_EQ(runQds({"build", source, "--output", output}).status, 0);
    EXPECT_EQ(readBytes(out), bytesOf("QDUDSCR="));
    EXPECT_EQ(readBytes(out + ".bak"), bytesOf("an older result"));
    EXPECT_EQ(names(), (std::vector<std::string>{"a.json", "a.json.bak", "empty.qds", "out.qds",
                                                 "out.qds.bak"}));
}

TEST_F(Build, takesTheFormOfAFileThatWasNotWholeOnlyWhenLossIsAllowed) {
    const Bytes cut = scriptFile("QDMDSCR=", {{4}, {6, 9, 'x'}});
    const std::string script = file("a.qds", cut);
    const QdsRun shown = runQds({"show", "--json", script});
    EXPECT_EQ(shown.status, 1);
    const std::string form = file("a.json", bytesOf(shown.out));
    const std::string why =
        "made from a file that was not whole: the file ends inside an entry, "
        "after 1 entry (byte offset 11)";
    const QdsRun refused = runQds({"build", form, "--output", script});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.starts_with("qds: " + form + ": " + why)) << refused.err;
    EXPECT_EQ(readBytes(script), cut);
    const QdsRun built = runQds({"build", "--allow-loss", form, "--output", script});
    EXPECT_EQ(built.status, 0);
    EXPECT_EQ(built.err, "qds: " + form + ": note: " + why + "\n");
    EXPECT_EQ(readBytes(script), scriptFile("QDMDSCR=", {{4}}));
    EXPECT_EQ(readBytes(script + ".bak"), cut);
}

TEST_F(Build, losesWhatVtCannotStoreOnlyWhenThatIsAllowed) {
    const Bytes form = bytesOf(
        R"({"hostType": "VT", "entries": [{"command": "Menu_Command", "commandId": 213}]})");
    const QdsRun refused = runQds({"build", "-", "--output", "-"}, form);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    const QdsRun lossy = runQds({"build", "--allow-loss", "-", "--output", "-"}, form);
    EXPECT_EQ(lossy.status, 1);
    EXPECT_NE(lossy.err.find("entry 1 cannot be stored in a VT script"), std::string::npos);
    EXPECT_EQ(bytesOf(lossy.out), scriptFile("QDVTSCR=", {menuRecord(211)}));
}

TEST_F(Build, knowsEveryKeyByItsEnglishName) {
    const auto library = [] {
        auto loaded = std::make_unique<LanguageLibrary>();
        EXPECT_FALSE(loaded->load({QUENDRA_PROGRAM_FOLDER, {}, QUENDRA_PROGRAM_FOLDER}));
        return loaded;
    }();
    const LuCatalogues catalogues = buildLuCatalogues(library->textSource());
    for (const HostType type : allHostTypes) {
        std::string entries;
        Bytes records;
        for (const LuFunction& row : catalogues.of(type).rows) {
            if (!entries.empty()) entries += ',';
            const std::string name = nlohmann::json(row.name).dump();
            entries += R"({"command": "LU_Function", "name": )" + name + '}';
            records = joined({records, {1, row.key.group, row.key.number}});
        }
        const Bytes script = built(R"({"hostType": ")" + std::string(hostTypeInfo(type).name) +
                                   R"(", "entries": [)" + entries + "]}");
        const auto signature = signatureBytes({type, currentVersion});
        EXPECT_EQ(script, joined({Bytes(signature.begin(), signature.end()), records}))
            << hostTypeInfo(type).name;
    }
}

}  // namespace
}  // namespace quendra::test
