// qds show and qds texts.
#include "cli/qds_run.h"

#include <algorithm>
#include <map>

namespace quendra::test {
namespace {

// What stands for "{12345}" in the frozen lines.
std::map<std::string, std::string> textsByNumber() {
    std::map<std::string, std::string> texts;
    for (const std::string& line : linesOfText(runQds({"texts"}).out)) {
        const auto tab = line.find('\t');
        texts["{" + line.substr(0, tab) + "}"] = line.substr(tab + 1);
    }
    return texts;
}

std::string withTexts(std::string line, const std::map<std::string, std::string>& texts) {
    for (auto start = line.find('{'); start != std::string::npos; start = line.find('{', start)) {
        const auto size = line.find('}', start) - start + 1;
        const auto found = texts.find(line.substr(start, size));
        if (found != texts.end()) line.replace(start, size, found->second);
        start += found == texts.end() ? 1 : found->second.size();
    }
    return line;
}

const Bytes comment = joined({{6}, counted("one")});
const Bytes beep = {4};

}  // namespace

class Show : public QdsTest {};

TEST_F(Show, printsTheLinesOfEveryFrozenFile) {
    const auto texts = textsByNumber();
    ASSERT_EQ(frozenCases().size(), 150u);
    for (const Case& frozen : frozenCases()) {
        SCOPED_TRACE(frozen.name);
        const QdsRun run = runQds({"show", "-"}, frozen.file);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
        const auto lines = linesOfText(run.out);
        ASSERT_EQ(lines.size(), frozen.lines.size());
        for (std::size_t row = 0; row < lines.size(); ++row) {
            if (std::ranges::count(frozen.openRows, row) > 0) continue;
            EXPECT_EQ(lines[row], withTexts(frozen.lines[row], texts)) << "row " << row;
        }
    }
}

TEST_F(Show, headsSeveralFilesAndNumbersTheirLines) {
    const std::string first = file("a.qds", scriptFile("QDMDSCR=", {comment, beep}));
    const std::string empty = file("b.qds", scriptFile("QDVTSCR=", {}));
    const QdsRun run =
        runQds({"show", "--numbers", first, empty, "-"}, scriptFile("QDMDSCR=", {beep}));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "==> " + first + " <==\n     1\tone\n     2\tBeep\n==> " + empty +
                           " <==\n==> standard input <==\n     1\tBeep\n");
}

TEST_F(Show, escapesControlCharactersInLinesNamesAndTexts) {
    const std::string name =
        file("a\x1b[2J.qds", scriptFile("QDMDSCR=", {{6, 4, '\x1b', '\n', 0, 0x81}, {99}}));
    const QdsRun run = runQds({"show", name, name});
    EXPECT_NE(run.out.find("\\x1b\\x0a\\x00\\x81\n"), std::string::npos);
    for (const std::string& text : {run.out, run.err, runQds({"texts"}).out}) {
        EXPECT_TRUE(std::ranges::all_of(text, [](char c) {
            return c == '\n' || c == '\t' || static_cast<unsigned char>(c) >= 0x20;
        }));
    }
}

TEST_F(Show, goesOnAfterAFileThatCannotBeRead) {
    const std::string good = file("good.qds", scriptFile("QDMDSCR=", {beep}));
    const QdsRun run = runQds({"show", file("missing.qds"), file("."), good});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "==> " + good + " <==\nBeep\n");
    EXPECT_EQ(run.err, "qds: " + file("missing.qds") +
                           ": No such file or directory\nqds: " + file(".") + ": Is a directory\n");
}

TEST_F(Show, printsWhatWasReadAndSaysWhereItStopped) {
    const struct {
        Bytes bytes;
        const char* lines;
        const char* message;
    } rows[] = {
        {{}, "", "the file is too short to be a script (byte offset 0)"},
        {bytesOf("QDUDSCR7"), "",
         "the file has no script signature of a known version (byte offset 0)"},
        {scriptFile("QDMDSCR=", {beep, {6, 9, 'x'}}), "Beep\n",
         "the file ends inside an entry, after 1 entry (byte offset 11)"},
        {scriptFile("QDMDSCR=", {beep, comment, {3}}), "Beep\none\n",
         "unknown command code, after 2 entries (byte offset 14)"},
        {scriptFile("QDMDSCR=", {{8, 0}, word(1024)}), "",
         "an Input prompt is longer than 1023 characters, after 0 entries (byte offset 10)"},
    };
    for (const auto& row : rows) {
        const std::string name = file("damaged.qds", row.bytes);
        const QdsRun run = runQds({"show", name});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, row.lines);
        EXPECT_EQ(run.err, "qds: " + name + ": " + row.message + "\n");
    }
}

TEST_F(Show, printsAFullScriptAndTellsOfMore) {
    Bytes bytes = scriptFile("QDMDSCR=", {Bytes(4097, 4)});
    const QdsRun run = runQds({"show", "-"}, bytes);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(linesOfText(run.out).size(), 4096u);
    EXPECT_NE(run.err.find("(byte offset 4104)"), std::string::npos) << run.err;
    bytes.pop_back();
    EXPECT_EQ(runQds({"show", "-"}, bytes).status, 0);
}

TEST_F(Show, keepsHiddenTextsUnlessAskedForThem) {
    const Bytes script = built(R"({"hostType": "Mainframe", "entries": [
        {"command": "Type", "text": "topsecret", "hidden": true},
        {"command": "Watch_For", "text": "w",
         "then": {"command": "Type", "text": "topsecret", "hidden": true}}]})");
    EXPECT_EQ(runQds({"show", "-"}, script).out,
              "Type \"*********\" (H)\nWatch_For \"w\" Then Type \"*********\" (H)\n");
    EXPECT_EQ(runQds({"show", "--json", "-"}, script).out.find("topsecret"), std::string::npos);
    EXPECT_EQ(runQds({"show", "--reveal", "-"}, script).out,
              "Type \"topsecret\" (H)\nWatch_For \"w\" Then Type \"topsecret\" (H)\n");
}

TEST_F(Show, notesWhatAWatchedWaitForLost) {
    const Bytes waitFor =
        joined({{20}, counted("w"), {17}, counted("f"), {1, 1, 0, 1, 1, 5, 4, 4}});
    const QdsRun run = runQds({"show", "-"}, scriptFile("QDMDSCR=", {beep, waitFor}));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "Beep\nWatch_For \"w\" Then Wait_For \"f\"\n");
    EXPECT_EQ(run.err,
              "qds: standard input: note: entry 2: the timeout and the actions of its watched "
              "Wait_For were dropped\n");
}

TEST_F(Show, goesOnWithoutTheLanguageLibraryAndSaysSo) {
    const Bytes script = scriptFile("QDMDSCR=", {beep, {1, 4, 0}});
    const QdsRun run = runQds({"show", "-"}, script, file(""));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(linesOfText(run.out).at(0), "Beep");
    EXPECT_NE(run.err.find("Unable to load language library"), std::string::npos) << run.err;
    EXPECT_EQ(runQds({"convert", "--output", "-", "-"}, script, file("")).status, 0);
}

TEST(Texts, giveEveryNumberAText) {
    const auto lines = linesOfText(runQds({"texts"}).out);
    EXPECT_GE(lines.size(), 500u);
    for (const std::string& line : lines) {
        const auto tab = line.find('\t');
        ASSERT_EQ(tab, 5u) << line;
        EXPECT_GT(line.size(), tab + 1) << line;
    }
}

}  // namespace quendra::test
