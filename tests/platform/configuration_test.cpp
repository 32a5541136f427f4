// What administrators, desktops and users set: variables in paths, ini files, the registry kept in
// them, and folders.
#include "platform/environment.h"
#include "platform/profile_file.h"
#include "platform/registry.h"
#include "platform/settings_file.h"
#include "platform/shell_folders.h"
#include "support/temporary_folder.h"

#include <cstring>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;
using enum RegistryRoot;

TEST(EnvironmentNames, AreExpandedAndTheRestOfAPathIsLeft) {
    const Environment variables = {{"HOME", "/home/eve"}, {"SHARE", "<HOME>/share"},
                                   {"EMPTY", ""},         {"SELF", "%SELF%"},
                                   {"GROWS", "x%GROWS%"}, {"HUGE", std::string(5000, 'h')},
                                   {"REL", "below"}};
    const std::string longName = "%" + std::string(261, 'n') + "%";
    const std::pair<std::string, std::string> rows[] = {
        {"<HOME>/b%HOME%/%HOME%", "/home/eve/b/home/eve//home/eve"},
        {"%HOME>/x", "/home/eve/x"},
        {"<HOME%/100%", "<HOME%/100%"},
        {"%SHARE%/x", "/home/eve/share/x"},
        {"%HOME%/%NOPE%/%HOME%", "/home/eve/%NOPE%/%HOME%"},
        {"%EMPTY%/%%/x", "%EMPTY%/%%/x"},
        {longName, longName},
        {"%SELF%/x", "%SELF%/x"},
        {"%GROWS%", std::string(32, 'x') + "%GROWS%"},
        {"%HUGE%/x", "%HUGE%/x"},
    };
    for (const auto& [path, expanded] : rows)
        EXPECT_EQ(expandEnvironmentNames(path, variables), expanded);
    EXPECT_EQ(folderVariable(variables, "HOME"), "/home/eve");
    for (const char* name : {"REL", "EMPTY", "NOPE"})
        EXPECT_FALSE(folderVariable(variables, name)) << name;
}

TEST(Profile, GivesTheValueThatALineMeans) {
    const std::pair<std::string, std::optional<std::string>> rows[] = {
        {"[A]\nK=v", "v"},
        {" [ a ] \r\n\t k \t=  v w \t\r\n", "v w"},
        {"\xEF\xBB\xBF[a]\nk=v", "v"},
        {"[a]\n;k=1\n  ; k=2\nk=/x;/y", "/x;/y"},
        {"[a]\nk=\"  v  \"", "  v  "},
        {"[a]\nk=\"\"v\"\"", "\"v\""},
        {"[a]\nk=\"", "\""},
        {"[a]\nk=\n", ""},
        {"[a]\nj=v", {}},
        {"[a]\nk=1\nK=2\n[A]\nk=3", "1"},
        {"[a]\nj=1\n[b]\nk=2\n[A]\nk=3", "3"},
        {"k=v\n[a]\n[b]\nk=2", {}},
        {"[a]\nk\nk=v", "v"},
        {"[a]\n[b\nk=v", {}},
        {"[a\nk=v", "v"},
    };
    for (const auto& [text, value] : rows)
        EXPECT_EQ(lookup(parseProfile(text), "a", "k"), value) << text;
    EXPECT_FALSE(lookup(parseProfile("[\xC3\x84]\nk=v"), "\xC3\xA4", "k")) << "ASCII alone";
    EXPECT_TRUE(hasSection(parseProfile("[B\\Empty]\n[b]\nk=v"), "b\\empty"));
    EXPECT_FALSE(readProfileFile("/"));
}

TEST(Registry, GivesAByteInAnyOfItsForms) {
    const auto byteOf = [](const std::string& text, RegistryRoot where) {
        const Registry registry = {{}, {parseProfile("[a\\B]\nBase=" + text)}};
        return registryByte(registry, where, "A\\b", "base");
    };
    for (const char* text : {"255", "0XfF", "hex:ff", "255 "})
        EXPECT_EQ(byteOf(text, LocalMachine), 255) << text;
    for (const char* text : {"hex:", "hex:ff,00", "256", "-1", "", "2x", "0x100", "dword:00000002"})
        EXPECT_FALSE(byteOf(text, LocalMachine)) << text;
    EXPECT_FALSE(byteOf("255", CurrentUser));
}

class Folders : public testing::Test {
  protected:
    void write(const fs::path& name, const std::string& text) const {
        fs::create_directories((root / name).parent_path());
        std::ofstream(root / name) << text;
    }

    const TemporaryFolder folder;
    const std::string root = folder.path();
};

using RegistryFiles = Folders;
using SettingsFiles = Folders;

TEST_F(SettingsFiles, AreReadInWholeLinesUpToABoundAndNeverWaitedFor) {
    const std::string line = "[a]\nk=" + std::string(maxSettingsSize - 8, 'v') + "\n";
    write("full.ini", line + "[b]\nk=v\n");
    EXPECT_EQ(readSettingsFile(folder / "full.ini"), line);
    write("line.ini", std::string(maxSettingsSize + 1, 'v'));
    EXPECT_EQ(readSettingsFile(folder / "line.ini"), "");
    ASSERT_EQ(::mkfifo((folder / "fifo.ini").c_str(), 0600), 0);
    EXPECT_FALSE(readSettingsFile(folder / "fifo.ini"));
}

TEST_F(SettingsFiles, OfSomebodyElseAreNotTrusted) {
    constexpr uid_t nobody = 65534;
    const struct {
        const char* name;
        mode_t folderMode;
        mode_t fileMode;
        bool trusted;
        bool othersFolder = false;
        bool othersFile = false;
    } rows[] = {{"mine", 0755, 0644, true},
                {"writableFile", 0755, 0646, false},
                {"writableFolder", 0777, 0644, false},
                {"sticky", 01777, 0644, false},
                {"theirFile", 0755, 0644, false, false, true},
                {"theirFolder", 0755, 0644, false, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        if ((row.othersFile || row.othersFolder) && ::geteuid() != 0) continue;
        const fs::path file = folder / row.name / "global.ini";
        write(std::string(row.name) + "/global.ini", "[Quendra]\n");
        ASSERT_EQ(::chmod(file.c_str(), row.fileMode), 0);
        const auto giveAway = [](const fs::path& path) {
            EXPECT_EQ(::chown(path.c_str(), nobody, nobody), 0);
        };
        if (row.othersFile) giveAway(file);
        ASSERT_EQ(::chmod(file.parent_path().c_str(), row.folderMode), 0);
        if (row.othersFolder) giveAway(file.parent_path());
        EXPECT_EQ(isTrusted(file), row.trusted);
        EXPECT_EQ(readProfileFile(file, WrittenBy::UserOrRoot).has_value(), row.trusted);
        EXPECT_TRUE(readProfileFile(file));
        // A link is no way around it.
        fs::create_directories(folder / "links");
        fs::create_symlink(file, folder / "links" / row.name);
        EXPECT_EQ(isTrusted(folder / "links" / row.name), row.trusted);
    }
    // The group of one's own that many systems give each user, and any other.
    write("group.ini", "");
    ASSERT_EQ(::chmod((folder / "group.ini").c_str(), 0664), 0);
    const passwd* user = ::getpwuid(::geteuid());
    const group* own = ::getgrgid(::getegid());
    const bool isOwn = user && own && !std::strcmp(user->pw_name, own->gr_name);
    EXPECT_EQ(isTrusted(folder / "group.ini"), isOwn);
    if (::geteuid() != 0) return;
    ASSERT_EQ(::chown((folder / "group.ini").c_str(), 0, 100), 0);
    EXPECT_FALSE(isTrusted(folder / "group.ini"));
}

TEST_F(RegistryFiles, EachValueComesFromTheMostImportantOneThatHasIt) {
    write("a/quendra/registry.ini", "[Key]\nOne=a\n");
    write("b/quendra/registry.ini", "[Key]\nOne=b\nTwo=b\n[Only B]\n");
    write(".config/quendra/registry.ini", "[Identities]\nDefault User ID={1}\n[Key]\nOne=user\n");
    Environment environment = {{"XDG_CONFIG_DIRS", "rel::" + root + "/a:" + root + "/b"},
                               {"HOME", root}};
    const Registry registry = readRegistry(environment);
    EXPECT_EQ(registryText(registry, LocalMachine, "Key", "One"), "a");
    EXPECT_EQ(registryText(registry, LocalMachine, "Key", "Two"), "b");
    EXPECT_EQ(registryText(registry, CurrentUser, "Key", "One"), "user");
    EXPECT_FALSE(registryText(registry, CurrentUser, "Key", "Two"));
    EXPECT_TRUE(registryHasKey(registry, LocalMachine, "only b"));
    EXPECT_FALSE(registryHasKey(registry, CurrentUser, "only b"));
    EXPECT_EQ(userIdentity(registry), "{1}");
    environment["XDG_CONFIG_HOME"] = root + "/b";
    EXPECT_EQ(userIdentity(readRegistry(environment)), "");
    EXPECT_EQ(userIdentity(readRegistry({})), "");
}

TEST_F(RegistryFiles, AnIdentityIsFoundOnceItIsThereAndAnUnreadableFileIsToldFromNone) {
    const Environment environment = {{"XDG_CONFIG_HOME", root}};
    const auto identity = userIdentitySource(environment);
    EXPECT_EQ(identity(), "");
    EXPECT_FALSE(unreadableUserRegistry(environment));
    write("quendra/registry.ini", "[Identities]\n");
    EXPECT_EQ(identity() + identity(), "");
    write("quendra/registry.ini", "[Identities]\nDefault User ID={1}\n");
    EXPECT_EQ(identity() + identity(), "{1}{1}");
    EXPECT_FALSE(unreadableUserRegistry(environment));
    fs::remove(folder / "quendra/registry.ini");
    fs::create_directory(folder / "quendra/registry.ini");
    EXPECT_EQ(unreadableUserRegistry(environment), folder / "quendra/registry.ini");
}

TEST_F(RegistryFiles, TheUsersIsUsableUnlessItCanBeNeitherReadNorMade) {
    write("full/quendra/registry.ini", "");
    fs::create_directories(folder / "blocked/quendra/registry.ini");
    const auto usable = [&](const char* name) {
        return userRegistryUsable({{"XDG_CONFIG_HOME", folder / name}});
    };
    EXPECT_TRUE(usable("full"));
    EXPECT_TRUE(usable("not/yet/there"));
    EXPECT_FALSE(usable("blocked")) << "a folder stands where the file belongs";
    EXPECT_FALSE(usable("full/quendra/registry.ini")) << "a file stands where a folder belongs";
    EXPECT_FALSE(userRegistryUsable({})) << "no home";
    EXPECT_FALSE(fs::exists(folder / "not")) << "asking must not make anything";
}

TEST_F(Folders, OfDocumentsAreWhatUserDirsSays) {
    // Below the home folder unless they begin with "/".
    const std::pair<const char*, const char*> rows[] = {
        {"XDG_DOCUMENTS_DIR=\"/srv/eve\"\n", "/srv/eve"},
        {"  XDG_DOCUMENTS_DIR = \"$HOME/My \\\"Docs\\\"\" \n", "My \"Docs\""},
        {"# XDG_DOCUMENTS_DIR=\"$HOME/No\"\nXDG_MUSIC_DIR=\"$HOME/No\"\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/First\"\nXDG_DOCUMENTS_DIR=\"$HOME/Last\"", "Last"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", ""},
        {"XDG_DOCUMENTS_DIR=\"$HOMELESS/Docs\"\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=$HOME/Unquoted\n", "Documents"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/Unclosed\n", "Documents"},
    };
    for (const auto& [userDirs, documents] : rows) {
        write(".config/user-dirs.dirs", userDirs);
        const fs::path expected = (folder / documents).lexically_normal();
        EXPECT_EQ(shellFolders({{"HOME", root}}).documents, expected) << userDirs;
    }
}

TEST_F(Folders, FollowTheVariablesAndElseHome) {
    const ShellFolders plain = shellFolders({{"HOME", "/nowhere/eve"}});
    EXPECT_EQ(plain.documents, "/nowhere/eve/Documents");
    EXPECT_EQ(plain.applicationData, "/nowhere/eve/.local/share");
    EXPECT_EQ(plain.commonApplicationData, "/var/lib");
    EXPECT_EQ(plain.commonDocuments, "/srv");
    EXPECT_EQ(plain.temporary, "/tmp");
    write("user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/D\"\n");
    const ShellFolders set = shellFolders({{"HOME", "/nowhere/eve"},
                                           {"XDG_CONFIG_HOME", root},
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
