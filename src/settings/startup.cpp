#include "settings/startup.h"

#include "platform/directories.h"
#include "platform/process.h"
#include "platform/product_version.h"
#include "platform/profile_file.h"
#include "platform/registry.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t maxSettingLength = 260;

// The number of bytes that the first `count` characters take.
std::size_t lengthOfCharacters(std::string_view text, std::size_t count) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool begins = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (begins && ++characters > count) return i;
    }
    return text.size();
}

// A value of the section "Quendra" or "Help" in an ini file; empty when anything is missing.
std::string iniText(const std::optional<Profile>& profile, std::string_view section,
                    std::string_view key) {
    const auto text = profile ? lookup(*profile, section, key) : std::nullopt;
    return text ? text->substr(0, lengthOfCharacters(*text, maxSettingLength)) : std::string();
}

bool startsWithLetter(std::string_view text, char lower) {
    return !text.empty() && (text.front() | 0x20) == lower;
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    const auto same = [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? a | 0x20 : a) == (b >= 'A' && b <= 'Z' ? b | 0x20 : b);
    };
    return !std::ranges::search(text, part, same).empty();
}

fs::path longForm(const fs::path& path) {
    std::error_code error;
    fs::path canonical = fs::weakly_canonical(path, error);
    return error ? path.lexically_normal() : canonical;
}

// By whole names: "/tmp" occurs in "/home/eve/tmp/bin" too, and that is no temporary folder.
bool liesBelow(const fs::path& path, const fs::path& folder) {
    const fs::path relative = longForm(path).lexically_relative(longForm(folder));
    return !relative.empty() && *relative.begin() != ".." && relative != ".";
}

bool liesInProtectedFolder(const fs::path& programFile) {
    const std::string& path = programFile.native();
    return path.find("/Low/Quendra/") != std::string::npos ||
           path.find("/LocalLow/Quendra/") != std::string::npos;
}

fs::path temporaryFolder(const StartupInputs& inputs, bool protectedMode) {
    const fs::path folder = longForm(inputs.folders.temporary);
    return protectedMode ? folder / "Low" : folder;
}

bool isWebDeployed(const StartupInputs& inputs, const StartupSettings& settings) {
    const auto holdsProgram = [&](const std::optional<fs::path>& folder) {
        return folder && liesBelow(inputs.programFile, *folder);
    };
    if (!holdsProgram(temporaryFolder(inputs, settings.protectedMode)) &&
        !holdsProgram(inputs.folders.of(ShellFolder::ApplicationData)) &&
        !holdsProgram(inputs.folders.of(ShellFolder::CommonApplicationData))) {
        return false;
    }
    const auto defaults = readProfileFile(settings.programDir / "default.ini");
    return !containsIgnoringCase(iniText(defaults, "Quendra", "DesktopMode"), ".ini");
}

// The product key under the root that "BaseRegistry" selects. Only start-up reads it, so it holds
// references to what lives as long.
struct ProductKey {
    const Registry& registry;
    RegistryRoot root;
    const std::string& path;

    [[nodiscard]] bool exists() const { return registryHasKey(registry, root, path); }
    [[nodiscard]] std::uint8_t byte(std::string_view value) const {
        return registryByte(registry, root, path, value).value_or(0);
    }
    [[nodiscard]] std::string text(std::string_view value) const {
        auto text = registryText(registry, root, path, value).value_or("");
        return lengthOfCharacters(text, maxSettingLength) == text.size() ? text : std::string();
    }
};

std::uint8_t readBaseRegistry(const Registry& registry, const std::string& keyPath) {
    for (const RegistryRoot root : {RegistryRoot::CurrentUser, RegistryRoot::LocalMachine}) {
        if (const auto value = registryByte(registry, root, keyPath, "BaseRegistry")) return *value;
    }
    return 0;
}

fs::path cacheFolder(const StartupInputs& inputs, const ProductKey& key, bool protectedMode) {
    std::optional<fs::path> folder;
    const std::uint8_t mode = key.byte("CacheMode");
    if (mode == 1) folder = inputs.folders.of(ShellFolder::ApplicationData);
    if (mode == 2) folder = inputs.folders.of(ShellFolder::CommonApplicationData);
    return folder.value_or(temporaryFolder(inputs, protectedMode));
}

fs::path findInstallDir(const StartupInputs& inputs, const ProductKey& key,
                        const StartupSettings& settings) {
    if (settings.webDeployed) {
        return cacheFolder(inputs, key, settings.protectedMode) / "Quendra" / productVersion;
    }
    const std::string configured = key.text("Installation Directory");
    return configured.empty() ? inputs.currentDir : fs::path(configured);
}

// The folder of a WorkingDirType from 1 to 4.
const std::optional<fs::path>& folderOfType(const ShellFolders& folders, std::uint8_t type) {
    switch (type) {
        case 1: return folders.of(ShellFolder::Documents);
        case 2: return folders.of(ShellFolder::CommonDocuments);
        case 3: return folders.of(ShellFolder::ApplicationData);
        default: return folders.of(ShellFolder::CommonApplicationData);
    }
}

// Empty when the settings lead to no folder.
fs::path configuredWorkingDir(const StartupInputs& inputs, const ProductKey& key,
                              const StartupSettings& settings) {
    if (settings.workingDirType == 0) {
        return settings.webDeployed ? fs::path() : fs::path(key.text("Working Directory"));
    }
    const auto& folder = folderOfType(inputs.folders, settings.workingDirType);
    if (!folder) return {};
    const fs::path product = *folder / "Quendra";
    return settings.appendVersion ? product / productVersion : product;
}

void findWorkingDir(const StartupInputs& inputs, const ProductKey& key, StartupSettings& settings) {
    const std::uint8_t type = key.byte("WorkingDirType");
    if (key.exists() && type <= 4) {
        settings.workingDirType = type;
        settings.workingDir = configuredWorkingDir(inputs, key, settings);
    }
    if (settings.workingDir.empty()) {
        settings.workingDir = settings.installDir;
        settings.withSubfolders = false;
    }
}

// Whether the folders that settings name are made.
enum class Folders : std::uint8_t { Make, Leave };

void makeBackupFolders(const StartupSettings& settings) {
    makeDirectoryPath(settings.backupDir);
    if (settings.withSubfolders) {
        for (const char* name : {"Config", "Transfer", "Scripts"}) {
            makeDirectory(settings.backupDir / name);
        }
    }
    makeDirectoryPath(settings.workingDir);
}

void applyBackupDir(const StartupInputs& inputs, Folders folders, StartupSettings& settings) {
    const auto global = readProfileFile(settings.installDir / "global.ini");
    const std::string configured = iniText(global, "Quendra", "BackupWorkingDir");
    if (configured.empty()) return;
    settings.backupDir = expandEnvironmentNames(configured, inputs.environment);
    if (folders == Folders::Make) makeBackupFolders(settings);
    const bool isUsable = folders == Folders::Make ? canMakeFilesIn(settings.workingDir)
                                                   : mayMakeFilesIn(settings.workingDir);
    if (isUsable) return;
    settings.usingBackupDir = true;
    settings.workingDir = settings.backupDir;
}

void readHelpSettings(StartupSettings& settings) {
    settings.useWebHelp = settings.webDeployed;
    settings.webHelpBase = builtInWebHelpBase;
    settings.helpFilePath = settings.installDir / "quendra.chm";
    auto global = readProfileFile(settings.installDir / "global.ini");
    if (!global) global = readProfileFile(settings.workingDir / "global.ini");
    if (!global) return;
    if (startsWithLetter(iniText(global, "Help", "UseWebHelp"), 'y')) settings.useWebHelp = true;
    settings.webHelpBase = iniText(global, "Help", "WebHelpUrl");
}

void nameFolders(StartupSettings& settings) {
    const auto subfolder = [&](const char* name) {
        return settings.withSubfolders ? settings.workingDir / name : settings.workingDir;
    };
    settings.scriptsDir = subfolder("Scripts");
    settings.transferDir = subfolder("Transfer");
    settings.configDir = subfolder("Config");
}

void makeFolders(const StartupSettings& settings) {
    makeDirectoryPath(settings.workingDir);
    for (const auto& folder : {settings.scriptsDir, settings.transferDir, settings.configDir}) {
        makeDirectory(folder);
    }
}

StartupSettings settingsOf(const StartupInputs& inputs, Folders folders) {
    StartupSettings settings = readProgramSettings(inputs);
    settings.protectedMode = liesInProtectedFolder(inputs.programFile);
    settings.webDeployed = isWebDeployed(inputs, settings);
    settings.productKeyPath =
        std::string(settings.webDeployed ? "Software\\Quendra Web\\" : "Software\\Quendra\\") +
        productVersion;

    const Registry registry = readRegistry(inputs.environment);
    settings.baseRegistry = readBaseRegistry(registry, settings.productKeyPath);
    const RegistryRoot root =
        settings.baseRegistry == 2 ? RegistryRoot::CurrentUser : RegistryRoot::LocalMachine;
    const ProductKey key = {registry, root, settings.productKeyPath};
    settings.installDir = findInstallDir(inputs, key, settings);
    findWorkingDir(inputs, key, settings);
    applyBackupDir(inputs, folders, settings);
    readHelpSettings(settings);
    nameFolders(settings);
    return settings;
}

}  // namespace

StartupInputs processStartupInputs() {
    StartupInputs inputs;
    std::error_code error;
    inputs.programFile = programFile();
    inputs.currentDir = fs::current_path(error);
    inputs.environment = processEnvironment();
    inputs.folders = shellFolders(inputs.environment);
    return inputs;
}

StartupSettings readProgramSettings(const StartupInputs& inputs) {
    StartupSettings settings;
    settings.programDir = inputs.programFile.parent_path();
    const auto global = readProfileFile(settings.programDir / "global.ini");
    settings.appendVersion =
        startsWithLetter(iniText(global, "Quendra", "AppendVersionToWorkingDir"), 'y');
    settings.crossVersionInterop =
        !startsWithLetter(iniText(global, "Quendra", "AllowCrossVersionInterop"), 'n');
    if (!settings.crossVersionInterop) {
        settings.windowClassName += std::string(" ") + productVersion;
    }
    return settings;
}

StartupSettings findStartupSettings(const StartupInputs& inputs) {
    return settingsOf(inputs, Folders::Leave);
}

StartupSettings readStartupSettings(const StartupInputs& inputs) {
    StartupSettings settings = settingsOf(inputs, Folders::Make);
    makeFolders(settings);
    return settings;
}

}  // namespace quendra
