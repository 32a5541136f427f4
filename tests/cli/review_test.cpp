// Review and version control: the full text form, qds diff, qds merge, and git itself with both.
#include "cli/qds_run.h"
#include "forms/full_text.h"
#include "model/entry_fields.h"
#include "model/menu_commands.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>

namespace quendra::test {
namespace {

std::vector<std::string> fullLines(const ScriptEntry& entry) {
    static const NumberedNames names;
    static const HiddenTextCipher cipher("");
    std::ostringstream out;
    printFullText(out, {{packEntry(entry, cipher).entry}}, HostType::UTS, names.of(HostType::UTS),
                  cipher);
    return linesOfText(out.str());
}

// A change that hides takes no line at all; one that is told twice takes more than two.
std::ptrdiff_t linesThatDiffer(std::vector<std::string> left, std::vector<std::string> right) {
    std::ptrdiff_t count = 0;
    for (auto* lines : {&left, &right})
        std::ranges::sort(*lines);
    std::vector<std::string> gone;
    std::vector<std::string> come;
    std::ranges::set_difference(left, right, std::back_inserter(gone));
    std::ranges::set_difference(right, left, std::back_inserter(come));
    count = static_cast<std::ptrdiff_t>(std::max(gone.size(), come.size()));
    return count;
}

// An entry of the command in the slot, of each owner that may have it there.
std::vector<std::pair<ScriptEntry, Slot>> placesOf(CommandCode code, std::uint32_t commandId) {
    std::vector<std::pair<ScriptEntry, Slot>> places;
    ScriptEntry entry;
    entry.code = code;
    entry.commandId = commandId;
    entry.hasTimeout = 1;
    places.emplace_back(entry, Slot::Entry);
    for (const CommandCode owner :
         {CommandCode::WaitFor, CommandCode::IfInputIs, CommandCode::WatchFor}) {
        if (!mayBeAction(code, owner)) continue;
        ScriptEntry owning;
        owning.code = owner;
        owning.hasTimeout = 1;
        for (const Slot slot : slotsOf(owning).subspan(1)) {
            ScriptEntry made = owning;
            slotFields(made, slot).code = code;
            slotFields(made, slot).commandId = commandId;
            places.emplace_back(made, slot);
        }
    }
    return places;
}

// Changes each field of the slot alone, and gives how many changes that were.
std::size_t changeEachField(const ScriptEntry& left, Slot slot) {
    std::size_t tried = 0;
    for (const EntryField& field : fieldsOf(left, slot)) {
        if (field.kind == FieldKind::MenuCode || field.name == "hasTimeout") continue;
        for (const std::uint32_t number : {1U, 2U, 77U}) {
            ScriptEntry right = left;
            const FieldValue value = isText(field.kind)
                                         ? FieldValue(number == 1 ? "Beep" : "a\" Else")
                                         : FieldValue(number);
            EXPECT_EQ(setField(right, slot, field, value), FieldRefusal::None);
            const auto count = linesThatDiffer(fullLines(left), fullLines(right));
            EXPECT_EQ(count == 0, fieldValue(left, slot, field) == value) << fieldPath(slot, field);
            EXPECT_LE(count, 2) << fieldPath(slot, field);
            ++tried;
        }
    }
    return tried;
}

TEST(FullText, TellsEachFieldThatAloneWasChangedInAtMostTwoLines) {
    std::size_t tried = 0;
    for (std::uint32_t code = 1; code <= 23; ++code) {
        if (!isCommandCode(code)) continue;
        SCOPED_TRACE(code);
        for (const std::uint32_t commandId : {201U, 202U, 236U}) {
            for (const auto& [left, slot] : placesOf(static_cast<CommandCode>(code), commandId)) {
                tried += changeEachField(left, slot);
            }
        }
    }
    EXPECT_GT(tried, 1000U);
}

class Review : public QdsTest {
  protected:
    static Bytes script(std::initializer_list<Bytes> records) {
        return scriptFile("QDMDSCR=", records);
    }
    static Bytes waitFor(std::string_view text, std::uint8_t seconds) {
        return joined({{17}, counted(text), {1, 1, 0, 1, 1, seconds, 0, 0}});
    }
};

TEST_F(Review, FullTextNeverPrintsASecretAndSaysWhereAFileEnds) {
    setIdentity("");
    FileTransferSettings settings;
    setTransferText(settings, transfer::hostFilePassword, "Canary");
    Bytes bytes =
        script({hiddenTypeRecord("Canary", ""), transferRecord(settings, sendFileCommand)});
    bytes.push_back(99);
    const QdsRun run = runQds({"show", "--full", file("a.qds", bytes)});
    EXPECT_EQ(run.status, 0) << "a failing text conversion would end git diff";
    EXPECT_EQ(run.out.find("Canary"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\n    text sealed #"), std::string::npos) << run.out;
    EXPECT_TRUE(linesOfText(run.out).back().starts_with("(incomplete: ")) << run.out;
    EXPECT_EQ(runQds({"show", "--full", "--json", file("a.qds")}).status, 2);
}

TEST_F(Review, DiffTellsFieldsAndItsStatus) {
    const auto a = file("a.qds", script({waitFor("R", 30), {4}, {12}, commentRecord("x")}));
    const auto b = file("b.qds", script({commentRecord("x"), waitFor("R", 3), {4}, {12}, {5}}));
    EXPECT_EQ(runQds({"diff", a, a}).status, 0);
    EXPECT_EQ(runQds({"diff", a, a}).out, "");
    const QdsRun run = runQds({"diff", a, b});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out,
              "> 4 -> 1: x\n! 1 -> 2: Wait_For \"R\"\n      timeoutSeconds 30 -> 3\n"
              "+ 5: Clear_Watch\n");
    const auto form = nlohmann::json::parse(runQds({"diff", "--json", a, b}).out);
    ASSERT_EQ(form["changes"].size(), 3U);
    EXPECT_EQ(
        form["changes"][1].dump(),
        R"({"a":1,"b":2,"fields":[{"a":30,"b":3,"name":"timeoutSeconds"}],"kind":"changed"})");
    const auto vt =
        file("vt.qds", scriptFile("QDVTSCR=", {waitFor("R", 30), {4}, {12}, commentRecord("x")}));
    EXPECT_EQ(runQds({"diff", a, vt}).out, "! hostType Mainframe -> VT\n");
    Bytes cut = readBytes(a);
    cut.pop_back();
    EXPECT_EQ(runQds({"diff", a, file("cut.qds", cut)}).status, 2);
    EXPECT_EQ(runQds({"diff", a, "-"}, readBytes(b)).out, run.out);
}

TEST_F(Review, DiffTellsAHiddenTextFromOneThatSaysSo) {
    setIdentity("");
    const auto a = file("a.qds", script({hiddenTypeRecord("Canary", "")}));
    const auto b = file("b.qds", script({joined({{15}, counted("sealed"), {0}})}));
    EXPECT_NE(runQds({"diff", a, b}).out.find("text sealed -> \"sealed\"\n"), std::string::npos);
    const auto form = nlohmann::json::parse(runQds({"diff", "--json", a, b}).out);
    EXPECT_EQ(form["changes"][0]["fields"][0].dump(),
              R"({"a":"sealed","aHidden":true,"b":"sealed","name":"text"})");
}

TEST_F(Review, MergeWritesAWholeScriptOrNothing) {
    const Bytes baseBytes = script({waitFor("R", 30), {4}});
    const Bytes longer = script({waitFor("R", 60), {4}});
    const Bytes shorter = script({waitFor("R", 3), {4}});
    const Bytes added = script({waitFor("R", 30), {4}, {5}});
    const auto base = file("base.qds", baseBytes);
    const auto merge = [&](const Bytes& ours, const Bytes& theirs) {
        return runQds({"merge", "--name-theirs", "topic", base, file("ours.qds", ours),
                       file("theirs.qds", theirs)});
    };
    EXPECT_EQ(merge(longer, added).status, 0);
    EXPECT_EQ(readBytes(file("ours.qds")), script({waitFor("R", 60), {4}, {5}}));
    EXPECT_EQ(merge(baseBytes, longer).status, 0);
    EXPECT_EQ(readBytes(file("ours.qds")), longer);
    EXPECT_EQ(merge(longer, shorter).status, 1);
    EXPECT_EQ(readBytes(file("ours.qds")), script({commentRecord("<<<<<<< ours"),
                                                   waitFor("R", 60),
                                                   commentRecord("======="),
                                                   waitFor("R", 3),
                                                   commentRecord(">>>>>>> topic"),
                                                   {4}}));
    EXPECT_EQ(runQds({"check", file("ours.qds")}).status, 1);
    Bytes cut = longer;
    cut.back() = 99;
    EXPECT_EQ(merge(longer, cut).status, 2);
    EXPECT_EQ(readBytes(file("ours.qds")), longer);
    EXPECT_EQ(names(), (std::vector<std::string>{"base.qds", "ours.qds", "theirs.qds"}))
        << "no backup";
    file("base.qds", {});
    EXPECT_EQ(merge(script({{4}}), script({{4}, {5}})).status, 0) << "both added the file";
    EXPECT_EQ(readBytes(file("ours.qds")), script({{4}, {5}}));
}

// As the manual says it: three lines of configuration.
TEST_F(Review, GitDiffsAndMergesScripts) {
    const std::string qds = std::string(QUENDRA_PROGRAM_FOLDER) + "/qds";
    const auto run = [&](const std::string& command) {
        const std::string line = "cd '" + file("") +
                                 "' && export HOME=\"$PWD\" GIT_CONFIG_NOSYSTEM=1 && " + command +
                                 " >output.txt 2>&1";
        return std::system(line.c_str());
    };
    const auto output = [&] {
        const Bytes bytes = readBytes(file("output.txt"));
        return std::string(bytes.begin(), bytes.end());
    };
    const Bytes middle = commentRecord("middle");
    const auto save = [&](std::uint8_t seconds, std::string_view last) {
        file("a.qds", script({waitFor("R", seconds), middle, joined({{7}, counted(last)})}));
        return run("git add -A && git commit -qm change");
    };
    file(".gitattributes", bytesOf("*.qds -text diff=qds merge=qds\n"));
    ASSERT_EQ(run("git init -q -b main && git config user.name n && git config user.email e && "
                  "git config diff.qds.textconv '" +
                  qds +
                  " show --full' && "
                  "git config merge.qds.driver '" +
                  qds + " merge %O %A %B'"),
              0)
        << output();
    ASSERT_EQ(save(30, "a"), 0) << output();
    ASSERT_EQ(run("git checkout -qb topic"), 0);
    ASSERT_EQ(save(30, "b"), 0);
    ASSERT_EQ(run("git checkout -q main"), 0);
    ASSERT_EQ(save(3, "a"), 0);
    ASSERT_EQ(run("git log -1 -p"), 0);
    EXPECT_NE(output().find("-    timeoutSeconds 30\n+    timeoutSeconds 3\n"), std::string::npos)
        << output();
    EXPECT_EQ(run("git merge -q -m merged topic"), 0) << output();
    EXPECT_EQ(readBytes(file("a.qds")),
              script({waitFor("R", 3), middle, joined({{7}, counted("b")})}));
    ASSERT_EQ(run("git checkout -q topic"), 0) << output();
    ASSERT_EQ(save(9, "b"), 0);
    EXPECT_NE(run("git rebase main"), 0) << "both changed the time-out";
    EXPECT_NE(run(qds + " check a.qds"), 0);
    EXPECT_NE(output().find("[merge-conflict]"), std::string::npos) << output();
}

}  // namespace
}  // namespace quendra::test
