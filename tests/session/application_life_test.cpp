// Beginning and end of a run, and the copy of a saved script.
#include "session/application_life.h"

#include "support/fixtures.h"
#include "support/temporary_folder.h"
#include "text/text_ids.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

class ApplicationLife : public testing::Test {
  protected:
    ApplicationLife() {
        settings.programDir = LANGUAGE_BUILT_DIR;
        settings.installDir = settings.configDir = folder.path();
    }

    const TemporaryFolder folder;
    StartupSettings settings;
    Environment environment{{"XDG_CONFIG_HOME", folder / "config"}};
    ApplicationState state;
};

TEST_F(ApplicationLife, LoadFillsTheStateWithoutAWordAndWipeLetsGoOfEverything) {
    EXPECT_TRUE(loadApplication(state, settings, environment).empty());
    EXPECT_NE(state.menuCommands.names.front(), "");
    EXPECT_FALSE(fs::exists(folder / "config")) << "settings are read, never written";
    fs::create_directories(folder / "config/quendra");
    std::ofstream(folder / "config/quendra/registry.ini")
        << "[Identities]\nDefault User ID={01234567-89AB-CDEF-0123-456789ABCDEF}\n";
    EXPECT_TRUE(loadApplication(state, settings, environment).empty());
    const Bytes enciphered = {0x6e, 0x81, 0x38, 0x3b, 0xa9, 0xc2, 0x9c, 0x0b,
                              0x05, 0xcd, 0x08, 0xb2, 0x8b, 0x5d, 0xae, 0x68};
    EXPECT_EQ(state.cipher.encipher("secret7"), enciphered) << "under the user's identity";

    const EntryHandle entry = storeRecord(bytesOf("\x04"));
    state.script.entries.assign(3, entry);
    state.entryClipboard.assign(2, entry);
    state.document.saved = state.script;
    state.history.record({}, {state.script, {}}, "Insert");
    setTransferText(state.workingTransfer.settings, transfer::hostFilePassword, "secret");
    wipeApplication(state);
    EXPECT_EQ(state.workingTransfer.settings, FileTransferSettings());
    EXPECT_TRUE(state.script.entries.empty());
    EXPECT_TRUE(state.document.saved.entries.empty()) << "it would keep the records alive";
    EXPECT_FALSE(state.history.canUndo());
    EXPECT_TRUE(state.entryClipboard.empty());
    EXPECT_EQ(state.language.loadText(textid::registryKeyUnusableTitle), "");
}

TEST_F(ApplicationLife, GoesOnWithoutALanguageLibraryOrARegistryThatCanBeUsed) {
    const auto first = loadApplication(state, settings, {});
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(first[0].text, state.language.loadText(textid::registryKeyUnusable));
    EXPECT_TRUE(first[0].beep);
    settings.programDir = folder.path();
    ApplicationState speechless;
    const auto both = loadApplication(speechless, settings, {});
    ASSERT_EQ(both.size(), 2U);
    EXPECT_EQ(both[0].text, (folder / "qdstring.qm").string());
    EXPECT_EQ(both[0].caption, "Unable to load language library");
}

TEST_F(ApplicationLife, ASavedScriptIsCopiedIntoTheBackupDirectoryElseNothingHappens) {
    const fs::path saved = folder / "work/login.qds";
    const fs::path copies = folder / "backup/Scripts";
    fs::create_directories(folder / "work");
    fs::create_directories(copies);
    fs::create_symlink(copies, folder / "link");
    writeBytes(saved, bytesOf("new"));
    fs::permissions(saved, fs::perms(0600));
    backupSavedScript(settings, saved);
    settings.backupDir = folder / "backup";
    settings.usingBackupDir = true;
    backupSavedScript(settings, saved);
    EXPECT_TRUE(fs::is_empty(copies));
    settings.usingBackupDir = false;
    writeBytes(copies / "login.qds", bytesOf("older and longer"));
    backupSavedScript(settings, saved);
    EXPECT_EQ(readBytes(copies / "login.qds"), bytesOf("new"));
    EXPECT_EQ(fs::status(copies / "login.qds").permissions(), fs::perms(0600))
        << "as private as the script";
    const auto stamp = fileStamp(copies / "login.qds");
    backupSavedScript(settings, folder / "link/login.qds");
    EXPECT_EQ(fileStamp(copies / "login.qds"), stamp)
        << "its own copy: the window would take it for a change by someone else";
    fs::remove_all(folder / "backup");
    backupSavedScript(settings, saved);
    EXPECT_FALSE(fs::exists(folder / "backup")) << "fails silently";
}

}  // namespace
}  // namespace quendra::test
