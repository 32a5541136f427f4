// Arguments that may be options of the Windows kind, options of the usual kind, or paths.
#include "session/command_line.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace quendra {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

// What is there; everything else is not.
const std::set<std::string> folders = {"/", "/etc", "/e", "/home/eve"};
const std::set<std::string> files = {"/e/mine.qds", "/t2", "/escript"};

CommandLine parse(const Arguments& arguments) {
    return parseCommandLine(arguments, [](const std::filesystem::path& path) {
        if (folders.contains(path.native())) return std::filesystem::file_type::directory;
        return files.contains(path.native()) ? std::filesystem::file_type::regular
                                             : std::filesystem::file_type::not_found;
    });
}

TEST(CommandLine, IsRead) {
    constexpr auto iSeries = HostType::ISeries;
    const struct {
        Arguments arguments;
        std::string script;
        std::optional<HostType> hostType;
    } rows[] = {
        {{"/e", "/srv/new.qds"}, "/srv/new.qds", {}},
        {{"/elogin.qds"}, "login.qds", {}},
        {{"/e", "/t1"}, "/t1", {}},
        {{"/Elogin.qds"}, "/Elogin.qds", {}},
        {{"/t", "login.qds"}, "login.qds", {}},
        {{"/t1", "/e", "a.qds"}, "a.qds", iSeries},
        {{"a.qds", "/t1"}, "a.qds", iSeries},
        {{"/t2/ea.qds"}, "a.qds", HostType::VT},
        {{"/t1/e/home/x/a.qds"}, "/home/x/a.qds", iSeries},
        {{"/t1", "/t9"}, "", iSeries},
        // What is there, or could be made in a folder that is, is no option.
        {{"/e/mine.qds"}, "/e/mine.qds", {}},
        {{"/escript"}, "/escript", {}},
        {{"/etc/new.qds"}, "/etc/new.qds", {}},
        {{"/t2"}, "/t2", {}},
        {{"--", "--help"}, "--help", {}},
        {{"/t1", "--", "/t1"}, "/t1", iSeries},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        const CommandLine line = parse(row.arguments);
        EXPECT_EQ(line.error, "");
        EXPECT_EQ(line.script, row.script);
        EXPECT_EQ(line.hostType, row.hostType);
    }
}

TEST(CommandLine, TidiesPathsWithoutLeadingThemElsewhere) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder / "real/inner");
    fs::create_directory_symlink(folder / "real/inner", folder / "link");
    const std::pair<const char*, const char*> rows[] = {
        {"a.qds", "a.qds"},           {"./real/.//a.qds", "real/a.qds"}, {"real/../a.qds", "a.qds"},
        {"link/a.qds", "link/a.qds"}, {"link/../a.qds", "real/a.qds"},   {"no/../a.qds", "a.qds"},
    };
    for (const auto& [path, tidy] : rows)
        EXPECT_EQ(tidyPath(folder / path), folder / tidy) << path;
    EXPECT_EQ(tidyPath("./a.qds"), fs::current_path() / "a.qds");
}

TEST(CommandLine, RefusesWhatItCannotMeanAndTellsHelpAndVersion) {
    const Arguments rows[] = {{"--nope"},
                              {"-e", "a.qds"},
                              {""},
                              {"/e"},
                              {"/t1/e"},
                              {"a", "b"},
                              {"--compare", "a"},
                              {"--compare", "a", "b", "c"},
                              {"--compare", "", "b"}};
    for (const Arguments& arguments : rows)
        EXPECT_NE(parse(arguments).error, "") << testing::PrintToString(arguments);
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_TRUE(parse({"--version", "a.qds"}).version);
    EXPECT_NE(versionText().find("6.1.4.1982"), std::string::npos);
    EXPECT_EQ(parseCommandLine(Arguments{"/etc/no.qds"}).script, "/etc/no.qds") << "the real disk";
}

}  // namespace
}  // namespace quendra
