// Where documents and data lie, as desktops and users set it.
#include "platform/shell_folders.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

TEST(ShellFolders, OfDocumentsAreWhatUserDirsSays) {
    // Below the home folder unless they begin with "/".
    const std::pair<const char*, const char*> rows[] = {
        {"XDG_DOCUMENTS_DIR=\"/srv/eve\"\n", "/srv/eve"},
        {"  XDG_DOCUMENTS_DIR = \"$HOME/My \\\"Docs\\\"\" \n", "My \"Docs\""},
        {"# XDG_DOCUMENTS_DIR=\"$HOME/No\"\nXDG_MUSIC_DIR=\"$HOME/No\"\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/First\"\nXDG_DOCUMENTS_DIR=\"$HOME/Last\"", "Last"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", ""},
        {"XDG_DOCUMENTS_DIR=\"$HOMELESS/Docs\"\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=\"relative\"\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=$HOME/Unquoted\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/Unclosed\n", "Documents"},
    };
    const TemporaryFolder home;
    fs::create_directory(home / ".config");
    for (const auto& [userDirs, documents] : rows) {
        std::ofstream(home / ".config/user-dirs.dirs") << userDirs;
        const fs::path found = *shellFolders({{"HOME", home.path()}}).documents;
        EXPECT_EQ(found, (home / documents).lexically_normal()) << userDirs;
    }
}

TEST(ShellFolders, FollowTheVariablesAndElseHome) {
    const ShellFolders plain = shellFolders({{"HOME", "/nowhere/eve"}});
    EXPECT_EQ(plain.documents, "/nowhere/eve/Documents");
    EXPECT_EQ(plain.applicationData, "/nowhere/eve/.local/share");
    EXPECT_EQ(plain.commonApplicationData, "/var/lib");
    EXPECT_EQ(plain.commonDocuments, "/srv");
    EXPECT_EQ(plain.temporary, "/tmp");

    const TemporaryFolder config;
    std::ofstream(config / "user-dirs.dirs") << "XDG_DOCUMENTS_DIR=\"$HOME/D\"\n";
    const ShellFolders set = shellFolders({{"HOME", "/nowhere/eve"},
                                           {"XDG_CONFIG_HOME", config.path()},
                                           {"XDG_DATA_HOME", "/data"},
                                           {"TMPDIR", "/scratch"}});
    EXPECT_EQ(set.documents, "/nowhere/eve/D");
    EXPECT_EQ(set.applicationData, "/data");
    EXPECT_EQ(set.temporary, "/scratch");

    const ShellFolders homeless = shellFolders({{"TMPDIR", "relative"}, {"XDG_DATA_HOME", "data"}});
    EXPECT_FALSE(homeless.documents || homeless.applicationData);
    EXPECT_EQ(homeless.temporary, "/tmp");
}

}  // namespace
}  // namespace quendra::test
