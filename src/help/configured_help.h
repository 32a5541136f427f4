// The help that an installation brings itself: a compiled help file beside it, or a web site.
#pragma once

#include "settings/startup_settings.h"

#include <functional>
#include <string>
#include <vector>

namespace quendra {

/// How other programs are started; true when one runs. Nobody waits for it.
struct HelpLaunchers {
    std::function<bool(const std::string& program, const std::vector<std::string>& arguments)>
        startViewer;
    std::function<bool(const std::string& address)> openAddress;
};

/// Those of the desktop.
[[nodiscard]] HelpLaunchers desktopLaunchers();

struct ViewerCommand {
    std::string program;
    std::vector<std::string> arguments;
};

/// What shows the editor's topic of the compiled help file, in the order in which to try. The
/// second viewer cannot be told a topic and opens the file at its beginning.
[[nodiscard]] std::vector<ViewerCommand> helpViewerCommands(const StartupSettings& settings);

/// The editor's topic on the web site. Without a base it is just the topic's path, which leads
/// nowhere.
[[nodiscard]] std::string webHelpAddress(const StartupSettings& settings);

/// Opens the help that the settings name, and gives false when there is none, so that the manual
/// can take its place: web help without an address of the installation's own (the built-in one is
/// reserved for examples, nobody serves it), no compiled help file, one that somebody else may have
/// written, or nothing that would start.
[[nodiscard]] bool showConfiguredHelp(const StartupSettings& settings,
                                      const HelpLaunchers& launchers);

}  // namespace quendra
