// The program itself: what only a process has, such as standard streams that fail.
#include "cli/qds_run.h"

#include <array>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace quendra::test {
namespace {

const Bytes script = scriptFile("QDMDSCR=", {Bytes(4096, 4)});

class Process : public QdsTest {
  protected:
    // Runs qds by a shell in the test's folder; gives its exit status.
    [[nodiscard]] int run(const std::string& line, const std::string& before = {}) const {
        const std::string command = before + "cd '" + file(".") +
                                    "' && LC_ALL=C timeout 60 '" QUENDRA_PROGRAM_FOLDER "/qds' " +
                                    line;
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
};

TEST_F(Process, readsAStreamAndFindsTheLanguageLibraryFromAnyFolderAndLocale) {
    file("in.qds", scriptFile("QDMDSCR=", {menuRecord(201)}));
    EXPECT_EQ(run("show - <in.qds >out 2>err"), 0);
    EXPECT_EQ(readBytes(file("out")), bytesOf("New Session\n"));
    EXPECT_EQ(readBytes(file("err")), bytesOf(""));
    EXPECT_EQ(run("convert 2>err"), 2);
}

TEST_F(Process, reportsACipherThatTheSystemRefuses) {
    file("openssl.cnf", bytesOf("openssl_conf = i\n[i]\nproviders = p\n[p]\nnull = n\n"
                                "[n]\nactivate = 1\n"));
    file("in.qds", scriptFile("QDMDSCR=", {hiddenTypeRecord("secret", frozenIdentity())}));
    file("in.json", bytesOf(R"({"hostType": "UTS", "entries": [{"command": "Type", "text": "x",
                               "hidden": true}]})"));
    for (const char* line : {"show in.qds", "build in.json --output out.qds"}) {
        EXPECT_EQ(run("show in.qds >out 2>err"), 0);
        const std::string system = "export OPENSSL_CONF=openssl.cnf; ";
        EXPECT_EQ(run(line + std::string(" >out 2>err"), system), 1);
        const Bytes told = readBytes(file("err"));
        EXPECT_EQ(std::string(told.begin(), told.end())
                      .find("qds: Error during CryptCreateHash.: unsupported"),
                  0U);
    }
    EXPECT_FALSE(std::filesystem::exists(file("out.qds")));
}

TEST_F(Process, showsLinesInTheLanguageOfTheEditorAndMakesNoFolders) {
    file("in.qds", scriptFile("QDMDSCR=", {menuRecord(201)}));
    file(".config/quendra/registry.ini",
         bytesOf("[Software\\Quendra\\6.1]\nBaseRegistry=2\nWorking Directory=" + file("work")));
    // So that the program does not lie in it, which gives it other settings.
    ::setenv("TMPDIR", file(".").c_str(), 1);
    EXPECT_EQ(run("show in.qds >out 2>err"), 0);
    EXPECT_EQ(readBytes(file("out")), bytesOf("New Session\n"));
    EXPECT_FALSE(std::filesystem::exists(file("work")));
    std::filesystem::create_directories(file("work/Config"));
    file("work/Config/language.ini", bytesOf("[Language]\nLanguage=qdstring_de\n"));
    EXPECT_EQ(run("show in.qds >out 2>err"), 0);
    EXPECT_EQ(readBytes(file("out")), bytesOf("Neue Sitzung\n"));
    EXPECT_EQ(run("show --json in.qds | grep -q '\"name\": \"New Session\"'"), 0);
    ::unsetenv("TMPDIR");
}

TEST_F(Process, reportsAFullDiskAndAReaderThatGoesAway) {
    file("in.qds", script);
    const std::pair<std::string, int> full[] = {
        {"show in.qds", 1}, {"show --json in.qds", 1},        {"convert --output - in.qds", 1},
        {"texts", 1},       {"diff --json in.qds in.qds", 2}, {"check --json in.qds", 2}};
    for (const auto& [line, status] : full) {
        EXPECT_EQ(run(line + " >/dev/full 2>err"), status) << line;
        EXPECT_EQ(readBytes(file("err")),
                  bytesOf("qds: standard output: No space left on device\n"));
    }
    constexpr int gone = 9;
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    ASSERT_EQ(::dup2(pipe[1], gone), gone);
    ::close(pipe[0]);
    for (const char* line :
         {"show in.qds in.qds", "show --json in.qds", "convert --output - in.qds",
          "convert --output /dev/stdout in.qds", "texts"}) {
        EXPECT_EQ(run(line + std::string(" >&9 2>err")), 0) << line;
        EXPECT_EQ(readBytes(file("err")), bytesOf("")) << "whoever reads has seen enough";
    }
    ::close(pipe[1]);
    ::close(gone);
}

TEST_F(Process, takesALimitOnTheSizeOfFilesForAFullDisk) {
    const std::string old = file("old.qds", scriptFile("QDMDSCR2", {{4}}));
    EXPECT_EQ(run("convert --in-place old.qds 2>err", "ulimit -f 0; "), 1);
    EXPECT_EQ(readBytes(old), scriptFile("QDMDSCR2", {{4}}));
    EXPECT_EQ(names(), (std::vector<std::string>{"err", "old.qds"}));
}

TEST_F(Process, writesFilesUnharmedWithoutStandardStreams) {
    const std::string old = file("old.qds", scriptFile("QDMDSCR2", {{4}}));
    EXPECT_EQ(run("convert --in-place missing.qds old.qds <&- >&- 2>&-"), 1);
    EXPECT_EQ(readBytes(old), scriptFile("QDMDSCR=", {{4}}));
    EXPECT_EQ(run("show old.qds >&- 2>err"), 1);
    EXPECT_EQ(run("show - <&- >out 2>err"), 1);
    EXPECT_EQ(readBytes(old), scriptFile("QDMDSCR=", {{4}}));
}

}  // namespace
}  // namespace quendra::test
