// Programs that are started and left alone.
#include "platform/process.h"

#include "platform/descriptor.h"
#include "support/temporary_folder.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quendra::test {
namespace {

// A folder of programs that tell what they are given, as the only place to look for programs.
class ProcessTest : public testing::Test {
  protected:
    ProcessTest() {
        setenv("PATH", folder_.path().c_str(), 1);
        EXPECT_EQ(mkfifo(notes_.c_str(), 0600), 0);
    }
    ~ProcessTest() override { setenv("PATH", path_.c_str(), 1); }

    void addProgram(const std::string& name, const std::string& more = ":") const {
        std::ofstream(programPath(name)) << "#!/bin/sh\nexec > '" << notes_.string()
                                         << "'\necho \"$0\"; for a; do echo \"$a\"; done\n"
                                         << more << "\n";
        std::filesystem::permissions(programPath(name), std::filesystem::perms::owner_all);
    }
    // Waits for the program, though not for ever.
    [[nodiscard]] std::string notesOfProgram() const {
        const Descriptor fifo(::open(notes_.c_str(), O_RDONLY | O_NONBLOCK));
        pollfd waiting = {fifo.get(), POLLIN, 0};
        std::string notes;
        for (char c = 0; ::poll(&waiting, 1, 10'000) == 1 && ::read(fifo.get(), &c, 1) == 1;)
            notes += c;
        return notes;
    }
    [[nodiscard]] std::string programPath(const std::string& name) const { return folder_ / name; }

  private:
    const TemporaryFolder folder_;
    const std::filesystem::path notes_ = folder_ / "notes";
    const std::string path_ = std::getenv("PATH");
};

TEST_F(ProcessTest, PassesArgumentsAsTheyAreAndLeavesOpenFilesBehind) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    addProgram("viewer", "[ -e /proc/self/fd/" + std::to_string(ends[1]) + " ] && echo inherited");
    EXPECT_EQ(startDetached("viewer", {"-showPage", "/a b.htm#x", "", "\"$HOME\" ü"}),
              std::nullopt);
    EXPECT_EQ(notesOfProgram(), programPath("viewer") + "\n-showPage\n/a b.htm#x\n\n\"$HOME\" ü\n");
    close(ends[0]);
    close(ends[1]);
}

TEST_F(ProcessTest, ReportsAProgramThatCannotBeStarted) {
    EXPECT_NE(startDetached("viewer", {}), std::nullopt);
    std::ofstream(programPath("data")) << "no program";
    EXPECT_NE(startDetached(programPath("data"), {}), std::nullopt);
}

TEST_F(ProcessTest, OpensAWebPageWithTheCommonOpenerElseTheOtherOne) {
    EXPECT_NE(openWebPage("https://www.quendra.example/"), std::nullopt) << "no opener";
    addProgram("gio");
    EXPECT_EQ(openWebPage("https://www.quendra.example/"), std::nullopt);
    EXPECT_EQ(notesOfProgram(), programPath("gio") + "\nopen\nhttps://www.quendra.example/\n");
    addProgram("xdg-open");
    EXPECT_NE(openWebPage("--manual"), std::nullopt) << "an option";
    EXPECT_NE(openWebPage(""), std::nullopt);
    EXPECT_EQ(openWebPage("/en/topic.htm"), std::nullopt);
    EXPECT_EQ(notesOfProgram(), programPath("xdg-open") + "\n/en/topic.htm\n");
}

}  // namespace
}  // namespace quendra::test
