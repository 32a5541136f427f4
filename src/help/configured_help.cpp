#include "help/configured_help.h"

#include "platform/process.h"
#include "platform/settings_file.h"

#include <algorithm>
#include <filesystem>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr const char* compiledTopic = "/qddp_hcon_qd-script-editor.htm#styler-id1.1.1.9.14.6.1";
constexpr const char* webTopic = "/en/qd/qddp_hcon_qd-script-editor.htm#styler-id1.1.1.9.14.6.1";

bool showWebHelp(const StartupSettings& settings, const HelpLaunchers& launchers) {
    if (settings.webHelpBase.empty() || settings.webHelpBase == builtInWebHelpBase) return false;
    return launchers.openAddress(webHelpAddress(settings));
}

bool showCompiledHelp(const StartupSettings& settings, const HelpLaunchers& launchers) {
    // Its folder may be any current one, and a viewer runs what the pages hold.
    if (!isTrusted(settings.helpFilePath)) return false;
    return std::ranges::any_of(helpViewerCommands(settings), [&](const ViewerCommand& viewer) {
        return launchers.startViewer(viewer.program, viewer.arguments);
    });
}

}  // namespace

HelpLaunchers desktopLaunchers() {
    return {[](const std::string& program, const std::vector<std::string>& arguments) {
                return !startDetached(program, arguments);
            },
            [](const std::string& address) { return !openWebPage(address); }};
}

std::vector<ViewerCommand> helpViewerCommands(const StartupSettings& settings) {
    // Absolute, so that no name of a folder is taken for an option.
    std::error_code ignored;
    const fs::path absolute = fs::absolute(settings.helpFilePath, ignored);
    const std::string& file = absolute.native();
    return {{"kchmviewer", {"-showPage", compiledTopic, file}}, {"xchm", {file}}};
}

std::string webHelpAddress(const StartupSettings& settings) {
    return settings.webHelpBase + webTopic;
}

bool showConfiguredHelp(const StartupSettings& settings, const HelpLaunchers& launchers) {
    return settings.useWebHelp ? showWebHelp(settings, launchers)
                               : showCompiledHelp(settings, launchers);
}

}  // namespace quendra
