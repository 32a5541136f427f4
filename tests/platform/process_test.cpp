// Programs that are started and left alone.
#include "platform/process.h"

#include "support/temporary_folder.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <thread>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

// A folder of programs that writes down what they are given, as the only place to look for
// programs.
class ProcessTest : public testing::Test {
  protected:
    ProcessTest() { setenv("PATH", folder_.path().c_str(), 1); }
    ~ProcessTest() override { setenv("PATH", path_.c_str(), 1); }

    // The file appears under its name once it is whole.
    void addProgram(const std::string& name) const {
        const fs::path file = folder_ / name;
        std::ofstream(file) << "#!/bin/sh\nexec > '" << notes().string() << ".part'\n"
                            << "echo \"$0\"; for a; do echo \"$a\"; done\n"
                            << "/bin/mv '" << notes().string() << ".part' '" << notes().string()
                            << "'\n";
        fs::permissions(file, fs::perms::owner_all);
    }

    [[nodiscard]] std::string notesOfProgram() const {
        for (int i = 0; i < 500 && !fs::exists(notes()); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        std::ifstream file(notes());
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    [[nodiscard]] std::string programPath(const std::string& name) const { return folder_ / name; }

  private:
    [[nodiscard]] fs::path notes() const { return folder_ / "notes"; }

    const TemporaryFolder folder_;
    const std::string path_ = std::getenv("PATH");
};

TEST_F(ProcessTest, PassesArgumentsAsTheyAre) {
    addProgram("viewer");
    EXPECT_EQ(startDetached("viewer", {"-showPage", "/a b.htm#x", "", "\"$HOME\" ü"}),
              std::nullopt);
    EXPECT_EQ(notesOfProgram(), programPath("viewer") + "\n-showPage\n/a b.htm#x\n\n\"$HOME\" ü\n");
}

TEST_F(ProcessTest, ReportsAProgramThatCannotBeStarted) {
    EXPECT_NE(startDetached("viewer", {}), std::nullopt);
    std::ofstream(programPath("data")) << "no program";
    EXPECT_NE(startDetached(programPath("data"), {}), std::nullopt);
}

TEST_F(ProcessTest, OpensAWebPageWithTheOpenerThatIsThere) {
    EXPECT_NE(openWebPage("https://www.quendra.example/"), std::nullopt) << "no opener";
    addProgram("gio");
    EXPECT_EQ(openWebPage("https://www.quendra.example/"), std::nullopt);
    EXPECT_EQ(notesOfProgram(), programPath("gio") + "\nopen\nhttps://www.quendra.example/\n");
}

TEST_F(ProcessTest, PrefersTheCommonOpenerAndGivesItNoOptions) {
    addProgram("gio");
    addProgram("xdg-open");
    EXPECT_NE(openWebPage("--manual"), std::nullopt);
    EXPECT_NE(openWebPage(""), std::nullopt);
    EXPECT_EQ(openWebPage("/en/topic.htm"), std::nullopt);
    EXPECT_EQ(notesOfProgram(), programPath("xdg-open") + "\n/en/topic.htm\n");
}

}  // namespace
}  // namespace quendra::test
