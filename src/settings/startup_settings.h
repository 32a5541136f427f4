// What start-up finds out about folders, settings and flags. Filled once, read-only afterwards.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace quendra {

/// The web help where no "global.ini" says otherwise. The server's name is reserved for examples,
/// so that nobody's server is asked until an installation names its own ("WebHelpUrl").
inline constexpr const char* builtInWebHelpBase = "https://www.quendra.example/help/v61";

struct StartupSettings {
    /// "Software\Quendra\6.1", or "Software\Quendra Web\6.1" when web-deployed.
    std::string productKeyPath;
    std::filesystem::path programDir;
    std::filesystem::path installDir;
    std::filesystem::path workingDir;
    /// Empty when none is configured.
    std::filesystem::path backupDir;
    std::filesystem::path scriptsDir;
    std::filesystem::path transferDir;
    std::filesystem::path configDir;
    std::filesystem::path helpFilePath;
    std::string webHelpBase;
    std::string windowClassName = "Quendra Script Editor";

    /// The program file lies in a low-integrity folder.
    bool protectedMode = false;
    /// The program runs from a per-user or temporary cache folder.
    bool webDeployed = false;
    /// 2: the settings are the user's; anything else: the machine's.
    std::uint8_t baseRegistry = 0;
    std::uint8_t workingDirType = 0;
    /// Scripts, transfer files and configuration lie in subfolders of the working directory.
    bool withSubfolders = true;
    bool appendVersion = false;
    bool crossVersionInterop = true;
    /// The working directory was not writable and the backup directory took its place.
    bool usingBackupDir = false;
    bool useWebHelp = false;
};

}  // namespace quendra
