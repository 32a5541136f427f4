// Where folders, flags and help settings come from, each case in a home folder of its own.
#include "settings/startup.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <tuple>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* machineRegistry = "etc/quendra/registry.ini";
constexpr const char* userRegistry = "config/quendra/registry.ini";

// The product key with these values, and that of a program in a cache.
std::string key(const std::string& values) {
    return "[Software\\Quendra\\6.1]\n" + values + "\n";
}
std::string webKey(const std::string& values) {
    return "[Software\\Quendra Web\\6.1]\n" + values + "\n";
}

// A machine with one user, below a temporary folder. In texts, "@" stands for that folder.
class Machine {
  public:
    explicit Machine(const std::string& programFolder = "opt/bin") {
        fs::create_directories(at(programFolder));
        fs::create_directory(at("current"));
        inputs.programFile = at(programFolder + "/quendra-script-editor");
        inputs.currentDir = at("current");
        inputs.environment = {{"XDG_CONFIG_HOME", at("config")},
                              {"XDG_CONFIG_DIRS", at("etc")},
                              {"HOME", at("home")}};
        inputs.folders.documents = at("home/Documents");
        inputs.folders.applicationData = at("home/data");
        inputs.folders.commonApplicationData = at("lib");
        inputs.folders.commonDocuments = at("srv");
        inputs.folders.temporary = at("tmp");
    }

    [[nodiscard]] fs::path at(const std::string& name) const { return root_ / name; }
    // The path as the tables have it: below the machine's folder.
    [[nodiscard]] std::string shortened(const fs::path& path) const {
        return path.empty() ? "" : path.lexically_relative(root_.path()).string();
    }
    void write(const std::string& name, std::string text) const {
        for (std::size_t i = 0; (i = text.find('@', i)) != std::string::npos;)
            text.replace(i, 1, root_.path().native());
        fs::create_directories(at(name).parent_path());
        std::ofstream(at(name)) << text;
    }
    [[nodiscard]] StartupSettings start() const { return readStartupSettings(inputs); }

    StartupInputs inputs;

  private:
    const TemporaryFolder root_;
};

using File = std::pair<const char*, std::string>;

struct FolderRow {
    const char* name;
    std::string registry;
    const char* installDir;
    // With subfolders; empty where the installation directory is the working directory.
    std::string workingDir = {};
    const char* programFolder = "opt/bin";
    File file = {};
};

const std::string machineDir = key("Working Directory=@/w");
const std::string neither = webKey("Installation Directory=@/i\nWorking Directory=@/w");
const char* const cache = "tmp/Quendra/6.1";
const File versions = {"opt/bin/global.ini", "[Quendra]\nAppendVersionToWorkingDir=yes\n"};
const File desktop = {"tmp/q/default.ini", "[Quendra]\nDesktopMode=Desk.INI\n"};
const File noDesktop = {"tmp/q/default.ini", "[Quendra]\nDesktopMode=yes\n"};

File userKey(const std::string& base) {
    return {userRegistry, key("Working Directory=@/user\n" + base)};
}

const FolderRow folderRows[] = {
    {"NoSettings", "", "current"},
    {"InstallationDirectory", key("Installation Directory=@/inst"), "inst"},
    {"TooLong", key("Working Directory=/" + std::string(260, 'x')), "current"},
    {"Type1", key("WorkingDirType=hex:01"), "current", "home/Documents/Quendra"},
    {"Type2", key("WorkingDirType=0x02"), "current", "srv/Quendra"},
    {"Type3", key("WorkingDirType=3"), "current", "home/data/Quendra"},
    {"Type4", key("WorkingDirType=4"), "current", "lib/Quendra"},
    {"Type5IsNoKey", machineDir + "WorkingDirType=5\n", "current"},
    {"Type0HasNoVersion", machineDir, "current", "w", "opt/bin", versions},
    {"Type4Version", key("WorkingDirType=4"), "current", "lib/Quendra/6.1", "opt/bin", versions},
    {"UserKeyAloneIsNotRead", "", "current", "", "opt/bin", userKey("")},
    {"Base2OfUser", machineDir, "current", "user", "opt/bin", userKey("BaseRegistry=2")},
    {"Base2", machineDir + "BaseRegistry=2\n", "current", "user", "opt/bin", userKey("")},
    {"Base0", machineDir + "BaseRegistry=2\n", "current", "w", "opt/bin",
     userKey("BaseRegistry=0")},
    {"WebInTheTemporaryFolder", "", cache, "", "tmp/cache"},
    {"WebInTheUsersData", "", cache, "", "home/data/q"},
    {"WebInTheCommonData", "", cache, "", "lib/q/bin"},
    {"WebCacheMode1", webKey("CacheMode=1"), "home/data/Quendra/6.1", "", "tmp/q"},
    {"WebCacheMode2", webKey("CacheMode=hex:02"), "lib/Quendra/6.1", "", "tmp/q"},
    {"WebReadsNeitherDirectory", neither, cache, "", "tmp/q"},
    {"WebWithType1", webKey("WorkingDirType=1"), cache, "home/Documents/Quendra", "tmp/q"},
    {"DesktopModeIsNotWeb", "", "current", "", "tmp/q", desktop},
    {"OtherDesktopModeIsWeb", "", cache, "", "tmp/q", noDesktop},
    {"ALongerNameIsNotWeb", "", "current", "", "tmpfiles/q"},
    {"ProtectedBelowLow", "", "tmp/Low/Quendra/6.1", "", "home/data/Low/Quendra/bin"},
    {"ProtectedBelowLocalLow", "", "tmp/Low/Quendra/6.1", "", "home/data/LocalLow/Quendra"},
    {"OtherNamesAreNotProtected", "", cache, "", "home/data/VeryLow/Quendra"},
    {"NorIsAFolderFurtherDown", "", cache, "", "home/data/Low/b/Quendra"},
};

std::ptrdiff_t filesIn(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

TEST(Startup, FoldersAreFoundAndMade) {
    for (const FolderRow& row : folderRows) {
        SCOPED_TRACE(row.name);
        const Machine machine(row.programFolder);
        machine.write(machineRegistry, row.registry);
        if (row.file.first) machine.write(row.file.first, row.file.second);
        const StartupSettings settings = machine.start();
        EXPECT_EQ(machine.shortened(settings.installDir), row.installDir);
        const bool sub = !row.workingDir.empty();
        EXPECT_EQ(machine.shortened(settings.workingDir), sub ? row.workingDir : row.installDir);
        EXPECT_EQ(settings.withSubfolders, sub);
        const auto expectFolder = [&](const fs::path& folder, const char* name) {
            EXPECT_EQ(folder, sub ? settings.workingDir / name : settings.workingDir);
            EXPECT_TRUE(fs::is_directory(folder)) << folder;
        };
        expectFolder(settings.scriptsDir, "Scripts");
        expectFolder(settings.transferDir, "Transfer");
        expectFolder(settings.configDir, "Config");
    }
}

TEST(Startup, FoldersThatAreNotFoundLeaveTheInstallationDirectory) {
    Machine machine;
    machine.inputs.folders.documents.reset();
    machine.write(machineRegistry, key("WorkingDirType=1\nInstallation Directory=@/inst"));
    EXPECT_EQ(machine.start().workingDir, machine.at("inst"));
    EXPECT_FALSE(machine.start().withSubfolders);
}

TEST(Startup, FindsAProgramThatLiesInACacheByAnotherName) {
    const Machine machine("disk/cache");
    fs::create_directory_symlink(machine.at("disk"), machine.at("tmp"));
    const StartupSettings settings = machine.start();
    EXPECT_EQ(settings.productKeyPath, "Software\\Quendra Web\\6.1");
    EXPECT_EQ(settings.installDir, machine.at("disk/Quendra/6.1")) << "in long form";
}

TEST(Startup, TheProgramsFlagsAreReadBesideItBeforeAnythingIsMade) {
    for (const bool interop : {true, false}) {
        const Machine machine;
        machine.write(machineRegistry, machineDir);
        machine.write(interop ? "current/global.ini" : "opt/bin/global.ini",
                      "[quendra]\nallowcrossversioninterop=no, never\n");
        const StartupSettings settings = readProgramSettings(machine.inputs);
        EXPECT_EQ(settings.windowClassName,
                  interop ? "Quendra Script Editor" : "Quendra Script Editor 6.1");
        EXPECT_FALSE(fs::exists(machine.at("w")));
    }
}

TEST(BackupDirectory, IsMadeAndTakesThePlaceOfAWorkingDirectoryThatRefusesWrites) {
    const std::string rest = "b/" + std::string(200, 'x') + "/";
    const std::string cut = rest + std::string(260 - 7 - rest.size(), 'y');
    using Row = std::tuple<std::string, std::string, std::string, bool, const char*, bool>;
    const Row rows[] = {
        {"%SHARE%/deep/backup", machineDir, "share/deep/backup", false, "w", true},
        {"%SHARE%" + rest + std::string(100, 'y'), machineDir, "share" + cut, false, "w", true},
        {"@/%NO SUCH%/b", machineDir, "%NO SUCH%/b", false, "w", true},
        // One that cannot be made, and one that is there and takes no files, not even from root.
        {"<SHARE>/b", key("Working Directory=@/file/w"), "share/b", true, "share/b", true},
        {"<SHARE>/b", key("Working Directory=/proc/self"), "share/b", true, "share/b", true},
        {"", key("Working Directory=@/file/w"), "", false, "file/w", true},
        {"@/b", "", "b", false, "current", false},
    };
    for (const auto& [configured, registry, backupDir, used, workingDir, withSubfolders] : rows) {
        SCOPED_TRACE(configured);
        Machine machine;
        machine.inputs.environment["SHARE"] = machine.at("share");
        machine.write("file", "");
        machine.write(machineRegistry, registry);
        machine.write("current/global.ini", "[Quendra]\nBackupWorkingDir=" + configured);
        const StartupSettings settings = machine.start();
        EXPECT_EQ(machine.shortened(settings.backupDir), backupDir);
        EXPECT_EQ(settings.usingBackupDir, used);
        EXPECT_EQ(machine.shortened(settings.workingDir), workingDir);
        EXPECT_EQ(settings.withSubfolders, withSubfolders);
        if (backupDir.empty()) continue;
        EXPECT_EQ(filesIn(settings.workingDir), withSubfolders ? 3 : 1) << "no test file";
        EXPECT_EQ(filesIn(settings.backupDir), withSubfolders ? 3 : 0);
    }
}

TEST(HelpSettings, ComeFromTheInstallationDirectoryElseTheWorkingDirectory) {
    const std::string longAddress = "WebHelpUrl=" + std::string(261, 'x');
    constexpr const char* none = nullptr;
    const std::tuple<const char*, const char*, const char*, bool, std::string> rows[] = {
        {"opt/bin", none, none, false, builtInWebHelpBase},
        {"tmp/q", none, none, true, builtInWebHelpBase},
        {"tmp/q", none, "UseWebHelp=N", true, ""},
        {"opt/bin", "UseWebHelp=y\nWebHelpUrl=https://h", none, true, "https://h"},
        {"opt/bin", "UseWebHelp=\"yonder\"", none, true, ""},
        {"opt/bin", "UseWebHelp=N\nWebHelpUrl=x", none, false, "x"},
        {"opt/bin", none, "UseWebHelp=Y\nWebHelpUrl=w", true, "w"},
        {"opt/bin", "WebHelpUrl=i", "UseWebHelp=Y\nWebHelpUrl=w", false, "i"},
        {"opt/bin", "", "UseWebHelp=Y\nWebHelpUrl=w", false, ""},
        {"opt/bin", none, longAddress.c_str(), false, std::string(260, 'x')},
    };
    for (const auto& [program, installed, working, useWebHelp, base] : rows) {
        SCOPED_TRACE(testing::PrintToString(std::pair(installed, working)));
        const Machine machine(program);
        const std::string values = "Installation Directory=@/inst\nWorkingDirType=1";
        machine.write(machineRegistry, key(values) + webKey(values));
        const std::string section = "[Help]\n";
        if (installed) machine.write("inst/global.ini", section + installed);
        if (working) machine.write("home/Documents/Quendra/global.ini", section + working);
        const StartupSettings settings = machine.start();
        EXPECT_EQ(settings.useWebHelp, useWebHelp);
        EXPECT_EQ(settings.webHelpBase, base);
        EXPECT_EQ(settings.helpFilePath, settings.installDir / "quendra.chm");
    }
}

}  // namespace
}  // namespace quendra::test
