// Which help the settings lead to, and what is started for it.
#include "app/help/configured_help.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quendra::test {

namespace {

const std::string topic = "/qddp_hcon_qd-script-editor.htm#styler-id1.1.1.9.14.6.1";

TEST(ConfiguredHelp, ViewersAreGivenTheFileAsOneAbsoluteArgument) {
    StartupSettings settings;
    settings.helpFilePath = "-x/a b \"c\".chm";
    const std::string argument = std::filesystem::current_path().string() + "/-x/a b \"c\".chm";
    const auto viewers = helpViewerCommands(settings);
    ASSERT_EQ(viewers.size(), 2U);
    EXPECT_EQ(viewers[0].arguments, (std::vector<std::string>{"-showPage", topic, argument}));
    EXPECT_EQ(viewers[1].arguments, std::vector<std::string>{argument});
}

TEST(ConfiguredHelp, GivesWayToTheManualOnlyWhenThereIsNoneOrNothingStarts) {
    const std::string web = "https://h.test/en/qd" + topic + ";";
    const struct {
        const char* name;
        bool useWebHelp;
        const char* base;
        bool hasFile;
        // What starts; all else does not.
        std::string starts;
        bool shown;
        // What was tried, in order.
        std::string tried;
    } rows[] = {
        {"plain installation", false, builtInWebHelpBase, false, "", false, ""},
        {"compiled", false, builtInWebHelpBase, true, "kchmviewer;", true, "kchmviewer;"},
        {"second viewer", false, builtInWebHelpBase, true, "xchm;", true, "kchmviewer;xchm;"},
        {"no viewer", false, builtInWebHelpBase, true, "", false, "kchmviewer;xchm;"},
        {"no web instead", false, "https://h.test", false, web, false, ""},
        {"web", true, "https://h.test", true, web, true, web},
        {"no opener", true, "https://h.test", true, "kchmviewer;", false, web},
        {"web without address", true, "", true, "/en/qd" + topic + ";", false, ""},
        {"web nobody configured", true, builtInWebHelpBase, true, web, false, ""},
    };
    for (const auto& row : rows) {
        const TemporaryFolder folder;
        StartupSettings settings;
        settings.useWebHelp = row.useWebHelp;
        settings.webHelpBase = row.base;
        settings.helpFilePath = folder / "quendra.chm";
        if (row.hasFile) std::ofstream(settings.helpFilePath) << "x";
        std::string tried;
        const auto start = [&](const std::string& what) {
            tried += what + ";";
            return what + ";" == row.starts;
        };
        const HelpLaunchers launchers = {
            [&](const std::string& program, const auto&) { return start(program); }, start};
        EXPECT_EQ(showConfiguredHelp(settings, launchers), row.shown) << row.name;
        EXPECT_EQ(tried, row.tried) << row.name;
    }
}

}  // namespace
}  // namespace quendra::test
