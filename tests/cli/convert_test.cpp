// qds convert.
#include "cli/qds_run.h"
#include "support/other_user.h"

#include <sys/stat.h>
#include <thread>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

const Bytes beep = {4};
const Bytes oldScript = scriptFile("QDMDSCR2", {beep});
const Bytes newScript = scriptFile("QDMDSCR=", {beep});
const Bytes cutScript = scriptFile("QDMDSCR2", {beep, {6, 9}});

class Convert : public QdsTest {};

TEST_F(Convert, switchesTheHostTypeUnlessItCannotStoreAnEntry) {
    const std::string out = file("out.qds", bytesOf("keep me"));
    // Menu command 213, which VT emulators lack, behind another entry.
    const std::string source = file("a.qds", scriptFile("QDMDSCR=", {beep, menuRecord(213)}));
    const QdsRun refused = runQds({"convert", "--host", "vt", "--output", out, source});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(
        refused.err.starts_with("qds: " + source + ": entry 2 cannot be stored in a VT script: "))
        << refused.err;
    EXPECT_EQ(readBytes(out), bytesOf("keep me"));
    const QdsRun lossy =
        runQds({"convert", "--host", "vt", "--allow-loss", "--output", out, source});
    EXPECT_EQ(lossy.status, 1);
    EXPECT_EQ(lossy.err, refused.err);
    EXPECT_EQ(readBytes(out), scriptFile("QDVTSCR=", {beep, menuRecord(211)}));
    EXPECT_EQ(runQds({"convert", "--host", "icl", "--output", out, source}).status, 0);
    EXPECT_EQ(readBytes(out), scriptFile("QD7DSCR=", {beep, menuRecord(213)}));
}

TEST_F(Convert, writesNothingForAFileThatIsNotWhole) {
    const std::string out = file("out.qds", bytesOf("keep me"));
    const QdsRun refused = runQds({"convert", "--output", out, "-"}, cutScript);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(readBytes(out), bytesOf("keep me"));
    const QdsRun lossy = runQds({"convert", "--allow-loss", "--output", out, "-"}, cutScript);
    EXPECT_EQ(lossy.status, 1);
    EXPECT_EQ(lossy.err, refused.err);
    EXPECT_EQ(readBytes(out), newScript);
    const Bytes none = bytesOf("no script");
    EXPECT_EQ(runQds({"convert", "--allow-loss", "--output", out, "-"}, none).status, 1);
    EXPECT_EQ(readBytes(out), newScript);
    EXPECT_EQ(names(), (Names{"out.qds", "out.qds.bak"}));
}

TEST_F(Convert, carriesTheTimeoutOfAWatchedWaitForAlsoThroughJson) {
    const Bytes watched = joined({{20}, counted("w"), {17}, counted("f"), {1, 1, 0, 1, 9, 5}});
    const Bytes claims =
        scriptFile("QDMDSCR=", {beep, watched, hiddenTypeRecord("secret", "{ANOTHER}"), {12}, {4}});
    const QdsRun run = runQds({"convert", "--output", "-", "-"}, claims);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(bytesOf(run.out), claims);
    EXPECT_EQ(run.err, "");
    const QdsRun shown = runQds({"show", "--json", "-"}, claims);
    EXPECT_EQ(shown.status, 0);
    EXPECT_EQ(built(shown.out), claims);
}

TEST_F(Convert, keepsTheOldFilesInPlaceAndGoesOnAfterABadOne) {
    const std::string first = file("first.qds", oldScript);
    const std::string cut = file("cut.qds", cutScript);
    const std::string current = file("current.qds", newScript);
    const std::string last = file("last.qds", oldScript);
    const auto written = fs::last_write_time(current);
    const QdsRun run =
        runQds({"convert", "--in-place", first, cut, file("missing.qds"), current, last});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(linesOfText(run.err).size(), 2U) << run.err;
    EXPECT_EQ(names(), (Names{"current.qds", "cut.qds", "first.qds", "first.qds.bak", "last.qds",
                              "last.qds.bak"}));
    EXPECT_EQ(readBytes(first), newScript);
    EXPECT_EQ(readBytes(first + ".bak"), oldScript);
    EXPECT_EQ(readBytes(cut), cutScript);
    EXPECT_EQ(readBytes(last), newScript);
    EXPECT_EQ(fs::last_write_time(current), written) << "as it should be already";
}

TEST_F(Convert, keepsTheOldFileWhenTheOutputIsTheInput) {
    const std::string source = file("a.qds", oldScript);
    fs::create_hard_link(source, file("same.qds"));
    EXPECT_EQ(runQds({"convert", "--output", file("same.qds"), source}).status, 0);
    EXPECT_EQ(readBytes(file("same.qds")), newScript);
    EXPECT_EQ(readBytes(file("same.qds.bak")), oldScript);
    const std::string other = file("b.qds", bytesOf("an older result"));
    EXPECT_EQ(runQds({"convert", "--output", other, source}).status, 0);
    EXPECT_EQ(readBytes(other), newScript);
    EXPECT_EQ(readBytes(other + ".bak"), bytesOf("an older result"));
    EXPECT_EQ(runQds({"convert", "--output", other, source}).status, 0);
    EXPECT_FALSE(fs::exists(other + ".bak2")) << "it was the same";
}

TEST_F(Convert, takesPipesAsTheyAreButNotInPlaceAndSaysWhereOldBytesWent) {
    const std::string pipe = file("pipe.qds");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    QdsRun run = runQds({"convert", "--in-place", pipe});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "qds: " + pipe + ": not a regular file\n");
    std::thread writer([&] { writeBytes(pipe, oldScript); });
    EXPECT_EQ(bytesOf(runQds({"convert", "--output", "-", pipe}).out), newScript);
    writer.join();
    EXPECT_TRUE(fs::is_fifo(pipe));

    if (!OtherUser::isPossible()) GTEST_SKIP() << "the superuser may replace every file";
    const std::string others = file("others.qds", oldScript);
    fs::permissions(others, fs::perms(0666));
    fs::permissions(file("."), fs::perms(01777));
    {
        const OtherUser user;
        run = runQds({"convert", "--in-place", others});
    }
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "qds: " + others + ": note: written over; its old content is kept as " +
                           others + ".bak\n");
    EXPECT_EQ(readBytes(others), newScript);
}

TEST_F(Convert, refusesPlacesThatCannotBeWrittenAndWritesIntoADevice) {
    const std::string source = file("a.qds", oldScript);
    for (const std::string& place : {file("no/such/folder"), file("."), std::string("/dev/full")}) {
        const QdsRun run = runQds({"convert", "--output", place, source});
        EXPECT_EQ(run.status, 1) << place;
        EXPECT_TRUE(run.err.starts_with("qds: " + place + ": ")) << run.err;
        EXPECT_EQ(run.err.find("cannot be written"), std::string::npos) << "the system's reason";
    }
    EXPECT_EQ(runQds({"convert", "--output", "/dev/null", source}).status, 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(names(), Names{"a.qds"});
}

}  // namespace
}  // namespace quendra::test
