// Arguments that may be options of the Windows kind, options of the usual kind, or paths.
#include "app/command_line.h"

#include <gtest/gtest.h>
#include <ostream>
#include <set>
#include <vector>

namespace quendra {
namespace {

struct Row {
    const char* name;
    std::vector<std::string> arguments;
    std::string script;
    std::optional<HostType> hostType;
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.name;
}

// What is there; everything else is not.
const std::set<std::string> folders = {"/", "/etc", "/e", "/tmp", "/home/eve"};
const std::set<std::string> files = {"/e/mine.qds", "/t2", "/etc/passwd", "/escript"};

constexpr auto iSeries = HostType::ISeries;

const std::vector<Row> rows = {
    {"Nothing", {}, "", {}},
    {"PlainPath", {"login.qds"}, "login.qds", {}},
    {"PathWithOptionsInIt", {"/home/eve/t1/e x.qds"}, "/home/eve/t1/e x.qds", {}},
    {"ESeparate", {"/e", "/srv/new.qds"}, "/srv/new.qds", {}},
    {"EJoined", {"/elogin.qds"}, "login.qds", {}},
    {"EJoinedAbsolute", {"/e/home/x/y.qds"}, "/home/x/y.qds", {}},
    {"ETakesWhatFollowsAsItStands", {"/e", "--help"}, "--help", {}},
    {"EWithAnOptionForItsPath", {"/e", "/t1"}, "/t1", {}},
    {"ECaseMatters", {"/Elogin.qds"}, "/Elogin.qds", {}},
    {"T1", {"/t1"}, "", iSeries},
    {"T3IsPassedOver", {"/t3"}, "", {}},
    {"TAloneIsPassedOver", {"/t", "login.qds"}, "login.qds", {}},
    {"TBefore", {"/t1", "/e", "a.qds"}, "a.qds", iSeries},
    {"TAfter", {"a.qds", "/t1"}, "a.qds", iSeries},
    {"Combined", {"/t1/ea.qds"}, "a.qds", iSeries},
    {"CombinedAbsolute", {"/t1/e/home/x/a.qds"}, "/home/x/a.qds", iSeries},
    {"CombinedSeparate", {"/t1/e", "a.qds"}, "a.qds", iSeries},
    {"CombinedTwice", {"/t1/t2"}, "", iSeries},
    {"CombinedPassedOver", {"/t3/ea.qds"}, "a.qds", {}},
    {"FirstTCounts", {"/t1", "/t9"}, "", iSeries},
    {"FirstTCountsThoughPassedOver", {"/t9", "/t1"}, "", {}},
    {"ExistingFileIsNoE", {"/e/mine.qds"}, "/e/mine.qds", {}},
    {"ExistingFileInTheRootIsNoE", {"/escript"}, "/escript", {}},
    {"ExistingFolderDoesNotHideE", {"/e", "a.qds"}, "a.qds", {}},
    {"ExistingFile", {"/etc/passwd"}, "/etc/passwd", {}},
    {"NewFileInAFolderThatIsThere", {"/etc/new.qds"}, "/etc/new.qds", {}},
    {"NewFileInATemporaryFolder", {"/tmp/new.qds"}, "/tmp/new.qds", {}},
    {"NewFileNowhere", {"/tx/new.qds"}, "/tx/new.qds", {}},
    {"ExistingFileIsNoT", {"/t2"}, "/t2", {}},
    {"AfterTwoHyphens", {"--", "--help"}, "--help", {}},
    {"AfterTwoHyphensNoSlashOption", {"/t1", "--", "/t1"}, "/t1", iSeries},
};

CommandLine parse(const std::vector<std::string>& arguments) {
    return parseCommandLine(arguments, [](const std::filesystem::path& path) {
        if (folders.contains(path.native())) return std::filesystem::file_type::directory;
        return files.contains(path.native()) ? std::filesystem::file_type::regular
                                             : std::filesystem::file_type::not_found;
    });
}

class CommandLineTest : public testing::TestWithParam<Row> {};

TEST_P(CommandLineTest, IsRead) {
    const CommandLine line = parse(GetParam().arguments);
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.script, GetParam().script);
    EXPECT_EQ(line.hostType, GetParam().hostType);
    EXPECT_FALSE(line.help || line.version);
}

INSTANTIATE_TEST_SUITE_P(Arguments, CommandLineTest, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(CommandLine, VtIsAskedForByT2) {
    const auto nothingThere = [](const auto&) { return std::filesystem::file_type::not_found; };
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"/t2"}, {"/t2/ea.qds"}, {"/ea.qds", "/t2"}}) {
        EXPECT_EQ(parseCommandLine(arguments, nothingThere).hostType, HostType::VT);
    }
}

TEST(CommandLine, RefusesWhatItCannotMean) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--nope"},
                                                      {"-e", "a.qds"},
                                                      {"-"},
                                                      {"/e"},
                                                      {"/t1/e"},
                                                      {""},
                                                      {"/e", ""},
                                                      {"a.qds", "b.qds"},
                                                      {"/ea.qds", "b.qds"},
                                                      {"a.qds", "--", "b.qds"}}) {
        EXPECT_NE(parse(arguments).error, "") << arguments.front();
    }
}

TEST(CommandLine, TellsHelpAndVersion) {
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_TRUE(parse({"--version", "a.qds"}).version);
    EXPECT_NE(versionText().find("6.1.4.1982"), std::string::npos);
}

TEST(CommandLine, LooksAtTheRealDisk) {
    EXPECT_EQ(fileTypeAt("/"), std::filesystem::file_type::directory);
    EXPECT_EQ(parseCommandLine(std::vector<std::string>{"/etc/no-such-script.qds"}).script,
              "/etc/no-such-script.qds");
}

}  // namespace
}  // namespace quendra
