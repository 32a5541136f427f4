// Which file a registry value comes from, and which texts are one byte.
#include "platform/registry.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

TEST(RegistryByte, IsExactlyOneByteInAnyOfItsForms) {
    constexpr const char* key = "Software\\Quendra\\6.1";
    const struct {
        const char* text;
        std::optional<std::uint8_t> byte;
    } rows[] = {
        {"255", 255}, {"0", 0},          {"0x02", 2}, {"0XfF", 255},          {"hex:02", 2},
        {"hex:", {}}, {"hex:02,00", {}}, {"256", {}}, {"0x100", {}},          {"-1", {}},
        {"2 ", 2},    {"", {}},          {"2x", {}},  {"dword:00000002", {}},
    };
    for (const auto& row : rows) {
        const Registry registry = {
            {}, {parseProfile("[software\\QUENDRA\\6.1]\nBaseRegistry=" + std::string(row.text))}};
        EXPECT_EQ(registryByte(registry, RegistryRoot::LocalMachine, key, "BaseRegistry"), row.byte)
            << row.text;
        EXPECT_FALSE(registryByte(registry, RegistryRoot::CurrentUser, key, "BaseRegistry"));
    }
}

TEST(ReadRegistry, TakesEachValueFromTheMostImportantFileThatHasIt) {
    const TemporaryFolder folder;
    write(folder / "a/quendra/registry.ini", "[Key]\nOne=a\n");
    write(folder / "b/quendra/registry.ini", "[Key]\nOne=b\nTwo=b\n[Only B]\n");
    write(folder / "user/quendra/registry.ini", "[Key]\nOne=user\n");
    const std::string root = folder.path();
    const Registry registry =
        readRegistry({{"XDG_CONFIG_DIRS", "relative::" + root + "/a:" + root + "/b"},
                      {"XDG_CONFIG_HOME", root + "/user"},
                      {"HOME", root + "/a"}});
    EXPECT_EQ(registryText(registry, RegistryRoot::LocalMachine, "Key", "One"), "a");
    EXPECT_EQ(registryText(registry, RegistryRoot::LocalMachine, "Key", "Two"), "b");
    EXPECT_EQ(registryText(registry, RegistryRoot::CurrentUser, "Key", "One"), "user");
    EXPECT_FALSE(registryText(registry, RegistryRoot::CurrentUser, "Key", "Two"));
    EXPECT_TRUE(registryHasKey(registry, RegistryRoot::LocalMachine, "only b"));
    EXPECT_FALSE(registryHasKey(registry, RegistryRoot::CurrentUser, "only b"));
}

TEST(ReadRegistry, LooksBelowHomeWithoutAConfigurationFolder) {
    const TemporaryFolder folder;
    write(folder / ".config/quendra/registry.ini", "[Identities]\nDefault User ID={1}\n");
    EXPECT_EQ(userIdentity(readRegistry({{"HOME", folder.path()}})), "{1}");
    EXPECT_EQ(userIdentity(readRegistry(
                  {{"HOME", folder.path()}, {"XDG_CONFIG_HOME", folder / "elsewhere"}})),
              "");
    EXPECT_EQ(userIdentity(readRegistry({})), "");
}

TEST(UserRegistryUsable, UnlessItsFileCanBeNeitherReadNorMade) {
    const TemporaryFolder folder;
    write(folder / "file", "");
    write(folder / "full/quendra/registry.ini", "");
    fs::create_directories(folder / "blocked/quendra/registry.ini");
    const auto usable = [&](const char* name) {
        return userRegistryUsable({{"XDG_CONFIG_HOME", folder / name}});
    };
    EXPECT_TRUE(usable("full"));
    EXPECT_TRUE(usable("not/yet/there"));
    EXPECT_FALSE(usable("blocked")) << "a folder stands where the file belongs";
    EXPECT_FALSE(usable("file/config")) << "a file stands where a folder belongs";
    EXPECT_FALSE(userRegistryUsable({})) << "no home";
    EXPECT_FALSE(fs::exists(folder / "not")) << "asking must not make anything";
}

}  // namespace
}  // namespace quendra::test
