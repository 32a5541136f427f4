// The arguments of qds, and help.
#include "cli/qds_run.h"

#include <iterator>
#include <sstream>

namespace quendra::test {
namespace {

QdsRun runLine(const std::string& line) {
    std::istringstream words(line);
    return runQds({std::istream_iterator<std::string>(words), {}});
}

class CommandLine : public QdsTest {};

TEST_F(CommandLine, tellsWrongUsageWithStatusTwo) {
    for (const char* line :
         {"", "frobnicate", "show --frobnicate a", "show", "show --json --numbers a", "convert a",
          "convert --in-place", "convert --output o a b", "convert --in-place --output o a",
          "convert --in-place -", "convert --host VAX --output o a", "convert --output o a --host",
          "convert --output= a", "build a", "build --output o", "build a b --output o", "texts a",
          "texts texts"}) {
        const QdsRun run = runLine(line);
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(run.err.starts_with("qds: ") && run.err.ends_with("--help'.\n")) << run.err;
    }
}

TEST_F(CommandLine, namesAnUnknownWordBesideThoseThatThereAre) {
    const char* const commands =
        "; the commands are show, convert, build, check, grep, replace, rename-label, diff, "
        "merge, texts\n";
    const std::pair<const char*, std::string> rows[] = {
        {"frobnicate --output a", std::string("unknown command frobnicate") + commands},
        {"", std::string("a command is missing") + commands},
        {"--frob show", "unknown option --frob; the options are --help, --version\n"},
        {"show --frob=1 a",
         "unknown show option --frob; the show options are --help, --numbers, --full, "
         "--json, --reveal\n"},
        {"build a --output b -x",
         "unknown build option -x; the build options are --help, "
         "--allow-loss, --output\n"},
        {"\x1b[2J", std::string("unknown command \\x1b[2J") + commands},
    };
    for (const auto& [line, message] : rows) {
        const QdsRun run = runLine(line);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "qds: " + message + "Try 'qds --help'.\n");
    }
}

TEST_F(CommandLine, givesHelpOnStandardOutput) {
    for (const char* line : {"--help", "show --help", "convert -h", "build --help", "--version"}) {
        const QdsRun run = runLine(line);
        EXPECT_EQ(run.status, 0) << line;
        EXPECT_EQ(run.err, "");
        EXPECT_TRUE(run.out.ends_with('\n'));
    }
}

TEST_F(CommandLine, takesFileNamesAsTyped) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(file("."));
    for (const char* name : {"texts", "show", "[a,b]", "{}", "--json", "a b", "'q'", "a=b"}) {
        writeBytes(name, scriptFile("QDMDSCR=", {{4}}));
        EXPECT_EQ(runQds({"show", "--", name}).out, "Beep\n");
    }
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace quendra::test
