// qds grep, replace and rename-label: what they find, what they change, and what they leave alone.
#include "cli/qds_run.h"
#include "scriptfile/script_reader.h"

#include <filesystem>

namespace quendra::test {
namespace {

// A foreign hidden text, one of our own, and clear ones around them.
Bytes sample(std::string_view label, std::string_view typed, std::uint8_t row = 12) {
    return scriptFile("QDMDSCR=",
                      {joined({{10}, counted(label)}),
                       joined({{15}, counted(typed), {0}}),
                       joined({{20, 1, 'w'}, hiddenTypeRecord("Secret", "somebody else")}),
                       joined({{9},
                               counted(""),
                               {1},
                               counted("x"),
                               {0},
                               hiddenTypeRecord("Secret", ""),
                               {7},
                               counted(label)}),
                       {14, row, 3}});
}

class EditCommands : public QdsTest {};

TEST_F(EditCommands, GrepNamesEveryFieldAndNeverAHiddenText) {
    setIdentity("");
    const auto script = file("a.qds", sample("Retry12", "Secret\x01 12"));
    const auto grep = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "grep");
        arguments.push_back(script);
        return runQds(arguments);
    };
    const std::string hits = script + ":1:text: Retry12\n" + script + ":2:text: Secret\\x01 12\n" +
                             script + ":4:else.text: Retry12\n" + script + ":5:row: 12\n";
    EXPECT_EQ(grep({"12"}).out, hits);
    EXPECT_EQ(grep({"-E", "^[A-Z].*1.$|^12$"}).out, hits);
    EXPECT_EQ(grep({"-E", "[12]"}).out, hits) << "no list of two patterns";
    EXPECT_EQ(grep({"--field", "text", "-i", "RETRY"}).out,
              script + ":1:text: Retry12\n" + script + ":4:else.text: Retry12\n");
    EXPECT_EQ(grep({"--field", "else.text", "2"}).out, script + ":4:else.text: Retry12\n");
    EXPECT_EQ(grep({"-l", "Secret"}).out, script + "\n");
    EXPECT_EQ(grep({"ecret\x01 "}).status, 0);
    EXPECT_EQ(grep({"-E", "Secret$"}).status, 1) << "both hidden ones";
    EXPECT_EQ(grep({"retry"}).status, 1);
    EXPECT_EQ(grep({"-E", "("}).status, 2);
    const auto vt = file("vt.qds", scriptFile("QDVTSCR=", {menuRecord(234)}));
    EXPECT_EQ(runQds({"grep", "0", vt}).out, vt + ":1:commandData: 0\n") << "no settings in VT";
    EXPECT_EQ(grep({"--field", "hidden", "1"}).status, 2);
    EXPECT_EQ(grep({"--field", "then.then.text", "1"}).status, 2);
    EXPECT_EQ(grep({"12", file("missing.qds")}).status, 2);
    EXPECT_EQ(grep({"12", file("missing.qds")}).out, hits);
}

TEST_F(EditCommands, ReplaceChangesWhatItFindsAndNotOneByteMore) {
    const auto script = file("a.qds", sample("Retry12", "12 12", 12));
    const auto other = file("b.qds", sample("Nothing", "here", 1));
    const QdsRun dry = runQds({"replace", "--dry-run", "12", "7", script, other});
    EXPECT_EQ(dry.out, script + ":1:text: Retry12 -> Retry7\n" + script +
                           ":2:text: 12 12 -> 7 7\n" + script +
                           ":4:else.text: Retry12 -> Retry7\n" + script + ":5:row: 12 -> 7\n");
    EXPECT_EQ(names(), (std::vector<std::string>{"a.qds", "b.qds"}));
    EXPECT_EQ(runQds({"replace", "12", "7", script, other}).status, 0);
    EXPECT_EQ(readBytes(script), sample("Retry7", "7 7", 7));
    EXPECT_EQ(readBytes(script + ".bak"), sample("Retry12", "12 12", 12));
    EXPECT_EQ(names(), (std::vector<std::string>{"a.qds", "a.qds.bak", "b.qds"}));

    EXPECT_EQ(runQds({"replace", "-E", "--field", "text", "\\d", "[\\0]", script}).status, 0);
    EXPECT_EQ(readBytes(script), sample("Retry[\\0]", "[\\0] [\\0]", 7)) << "NEW is literal";
    EXPECT_EQ(runQds({"replace", "--dry-run", "--field", "row", "1", "001", other}).out, "")
        << "no other number";
    EXPECT_EQ(runQds({"replace", "--dry-run", "--field", "row", "-E", "x*|1", "2", other}).err,
              "qds: 1 field in 1 file would be changed\n");
}

TEST_F(EditCommands, ReplaceRefusesTheWholeFileAndGoesOnWithTheNext) {
    const std::string longText(200, 'a');
    const auto good = file("z.qds", sample("aa", "b"));
    const std::tuple<const char*, Bytes, std::string, std::string> rows[] = {
        {"2: text: nothing would be left", sample("aab", "aa"), "aa", ""},
        {"2: text: the result is too long", sample("a", longText), "a", "aa"},
        {"5: row: the result is no number", sample("1", "1", 1), "1", "999"},
        {"1: text: the result cannot be stored", sample("aa", "b"), "aa", "\u20ac\u0142"},
    };
    for (const auto& [fault, bytes, before, after] : rows) {
        const auto bad = file("a.qds", bytes);
        const QdsRun run = runQds({"replace", before, after, bad, good});
        EXPECT_NE(run.err.find("qds: " + bad + ": entry " + fault), std::string::npos) << run.err;
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(readBytes(bad), bytes);
    }
    const auto endless = file("a.qds", sample(longText + "!", "b"));
    const QdsRun run = runQds({"replace", "-E", "(a+)+$", "c", endless, good});
    EXPECT_EQ(run.err, "qds: " + endless +
                           ": the expression tries too many ways; the file is left " +
                           "as it is\nqds: 2 fields in 1 file changed\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(runQds({"replace", "a", "b", "-"}).status, 2);
    EXPECT_EQ(runQds({"replace", "", "b", good}).status, 2);
}

TEST_F(EditCommands, RenameLabelTakesLabelsAndJumpsAndNothingElse) {
    const auto script = file("a.qds", sample("Top", "Top"));
    EXPECT_EQ(runQds({"rename-label", "Top", "Start \xC3\xA4", script}).status, 0);
    Bytes expected = sample("Start \xE4", "Top");
    EXPECT_EQ(readBytes(script), expected);
    EXPECT_EQ(runQds({"rename-label", "Top", "x", script}).status, 0) << "nothing to do";
    EXPECT_EQ(readBytes(script), expected);

    const auto two =
        file("b.qds",
             scriptFile("QDMDSCR=", {joined({{7}, counted("a")}), joined({{10}, counted("b")})}));
    const QdsRun refused = runQds({"rename-label", "a", "b", two});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find(two + ": entry 1: text: there is a label"), std::string::npos);
    EXPECT_EQ(runQds({"rename-label", "a", std::string(256, 'x'), two}).status, 1);
    EXPECT_EQ(runQds({"rename-label", "nowhere", "b", two}).status, 0);
}

}  // namespace
}  // namespace quendra::test
