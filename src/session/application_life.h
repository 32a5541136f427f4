// The beginning and the end of a run, around the window.
#pragma once

#include "platform/environment.h"
#include "session/application_state.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quendra {

/// A message to show before the window, in front of all others, with the exclamation icon and no
/// owner.
struct StartupNotice {
    std::string text;
    std::string caption;
    /// Sound the alarm first.
    bool beep = false;
};

/// Fills a fresh state: settings, language library, catalogues and cipher, the last by the user
/// identity of `environment`. Gives the notices in the order in which to show them; start-up goes
/// on after any of them.
[[nodiscard]] std::vector<StartupNotice> loadApplication(ApplicationState& state,
                                                         const StartupSettings& settings,
                                                         const Environment& environment);

/// The end of the run, when no window shows the state any more: drops script and clipboard, whose
/// texts are wiped with their last owner, then catalogues and language library. Whoever else holds
/// handles, such as an undo history, has to let go of them before.
void wipeApplication(ApplicationState& state);

/// Copies a script that was just saved into the backup directory, over an earlier copy of that
/// name. Does nothing where none is configured or it is the working directory already. A copy that
/// fails is nobody's concern: the script itself is saved.
void backupSavedScript(const StartupSettings& settings, const std::filesystem::path& saved);

}  // namespace quendra
