// Where folders, flags and help settings come from, each case in a home folder of its own.
#include "app/startup.h"

#include "platform/directories.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <vector>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* productSection = "[Software\\Quendra\\6.1]\n";
constexpr const char* webSection = "[Software\\Quendra Web\\6.1]\n";

// A machine with one user, below a temporary folder. In texts, "@" stands for that folder.
class Machine {
  public:
    Machine() {
        inputs.programFile = at("opt/bin/quendra-script-editor");
        inputs.currentDir = at("current");
        inputs.environment = {{"XDG_CONFIG_HOME", at("config")},
                              {"XDG_CONFIG_DIRS", at("etc")},
                              {"HOME", at("home")}};
        inputs.folders.documents = at("home/Documents");
        inputs.folders.applicationData = at("home/data");
        inputs.folders.commonApplicationData = at("lib");
        inputs.folders.commonDocuments = at("srv");
        inputs.folders.temporary = at("tmp");
        fs::create_directory(at("current"));
    }

    [[nodiscard]] fs::path at(const std::string& name) const { return root_ / name; }

    [[nodiscard]] std::string expanded(std::string text) const {
        for (std::size_t i = 0; (i = text.find('@', i)) != std::string::npos;) {
            text.replace(i, 1, root_.path().native());
        }
        return text;
    }

    // The path as the tables have it: below "@".
    [[nodiscard]] std::string shortened(const fs::path& path) const {
        const std::string& root = root_.path().native();
        const std::string& text = path.native();
        return text.starts_with(root) ? "@" + text.substr(root.size()) : text;
    }

    void write(const std::string& name, const std::string& text) const {
        fs::create_directories(at(name).parent_path());
        std::ofstream(at(name)) << expanded(text);
    }

    // The program is in `folder` instead.
    void moveProgram(const std::string& folder) {
        fs::create_directories(at(folder));
        inputs.programFile = at(folder) / "quendra-script-editor";
    }

    [[nodiscard]] StartupSettings start() const { return readStartupSettings(inputs); }

    StartupInputs inputs;

  private:
    const TemporaryFolder root_;
};

struct Row {
    const char* name;
    // Files by name, with their text.
    std::map<std::string, std::string> files;
    const char* installDir;
    const char* workingDir;
    bool withSubfolders;
    const char* programFolder = "opt/bin";
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.name;
}

std::string machineKey(const std::string& values) {
    return productSection + values;
}

const std::map<std::string, std::string> appendVersion = {
    {"opt/bin/global.ini", "[Quendra]\nAppendVersionToWorkingDir=yes\n"}};

std::map<std::string, std::string> typeFiles(const std::string& type, bool withVersion = false) {
    std::map<std::string, std::string> files;
    if (withVersion) files = appendVersion;
    files["etc/quendra/registry.ini"] =
        machineKey("WorkingDirType=" + type + "\nWorking Directory=@/work-dir\n");
    return files;
}

std::map<std::string, std::string> machineFile(const std::string& text) {
    return {{"etc/quendra/registry.ini", text}};
}

// clang-format off
const std::vector<Row> folderRows = {
    {"NoSettings", {}, "@/current", "@/current", false},
    {"KeyWithoutValues", machineFile(machineKey("")), "@/current", "@/current", false},
    {"InstallationDirectory", machineFile(machineKey("Installation Directory=@/inst\n")),
     "@/inst", "@/inst", false},
    {"WorkingDirectory", machineFile(machineKey("Working Directory=@/w\n")), "@/current", "@/w", true},
    {"TooLongTextIsNoText", machineFile(machineKey("Working Directory=/" + std::string(260, 'x'))),
     "@/current", "@/current", false},
    {"Type0", typeFiles("0"), "@/current", "@/work-dir", true},
    {"Type1", typeFiles("hex:01"), "@/current", "@/home/Documents/Quendra", true},
    {"Type2", typeFiles("0x02"), "@/current", "@/srv/Quendra", true},
    {"Type3", typeFiles("3"), "@/current", "@/home/data/Quendra", true},
    {"Type4", typeFiles("4"), "@/current", "@/lib/Quendra", true},
    {"Type0HasNoVersion", typeFiles("0", true), "@/current", "@/work-dir", true},
    {"Type1WithVersion", typeFiles("1", true), "@/current", "@/home/Documents/Quendra/6.1", true},
    {"Type4WithVersion", typeFiles("4", true), "@/current", "@/lib/Quendra/6.1", true},
    {"Type5IsNoKey", typeFiles("5"), "@/current", "@/current", false},
    {"Type255IsNoKey", typeFiles("255"), "@/current", "@/current", false},
    {"MalformedTypeIs0", typeFiles("hex:01,00"), "@/current", "@/work-dir", true},
    {"UserKeyAloneIsNotRead",
     {{"config/quendra/registry.ini", machineKey("Working Directory=@/user\n")}},
     "@/current", "@/current", false},
    {"BaseRegistry2OfTheUser",
     {{"config/quendra/registry.ini", machineKey("BaseRegistry=2\nWorking Directory=@/user\n")},
      {"etc/quendra/registry.ini", machineKey("Working Directory=@/machine\n")}},
     "@/current", "@/user", true},
    {"BaseRegistry2OfTheMachine",
     {{"config/quendra/registry.ini", machineKey("Working Directory=@/user\n")},
      {"etc/quendra/registry.ini", machineKey("BaseRegistry=2\nWorking Directory=@/machine\n")}},
     "@/current", "@/user", true},
    {"BaseRegistryOfTheUserGoesFirst",
     {{"config/quendra/registry.ini", machineKey("BaseRegistry=0\nWorking Directory=@/user\n")},
      {"etc/quendra/registry.ini", machineKey("BaseRegistry=2\nWorking Directory=@/machine\n")}},
     "@/current", "@/machine", true},
    {"BaseRegistry1IsTheMachine",
     {{"config/quendra/registry.ini", machineKey("BaseRegistry=1\nWorking Directory=@/user\n")},
      {"etc/quendra/registry.ini", machineKey("Working Directory=@/machine\n")}},
     "@/current", "@/machine", true},
    {"WebInTheTemporaryFolder", {}, "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "tmp/cache"},
    {"WebInTheUsersData", {}, "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "home/data/q"},
    {"WebInTheCommonData", {}, "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "lib/q/bin"},
    {"WebCacheMode1", machineFile(webSection + std::string("CacheMode=1\n")),
     "@/home/data/Quendra/6.1", "@/home/data/Quendra/6.1", false, "tmp/cache"},
    {"WebCacheMode2", machineFile(webSection + std::string("CacheMode=hex:02\n")),
     "@/lib/Quendra/6.1", "@/lib/Quendra/6.1", false, "tmp/cache"},
    {"WebCacheMode3", machineFile(webSection + std::string("CacheMode=3\n")),
     "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "tmp/cache"},
    {"WebReadsNeitherDirectory",
     machineFile(webSection + std::string("Installation Directory=@/i\nWorking Directory=@/w\n")),
     "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "tmp/cache"},
    {"WebWithType1", machineFile(webSection + std::string("WorkingDirType=1\n")),
     "@/tmp/Quendra/6.1", "@/home/Documents/Quendra", true, "tmp/cache"},
    {"WebHasItsOwnKey", machineFile(machineKey("WorkingDirType=1\n")),
     "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "tmp/cache"},
    {"DesktopModeIsNotWeb", {{"tmp/cache/default.ini", "[Quendra]\nDesktopMode=Desk.INI\n"}},
     "@/current", "@/current", false, "tmp/cache"},
    {"OtherDesktopModeIsWeb", {{"tmp/cache/default.ini", "[Quendra]\nDesktopMode=yes\n"}},
     "@/tmp/Quendra/6.1", "@/tmp/Quendra/6.1", false, "tmp/cache"},
    {"AFolderOfSuchANameIsNotWeb", {}, "@/current", "@/current", false, "opt/tmp/q"},
    {"ALongerNameIsNotWeb", {}, "@/current", "@/current", false, "tmpfiles/q"},
    {"ProtectedBelowLow", {}, "@/tmp/Low/Quendra/6.1", "@/tmp/Low/Quendra/6.1", false,
     "home/data/Low/Quendra/bin"},
    {"ProtectedOutsideOfCaches", {}, "@/current", "@/current", false, "opt/LocalLow/Quendra/bin"},
};
// clang-format on

class StartupFolders : public testing::TestWithParam<Row> {};

TEST_P(StartupFolders, AreFoundAndMade) {
    Machine machine;
    machine.moveProgram(GetParam().programFolder);
    for (const auto& [name, text] : GetParam().files)
        machine.write(name, text);
    const StartupSettings settings = machine.start();
    EXPECT_EQ(machine.shortened(settings.installDir), GetParam().installDir);
    EXPECT_EQ(machine.shortened(settings.workingDir), GetParam().workingDir);
    EXPECT_EQ(settings.withSubfolders, GetParam().withSubfolders);
    const bool sub = settings.withSubfolders;
    const fs::path& working = settings.workingDir;
    EXPECT_EQ(settings.scriptsDir, sub ? working / "Scripts" : working);
    EXPECT_EQ(settings.transferDir, sub ? working / "Transfer" : working);
    EXPECT_EQ(settings.configDir, sub ? working / "Config" : working);
    for (const auto& folder : {settings.scriptsDir, settings.transferDir, settings.configDir}) {
        EXPECT_TRUE(fs::is_directory(folder)) << folder;
    }
    EXPECT_EQ(settings.backupDir, "");
    EXPECT_FALSE(settings.usingBackupDir);
}

INSTANTIATE_TEST_SUITE_P(Settings, StartupFolders, testing::ValuesIn(folderRows),
                         [](const auto& row) { return row.param.name; });

TEST(Startup, FoldersThatAreNotFoundLeaveTheInstallationDirectory) {
    Machine machine;
    machine.inputs.folders.documents.reset();
    machine.write("etc/quendra/registry.ini",
                  machineKey("WorkingDirType=1\nInstallation Directory=@/inst"));
    const StartupSettings settings = machine.start();
    EXPECT_EQ(settings.workingDir, machine.at("inst"));
    EXPECT_FALSE(settings.withSubfolders);
    EXPECT_EQ(settings.workingDirType, 1);
}

TEST(Startup, FindsAProgramThatLiesInACacheByAnotherName) {
    Machine machine;
    machine.moveProgram("disk/cache");
    fs::create_directory_symlink(machine.at("disk"), machine.at("tmp"));
    const StartupSettings settings = machine.start();
    EXPECT_TRUE(settings.webDeployed);
    EXPECT_EQ(settings.productKeyPath, "Software\\Quendra Web\\6.1");
    EXPECT_EQ(settings.installDir, machine.at("disk/Quendra/6.1")) << "in long form";
}

TEST(Startup, TellsProtectedFoldersByTheirNames) {
    const std::pair<const char*, bool> rows[] = {
        {"a/Low/Quendra/bin", true}, {"a/LocalLow/Quendra", true},   {"a/Low/Quendra2", false},
        {"a/low/quendra", false},    {"a/Low/other/Quendra", false}, {"a/VeryLow/Quendra/b", false},
    };
    for (const auto& [folder, isProtected] : rows) {
        Machine machine;
        machine.moveProgram(folder);
        EXPECT_EQ(machine.start().protectedMode, isProtected) << folder;
    }
}

TEST(Startup, FlagsTestTheFirstCharacterOnly) {
    const struct {
        const char* value;
        bool appendVersion;
        bool crossVersionInterop;
    } rows[] = {{"Y", true, true},   {"y", true, true},     {"Yes, please", true, true},
                {"N", false, false}, {"no", false, false},  {"1", false, true},
                {"", false, true},   {"\"Y\"", true, true}, {"on", false, true}};
    for (const auto& row : rows) {
        Machine machine;
        const std::string value = row.value;
        machine.write("opt/bin/global.ini", "[quendra]\nappendversiontoworkingdir=" + value +
                                                "\nAllowCrossVersionInterop=" + value + "\n");
        const StartupSettings settings = readProgramSettings(machine.inputs);
        EXPECT_EQ(settings.appendVersion, row.appendVersion) << value;
        EXPECT_EQ(settings.crossVersionInterop, row.crossVersionInterop) << value;
        EXPECT_EQ(settings.windowClassName,
                  row.crossVersionInterop ? "Quendra Script Editor" : "Quendra Script Editor 6.1");
        EXPECT_EQ(machine.start().windowClassName, settings.windowClassName);
    }
}

TEST(Startup, TheProgramsFlagsAreNotThoseOfTheInstallationDirectory) {
    Machine machine;
    machine.write("current/global.ini", "[Quendra]\nAllowCrossVersionInterop=N\n");
    EXPECT_TRUE(machine.start().crossVersionInterop);
}

TEST(Startup, LookingForAnotherWindowComesBeforeAnythingIsMade) {
    Machine machine;
    machine.write("etc/quendra/registry.ini", machineKey("Working Directory=@/w\n"));
    static_cast<void>(readProgramSettings(machine.inputs));
    EXPECT_FALSE(fs::exists(machine.at("w")));
}

// With the working directory "@/w" by the registry, and what "global.ini" of "@/current" says.
StartupSettings startWithBackup(Machine& machine, const std::string& backup,
                                const std::string& workingDir = "@/w") {
    machine.write("etc/quendra/registry.ini", machineKey("Working Directory=" + workingDir));
    machine.write("current/global.ini", "[Quendra]\nBackupWorkingDir=" + backup + "\n");
    machine.inputs.environment["SHARE"] = machine.at("share");
    return machine.start();
}

TEST(BackupDirectory, IsMadeWithItsSubfoldersAndLeftAlone) {
    Machine machine;
    const StartupSettings settings = startWithBackup(machine, "%SHARE%/deep/backup");
    EXPECT_EQ(settings.backupDir, machine.at("share/deep/backup"));
    EXPECT_FALSE(settings.usingBackupDir);
    EXPECT_EQ(settings.workingDir, machine.at("w"));
    EXPECT_TRUE(fs::is_empty(settings.scriptsDir));
    for (const char* name : {"Config", "Transfer", "Scripts"}) {
        EXPECT_TRUE(fs::is_directory(settings.backupDir / name)) << name;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(settings.workingDir), fs::directory_iterator()),
              3)
        << "the file of the test is gone again";
}

TEST(BackupDirectory, TakesThePlaceOfAWorkingDirectoryThatRefusesWrites) {
    // One that cannot be made, and one that is there and takes no files, not even from root.
    for (const char* workingDir : {"@/file/w", "/proc/self"}) {
        Machine machine;
        machine.write("file", "");
        const StartupSettings settings = startWithBackup(machine, "<SHARE>/b", workingDir);
        EXPECT_TRUE(settings.usingBackupDir) << workingDir;
        EXPECT_EQ(settings.workingDir, machine.at("share/b"));
        EXPECT_EQ(settings.scriptsDir, machine.at("share/b/Scripts"));
        EXPECT_EQ(settings.configDir, machine.at("share/b/Config"));
        EXPECT_TRUE(settings.withSubfolders);
    }
}

TEST(BackupDirectory, HasNoSubfoldersWhereTheWorkingDirectoryHasNone) {
    Machine machine;
    machine.write("current/global.ini", "[Quendra]\nBackupWorkingDir=@/b\n");
    const StartupSettings settings = machine.start();
    EXPECT_EQ(settings.backupDir, machine.at("b"));
    EXPECT_TRUE(fs::is_empty(settings.backupDir));
    EXPECT_EQ(settings.workingDir, machine.at("current"));
}

TEST(BackupDirectory, OfAnUnknownVariableIsUsedAsItStands) {
    Machine machine;
    const StartupSettings settings = startWithBackup(machine, "@/%NO SUCH%/b");
    EXPECT_EQ(settings.backupDir, machine.at("%NO SUCH%/b"));
    EXPECT_TRUE(fs::is_directory(machine.at("%NO SUCH%/b/Scripts")));
}

TEST(BackupDirectory, ThatIsNotConfiguredLeavesABrokenWorkingDirectory) {
    Machine machine;
    machine.write("file", "");
    const StartupSettings settings = startWithBackup(machine, "", "@/file/w");
    EXPECT_EQ(settings.workingDir, machine.at("file/w"));
    EXPECT_FALSE(settings.usingBackupDir);
    EXPECT_EQ(settings.backupDir, "");
}

TEST(BackupDirectory, IsCutAtItsLimit) {
    Machine machine;
    machine.inputs.environment["B"] = machine.at("b");
    const StartupSettings settings =
        startWithBackup(machine, "%B%/" + std::string(200, 'x') + "/" + std::string(100, 'y'));
    EXPECT_EQ(settings.backupDir,
              machine.at("b") / std::string(200, 'x') / std::string(260 - 4 - 201, 'y'));
}

TEST(HelpSettings, ComeFromTheInstallationDirectoryElseTheWorkingDirectory) {
    const std::string server = "https://www.quendra.example/help/v61";
    const struct {
        const char* name;
        const char* installed;
        const char* working;
        const char* program;
        bool useWebHelp;
        std::string base;
    } rows[] = {
        {"none", nullptr, nullptr, "opt/bin", false, server},
        {"on", "UseWebHelp=y\nWebHelpUrl=https://h\n", nullptr, "opt/bin", true, "https://h"},
        {"no address", "UseWebHelp=Yes\n", nullptr, "opt/bin", true, ""},
        {"off", "UseWebHelp=N\nWebHelpUrl=x\n", nullptr, "opt/bin", false, "x"},
        {"working", nullptr, "UseWebHelp=Y\nWebHelpUrl=w\n", "opt/bin", true, "w"},
        {"both", "WebHelpUrl=i\n", "UseWebHelp=Y\nWebHelpUrl=w\n", "opt/bin", false, "i"},
        {"web", nullptr, nullptr, "tmp/q", true, server},
        {"web off", nullptr, "UseWebHelp=N\n", "tmp/q", true, ""},
    };
    for (const auto& row : rows) {
        Machine machine;
        machine.moveProgram(row.program);
        const std::string values = "Installation Directory=@/inst\nWorkingDirType=1\n";
        machine.write("etc/quendra/registry.ini", productSection + values + webSection + values);
        const auto writeGlobal = [&](const std::string& folder, const char* text) {
            if (text) machine.write(folder + "/global.ini", "[Help]\n" + std::string(text));
        };
        writeGlobal("inst", row.installed);
        writeGlobal("home/Documents/Quendra", row.working);
        const StartupSettings settings = machine.start();
        EXPECT_EQ(settings.useWebHelp, row.useWebHelp) << row.name;
        EXPECT_EQ(settings.webHelpBase, row.base) << row.name;
        EXPECT_EQ(settings.helpFilePath, settings.installDir / "quendra.chm") << row.name;
    }
}

TEST(MakeDirectoryPath, SucceedsWhenTheDirectoryIsThereAfterwards) {
    const TemporaryFolder folder;
    std::ofstream(folder / "file") << "x";
    EXPECT_TRUE(makeDirectoryPath(folder / "a/b/c"));
    EXPECT_TRUE(makeDirectoryPath(folder / "a/b/c")) << "again";
    EXPECT_TRUE(makeDirectoryPath(folder / "d/e/")) << "with a separator at its end";
    EXPECT_FALSE(makeDirectoryPath(folder / "file"));
    EXPECT_FALSE(makeDirectoryPath(folder / "file/below"));
    EXPECT_FALSE(makeDirectoryPath(""));
    EXPECT_FALSE(makeDirectory(folder / "x/y")) << "no parent";
}

TEST(ProcessStartupInputs, AreThoseOfThisProcess) {
    const StartupInputs inputs = processStartupInputs();
    EXPECT_EQ(inputs.programFile.filename(), "startup_tests");
    EXPECT_TRUE(inputs.programFile.is_absolute());
    EXPECT_EQ(inputs.currentDir, fs::current_path());
    EXPECT_FALSE(inputs.folders.temporary.empty());
    EXPECT_TRUE(inputs.environment.contains("PATH"));
}

}  // namespace
}  // namespace quendra::test
