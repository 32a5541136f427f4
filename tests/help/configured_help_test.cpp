// To which help the settings lead, and what is tried on the way.
#include "help/configured_help.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <tuple>

namespace quendra::test {
namespace {

const std::string topic = "/qddp_hcon_qd-script-editor.htm#styler-id1.1.1.9.14.6.1";

TEST(ConfiguredHelp, GivesWayToTheManualOnlyWhenThereIsNoneOrNothingStarts) {
    const std::string web = "https://h.test/en/qd" + topic + ";";
    // Web help or not, its address, whether there is a file, what starts (all else does not),
    // whether something shows, and what was tried in order.
    using Row = std::tuple<bool, const char*, bool, std::string, bool, std::string>;
    const Row rows[] = {
        {false, builtInWebHelpBase, false, "", false, ""},
        {false, builtInWebHelpBase, true, "kchmviewer;", true, "kchmviewer;"},
        {false, builtInWebHelpBase, true, "xchm;", true, "kchmviewer;xchm;"},
        {false, "https://h.test", false, web, false, ""},
        {true, "https://h.test", true, web, true, web},
        {true, "https://h.test", true, "kchmviewer;", false, web},
        {true, "", true, "/en/qd" + topic + ";", false, ""},
        {true, builtInWebHelpBase, true, web, false, ""},
    };
    for (const auto& [useWebHelp, base, hasFile, starts, shown, expected] : rows) {
        SCOPED_TRACE(testing::PrintToString(std::tuple(useWebHelp, base, hasFile, starts)));
        const TemporaryFolder folder;
        StartupSettings settings;
        settings.useWebHelp = useWebHelp;
        settings.webHelpBase = base;
        settings.helpFilePath = folder / "-a \"b\" c.chm";
        if (hasFile) std::ofstream(settings.helpFilePath) << "x";
        std::string tried;
        const auto start = [&, only = starts](const std::string& what) {
            tried += what + ";";
            return what + ";" == only;
        };
        const HelpLaunchers launchers = {
            [&](const std::string& program, const std::vector<std::string>& arguments) {
                EXPECT_EQ(arguments.back(), settings.helpFilePath) << "as one argument";
                EXPECT_TRUE(program == "xchm" || arguments.at(1) == topic);
                return start(program);
            },
            start};
        EXPECT_EQ(showConfiguredHelp(settings, launchers), shown);
        EXPECT_EQ(tried, expected);
    }
    const TemporaryFolder anybodys;
    std::filesystem::permissions(anybodys.path(), std::filesystem::perms(0777));
    StartupSettings planted;
    planted.helpFilePath = anybodys / "quendra.chm";
    std::ofstream(planted.helpFilePath) << "x";
    EXPECT_FALSE(showConfiguredHelp(planted, {[](auto&&...) { return true; }, {}}));
    StartupSettings relative;
    relative.helpFilePath = "-x.chm";
    EXPECT_EQ(helpViewerCommands(relative).at(1).arguments.at(0).front(), '/') << "no option";
}

}  // namespace
}  // namespace quendra::test
