// The arguments of qds, and help.
#include "cli/qds_run.h"

#include <iterator>
#include <sstream>

namespace quendra::test {
namespace {

TEST(WrongUsage, isToldWithStatusTwo) {
    for (const char* line :
         {"", "frobnicate", "show --frobnicate a", "show", "show --json --numbers a", "convert a",
          "convert --in-place", "convert --output o a b", "convert --in-place --output o a",
          "convert --in-place -", "convert --host VAX --output o a", "convert --output o a --host",
          "convert --output= a", "build a", "build --output o", "build a b --output o", "texts a",
          "texts texts"}) {
        SCOPED_TRACE(line);
        std::istringstream words(line);
        const QdsRun run = runQds({std::istream_iterator<std::string>(words), {}});
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.find("qds: "), 0u) << run.err;
        EXPECT_NE(run.err.find("--help"), std::string::npos) << run.err;
    }
}

TEST(Help, goesToStandardOutput) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--help"},
                                                      {"show", "--help"},
                                                      {"convert", "-h"},
                                                      {"build", "--help"},
                                                      {"--version"}}) {
        const QdsRun run = runQds(arguments);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_TRUE(run.out.ends_with('\n'));
    }
    EXPECT_NE(runQds({"convert", "--help"}).out.find("--in-place"), std::string::npos);
}

class FileNames : public QdsTest {};

TEST_F(FileNames, areTakenAsTyped) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(std::filesystem::path(file(".")));
    for (const char* name : {"texts", "show", "[a,b]", "{}", "--json", "a b", "'q'", "a=b"}) {
        writeBytes(name, scriptFile("QDMDSCR=", {{4}}));
        const QdsRun run = runQds({"show", "--", name});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, "Beep\n");
    }
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace quendra::test
