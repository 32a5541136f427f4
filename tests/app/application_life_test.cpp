// Beginning and end of a run, and the copy of a saved script.
#include "app/application_life.h"

#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

StartupSettings settingsIn(const TemporaryFolder& folder) {
    StartupSettings settings;
    settings.programDir = LANGUAGE_BUILT_DIR;
    settings.installDir = folder.path();
    settings.configDir = folder.path();
    return settings;
}

Environment environmentIn(const TemporaryFolder& folder) {
    return {{"XDG_CONFIG_HOME", folder / "config"}};
}

TEST(LoadApplication, FillsTheStateWithoutAWord) {
    const TemporaryFolder folder;
    ApplicationState state;
    EXPECT_TRUE(loadApplication(state, settingsIn(folder), environmentIn(folder)).empty());
    EXPECT_EQ(state.settings.installDir, folder.path());
    EXPECT_EQ(state.luCatalogues.of(HostType::VT).rows.size(), 142U);
    EXPECT_NE(state.menuCommands.names.front(), "");
    EXPECT_NE(state.language.loadText(13700), "");
    EXPECT_FALSE(fs::exists(folder / "config")) << "settings are read, never written";
}

TEST(LoadApplication, EnciphersUnderTheUsersIdentity) {
    const TemporaryFolder folder;
    fs::create_directories(folder / "config/quendra");
    std::ofstream(folder / "config/quendra/registry.ini")
        << "[Identities]\nDefault User ID={01234567-89AB-CDEF-0123-456789ABCDEF}\n";
    ApplicationState state;
    EXPECT_TRUE(loadApplication(state, settingsIn(folder), environmentIn(folder)).empty());
    const Bytes expected = {0x6e, 0x81, 0x38, 0x3b, 0xa9, 0xc2, 0x9c, 0x0b,
                            0x05, 0xcd, 0x08, 0xb2, 0x8b, 0x5d, 0xae, 0x68};
    EXPECT_EQ(state.cipher.encipher("secret7"), expected);
}

TEST(LoadApplication, TellsOfARegistryThatCannotBeUsed) {
    const TemporaryFolder folder;
    ApplicationState state;
    const auto notices = loadApplication(state, settingsIn(folder), {});
    ASSERT_EQ(notices.size(), 1U);
    EXPECT_EQ(notices[0].text, state.language.loadText(12514));
    EXPECT_EQ(notices[0].caption, state.language.loadText(13700));
    EXPECT_NE(notices[0].text, "");
    EXPECT_TRUE(notices[0].beep);
}

TEST(LoadApplication, GoesOnWithoutALanguageLibrary) {
    const TemporaryFolder folder;
    StartupSettings settings = settingsIn(folder);
    settings.programDir = folder.path();
    ApplicationState state;
    const auto notices = loadApplication(state, settings, {});
    ASSERT_EQ(notices.size(), 2U);
    EXPECT_EQ(notices[0].text, (folder / "qdstring.qm").string());
    EXPECT_EQ(notices[0].caption, "Unable to load language library");
    EXPECT_FALSE(notices[0].beep);
    EXPECT_EQ(state.luCatalogues.of(HostType::Mainframe).rows.size(), 64U);
}

TEST(WipeApplication, LetsGoOfEverything) {
    const TemporaryFolder folder;
    ApplicationState state;
    static_cast<void>(loadApplication(state, settingsIn(folder), environmentIn(folder)));
    const EntryHandle entry = storeRecord(bytesOf("\x04"));
    state.script.entries.assign(3, entry);
    state.entryClipboard.assign(2, entry);
    state.document.saved = state.script;
    state.history.record({}, {state.script, {}}, "Insert");
    wipeApplication(state);
    EXPECT_TRUE(state.script.entries.empty());
    EXPECT_TRUE(state.document.saved.entries.empty()) << "it would keep the records alive";
    EXPECT_FALSE(state.history.canUndo());
    EXPECT_TRUE(state.entryClipboard.empty());
    EXPECT_TRUE(state.luCatalogues.of(HostType::Mainframe).rows.empty());
    EXPECT_EQ(state.menuCommands.names.front(), "");
    EXPECT_EQ(state.language.loadText(13700), "");
}

class BackupSavedScript : public testing::Test {
  protected:
    BackupSavedScript() : saved(folder / "work/login.qds") {
        fs::create_directories(folder / "work");
        fs::create_directories(folder / "backup/Scripts");
        writeBytes(saved, bytesOf("new"));
        settings.backupDir = folder / "backup";
    }

    const TemporaryFolder folder;
    const fs::path saved;
    StartupSettings settings;
};

TEST_F(BackupSavedScript, CopiesOverAnEarlierCopyWithTheMode) {
    const fs::path copy = folder / "backup/Scripts/login.qds";
    writeBytes(copy, bytesOf("older and longer"));
    ASSERT_EQ(::chmod(saved.c_str(), 0600), 0);
    backupSavedScript(settings, saved);
    EXPECT_EQ(readBytes(copy), bytesOf("new"));
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms(0600)) << "as private as the script";
    EXPECT_EQ(std::distance(fs::directory_iterator(copy.parent_path()), fs::directory_iterator()),
              1);
}

TEST_F(BackupSavedScript, GoesBesideTheSubfoldersWhereThereAreNone) {
    settings.withSubfolders = false;
    settings.backupDir += "/";
    backupSavedScript(settings, saved);
    EXPECT_EQ(readBytes(folder / "backup/login.qds"), bytesOf("new"));
    EXPECT_FALSE(fs::exists(folder / "backup/Scripts/login.qds"));
}

TEST_F(BackupSavedScript, DoesNothingWithoutABackupDirectoryOrWithinIt) {
    settings.usingBackupDir = true;
    backupSavedScript(settings, saved);
    settings.usingBackupDir = false;
    settings.backupDir.clear();
    backupSavedScript(settings, saved);
    EXPECT_TRUE(fs::is_empty(folder / "backup/Scripts"));
    EXPECT_FALSE(fs::exists("Scripts"));
}

TEST_F(BackupSavedScript, LeavesAScriptAloneThatWasSavedAsItsOwnCopy) {
    const fs::path copy = folder / "backup/Scripts/login.qds";
    fs::create_symlink(folder / "backup/Scripts", folder / "link");
    writeBytes(copy, bytesOf("new"));
    const auto stamp = fileStamp(copy);
    backupSavedScript(settings, folder / "link/login.qds");
    EXPECT_EQ(fileStamp(copy), stamp) << "the window would take it for a change by someone else";
}

TEST_F(BackupSavedScript, FailsSilently) {
    fs::remove_all(folder / "backup/Scripts");
    backupSavedScript(settings, saved);
    backupSavedScript(settings, folder / "work/not-there.qds");
    EXPECT_TRUE(fs::is_empty(folder / "backup"));
}

}  // namespace
}  // namespace quendra::test
