// The arguments of qds, and help.
#include "cli/qds_run.h"

namespace quendra::test {

namespace {

struct Usage {
    const char* name;
    std::vector<std::string> arguments;
};

}  // namespace

class WrongUsage : public testing::TestWithParam<Usage> {};

TEST_P(WrongUsage, isToldWithStatusTwo) {
    const QdsRun run = runQds(GetParam().arguments);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.find("qds: "), 0u) << run.err;
    EXPECT_NE(run.err.find("--help"), std::string::npos) << run.err;
}

INSTANTIATE_TEST_SUITE_P(
    , WrongUsage,
    testing::Values(
        Usage{"Nothing", {}}, Usage{"UnknownCommand", {"frobnicate"}},
        Usage{"UnknownOption", {"show", "--frobnicate", "a"}}, Usage{"ShowNothing", {"show"}},
        Usage{"NumbersInJson", {"show", "--json", "--numbers", "a"}},
        Usage{"ConvertNowhere", {"convert", "a"}},
        Usage{"ConvertNothing", {"convert", "--in-place"}},
        Usage{"ConvertTwoIntoOne", {"convert", "--output", "o", "a", "b"}},
        Usage{"ConvertBothWays", {"convert", "--in-place", "--output", "o", "a"}},
        Usage{"ConvertStandardInputInPlace", {"convert", "--in-place", "-"}},
        Usage{"UnknownHost", {"convert", "--host", "VAX", "--output", "o", "a"}},
        Usage{"HostWithoutValue", {"convert", "--output", "o", "a", "--host"}},
        Usage{"EmptyOutput", {"convert", "--output", "", "a"}},
        Usage{"BuildNowhere", {"build", "a"}}, Usage{"BuildNothing", {"build", "--output", "o"}},
        Usage{"BuildTwo", {"build", "a", "b", "--output", "o"}},
        Usage{"TextsOfAFile", {"texts", "a"}}, Usage{"TwoCommands", {"texts", "texts"}}),
    rowName);

TEST(Help, goesToStandardOutput) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--help"},
                                                      {"show", "--help"},
                                                      {"convert", "-h"},
                                                      {"build", "--help"},
                                                      {"--version"}}) {
        const QdsRun run = runQds(arguments);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_FALSE(run.out.empty());
        EXPECT_EQ(run.out.back(), '\n');
    }
    EXPECT_NE(runQds({"convert", "--help"}).out.find("--in-place"), std::string::npos);
}

class FileNames : public QdsTest, public testing::WithParamInterface<const char*> {};

TEST_P(FileNames, areTakenAsTyped) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(std::filesystem::path(file(".")));
    writeBytes(GetParam(), scriptFile("QDMDSCR=", {{4}}));
    const QdsRun run = runQds({"show", "--", GetParam()});
    std::filesystem::current_path(before);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "Beep\n");
}

INSTANTIATE_TEST_SUITE_P(, FileNames,
                         testing::Values("texts", "show", "[a,b]", "{}", "--json", "a b",
                                         "\xC3\xA4", "'q'", "a=b"),
                         [](const auto& row) { return "Row" + std::to_string(row.index); });

}  // namespace quendra::test
