// Finding out where the program runs, where its settings are and where scripts belong.
//
// Everything is worked out from plain values, so that tests start in homes of their own making.
#pragma once

#include "platform/environment.h"
#include "platform/shell_folders.h"
#include "settings/startup_settings.h"

#include <filesystem>

namespace quendra {

struct StartupInputs {
    /// Full path of the program file, links followed.
    std::filesystem::path programFile;
    std::filesystem::path currentDir;
    Environment environment;
    ShellFolders folders;
};

/// Those of this process.
[[nodiscard]] StartupInputs processStartupInputs();

/// What the program's own folder says: programDir, appendVersion, crossVersionInterop and
/// windowClassName; all else as it is without settings. Enough to look for another editor's window,
/// and nothing on disk has changed after it.
[[nodiscard]] StartupSettings readProgramSettings(const StartupInputs& inputs);

/// All settings as the editor would find them, for programs that only look something up in its
/// folders. Makes none; where that decides, permissions tell whether files can be made in one.
[[nodiscard]] StartupSettings findStartupSettings(const StartupInputs& inputs);

/// All settings. Also makes the folders that they name, as far as that works, and tests whether
/// files can be made in the working directory when a backup directory could take its place.
///
/// With no settings at all every folder is the current directory. Missing or malformed settings
/// leave their defaults, without a message; a WorkingDirType above 4 counts as if the whole product
/// key were missing. Texts of ini files count up to their 260th character, longer texts of the
/// registry not at all.
[[nodiscard]] StartupSettings readStartupSettings(const StartupInputs& inputs);

}  // namespace quendra
