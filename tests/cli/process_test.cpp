// The program itself: what only a process has, such as standard streams that fail.
#include "cli/qds_run.h"

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quendra::test {
namespace {

constexpr int closed = -1;

// Runs the program with these descriptors as its standard streams; gives its exit status, or the
// negative number of the signal that ended it.
int runProgram(std::vector<std::string> arguments, int in, int out, int err) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (int i = 0; const int stream : {in, out, err}) {
        if (stream == closed) posix_spawn_file_actions_addclose(&actions, i);
        if (stream != closed) posix_spawn_file_actions_adddup2(&actions, stream, i);
        ++i;
    }
    std::string program = QUENDRA_PROGRAM_FOLDER "/qds";
    std::vector<char*> pointers = {program.data()};
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    pid_t process = 0;
    const int failed =
        posix_spawn(&process, program.c_str(), &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (failed != 0 || waitpid(process, &status, 0) != process) return -999;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

const Bytes script = scriptFile("QDMDSCR=", {Bytes(4096, 4)});

}  // namespace

// Opens files for the standard streams of a run and closes them with it.
class Process : public QdsTest {
  public:
    ~Process() override {
        for (const int descriptor : opened_)
            ::close(descriptor);
    }

  protected:
    int openFile(const std::string& path, int flags = O_RDONLY) {
        opened_.push_back(::open(path.c_str(), flags | O_CLOEXEC, 0600));
        return opened_.back();
    }
    int newFile(const std::string& name) {
        return openFile(file(name), O_WRONLY | O_CREAT | O_TRUNC);
    }

  private:
    std::vector<int> opened_;
};

TEST_F(Process, readsAStreamAndFindsTheLanguageLibraryFromAnyFolderAndLocale) {
    const Bytes menu = joined({{2}, word(201), word(0)});
    const std::string in = file("in.qds", scriptFile("QDMDSCR=", {menu}));
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(runProgram({"show", "-"}, openFile(in), newFile("out"), newFile("err")), 0);
    ::unsetenv("LC_ALL");
    EXPECT_GT(textOf("out").size(), 1U);
    EXPECT_EQ(textOf("err"), "");
    EXPECT_EQ(runProgram({"convert"}, closed, closed, newFile("err")), 2);
}

TEST_F(Process, reportsAFullDisk) {
    const std::string path = file("in.qds", script);
    const int full = openFile("/dev/full", O_WRONLY);
    const std::vector<std::string> lines[] = {
        {"show", path}, {"show", "--json", path}, {"convert", "--output", "-", path}, {"texts"}};
    for (const auto& arguments : lines) {
        EXPECT_EQ(runProgram(arguments, closed, full, newFile("err")), 1) << arguments[0];
        EXPECT_EQ(textOf("err"), "qds: standard output: No space left on device\n");
    }
}

TEST_F(Process, survivesAReaderThatGoesAway) {
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC), 0);
    ::close(pipe[0]);
    const std::string path = file("in.qds", script);
    EXPECT_EQ(runProgram({"show", path, path}, closed, pipe[1], newFile("err")), 1);
    EXPECT_EQ(textOf("err"), "qds: standard output: Broken pipe\n");
    ::close(pipe[1]);
}

TEST_F(Process, writesFilesUnharmedWithoutStandardStreams) {
    const std::string old = file("in.qds", scriptFile("QDMDSCR2", {{4}}));
    EXPECT_EQ(runProgram({"convert", "--in-place", file("missing"), old}, closed, closed, closed),
              1);
    EXPECT_EQ(readBytes(old), scriptFile("QDMDSCR=", {{4}}));
    EXPECT_EQ(runProgram({"show", old}, closed, closed, newFile("err")), 1);
    EXPECT_EQ(runProgram({"show", "-"}, closed, newFile("out"), newFile("err")), 1);
    EXPECT_EQ(readBytes(old), scriptFile("QDMDSCR=", {{4}}));
}

}  // namespace quendra::test
