// qds show and qds texts.
#include "cli/qds_run.h"

#include <algorithm>

namespace quendra::test {
namespace {

const Bytes comment = commentRecord("one");
const Bytes beep = {4};

class Show : public QdsTest {};

TEST_F(Show, headsSeveralFilesNumbersTheirLinesAndGoesOnAfterOneThatCannotBeRead) {
    const std::string first = file("a.qds", scriptFile("QDMDSCR=", {comment, beep}));
    const std::string empty = file("b.qds", scriptFile("QDVTSCR=", {}));
    const std::string missing = file("missing.qds");
    const QdsRun run = runQds({"show", "--numbers", first, missing, file("."), empty, "-"},
                              scriptFile("QDMDSCR=", {beep}));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "==> " + first + " <==\n     1\tone\n     2\tBeep\n==> " + empty +
                           " <==\n==> standard input <==\n     1\tBeep\n");
    EXPECT_EQ(run.err, "qds: " + missing + ": No such file or directory\nqds: " + file(".") +
                           ": Is a directory\n");
}

TEST_F(Show, escapesControlCharactersInLinesNamesAndTexts) {
    const std::string name =
        file("a\x1b[2J.qds", scriptFile("QDMDSCR=", {{6, 4, '\x1b', '\n', 0, 0x81}, {99}}));
    const QdsRun run = runQds({"show", name, name});
    EXPECT_NE(run.out.find("\\x1b\\x0a\\x00\\x81\n"), std::string::npos);
    const std::string texts = runQds({"texts"}).out;
    EXPECT_NE(texts.find("\n10167\tCancel\n"), std::string::npos);
    for (const std::string& text : {run.out, run.err, texts}) {
        EXPECT_TRUE(std::ranges::all_of(text, [](char c) {
            return c == '\n' || c == '\t' || static_cast<unsigned char>(c) >= 0x20;
        }));
    }
}

TEST_F(Show, printsWhatWasReadAndSaysWhereItStopped) {
    std::string manyBeeps;
    for (int i = 0; i < 4096; ++i)
        manyBeeps += "Beep\n";
    const struct {
        Bytes bytes;
        std::string lines;
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
        {scriptFile("QDMDSCR=", {Bytes(4097, 4)}), manyBeeps,
         "the file has more than 4096 entries, after 4096 entries (byte offset 4104)"},
    };
    for (const auto& row : rows) {
        const QdsRun run = runQds({"show", "-"}, row.bytes);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, row.lines);
        EXPECT_EQ(run.err, "qds: standard input: " + std::string(row.message) + "\n");
    }
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

TEST_F(Show, tellsOfTextsUnderAnotherIdentityBesideTheirLines) {
    const Bytes script =
        scriptFile("QDMDSCR=",
                   {comment, hiddenTypeRecord("", "theirs"), hiddenTypeRecord("", frozenIdentity()),
                    joined({{20}, counted("w"), hiddenTypeRecord("x", "theirs")})});
    const QdsRun run = runQds({"show", "-"}, script);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "one\nType \"\" (H)\nType \"\" (H)\nWatch_For \"w\" Then Type \"\" (H)\n");
    EXPECT_EQ(run.err,
              "qds: standard input: hidden under another user identity, and shown as if it were "
              "empty: the text of entry 2, 4\n");
}

TEST_F(Show, masksNothingThatLiesInTheFileInClear) {
    for (const std::uint8_t hidden : std::initializer_list<std::uint8_t>{0, 2, 255}) {
        const Bytes script = scriptFile("QDMDSCR=", {joined({{15}, counted("clear"), {hidden}})});
        EXPECT_EQ(runQds({"show", "-"}, script).out, "Type \"clear\"\n");
        const QdsRun form = runQds({"show", "--json", "-"}, script);
        EXPECT_NE(form.out.find("\"text\": \"clear\""), std::string::npos) << form.out;
        EXPECT_EQ(built(form.out), script);
    }
}

TEST_F(Show, goesOnWithoutTheLanguageLibraryAndSaysSo) {
    const Bytes script = scriptFile("QDMDSCR=", {beep});
    const QdsRun run = runQds({"show", "-"}, script, file(""));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "Beep\n");
    EXPECT_NE(run.err.find("Unable to load language library"), std::string::npos) << run.err;
    EXPECT_EQ(runQds({"convert", "--output", "-", "-"}, script, file("")).status, 0);
}

}  // namespace
}  // namespace quendra::test
