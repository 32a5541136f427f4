#include "session/application_life.h"

#include "platform/files.h"
#include "platform/registry.h"
#include "platform/secret_memory.h"
#include "text/text_ids.h"

namespace quendra {

std::vector<StartupNotice> loadApplication(ApplicationState& state, const StartupSettings& settings,
                                           const Environment& environment) {
    std::vector<StartupNotice> notices;
    state.settings = settings;
    if (const auto notice = state.language.load(
            {settings.programDir, settings.configDir, settings.installDir, systemLanguage()})) {
        notices.push_back({notice->text, notice->caption});
    }
    state.luCatalogues = buildLuCatalogues(state.language.textSource());
    state.menuCommands = buildMenuCommandCatalogue(state.language.textSource());
    state.cipher = HiddenTextCipher(userIdentitySource(environment));
    if (!userRegistryUsable(environment)) {
        notices.push_back({state.language.loadText(textid::registryKeyUnusable),
                           state.language.loadText(textid::registryKeyUnusableTitle), true});
    }
    return notices;
}

void wipeApplication(ApplicationState& state) {
    state.script.entries.clear();
    state.document.saved = {};
    state.history.clear();
    state.jumps.clear();
    state.entryClipboard.clear();
    // It may hold the password of a host file.
    auto& transfer = state.workingTransfer.settings.bytes;
    wipeMemory(transfer.data(), transfer.size());
    state.luCatalogues = {};
    state.menuCommands = {};
    state.language.unload();
}

void backupSavedScript(const StartupSettings& settings, const std::filesystem::path& saved) {
    if (settings.backupDir.empty() || settings.usingBackupDir) return;
    const auto folder =
        settings.withSubfolders ? settings.backupDir / "Scripts" : settings.backupDir;
    static_cast<void>(copyFile(saved, folder / saved.filename()));
}

}  // namespace quendra
