// Which file a registry value comes from, and which texts are one byte.
#include "platform/registry.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;
using enum RegistryRoot;

class RegistryTest : public testing::Test {
  protected:
    void write(const std::string& name, const std::string& text) const {
        const fs::path file = folder / name / "quendra/registry.ini";
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    const TemporaryFolder folder;
    const std::string root = folder.path();
};

TEST_F(RegistryTest, AByteIsExactlyOneByteInAnyOfItsForms) {
    const auto byteOf = [](const std::string& text, RegistryRoot where) {
        const Registry registry = {{}, {parseProfile("[a\\B]\nBase=" + text)}};
        return registryByte(registry, where, "A\\b", "base");
    };
    for (const char* text : {"255", "0XfF", "hex:ff", "255 "})
        EXPECT_EQ(byteOf(text, LocalMachine), 255) << text;
    for (const char* text : {"hex:", "hex:02,00", "256", "-1", "", "2x", "0x100", "dword:00000002"})
        EXPECT_FALSE(byteOf(text, LocalMachine)) << text;
    EXPECT_FALSE(byteOf("255", CurrentUser));
}

TEST_F(RegistryTest, EachValueComesFromTheMostImportantFileThatHasIt) {
    write("a", "[Key]\nOne=a\n");
    write("b", "[Key]\nOne=b\nTwo=b\n[Only B]\n");
    write("user", "[Key]\nOne=user\n");
    const Registry registry =
        readRegistry({{"XDG_CONFIG_DIRS", "rel::" + root + "/a:" + root + "/b"},
                      {"XDG_CONFIG_HOME", root + "/user"},
                      {"HOME", root + "/a"}});
    EXPECT_EQ(registryText(registry, LocalMachine, "Key", "One"), "a");
    EXPECT_EQ(registryText(registry, LocalMachine, "Key", "Two"), "b");
    EXPECT_EQ(registryText(registry, CurrentUser, "Key", "One"), "user");
    EXPECT_FALSE(registryText(registry, CurrentUser, "Key", "Two"));
    EXPECT_TRUE(registryHasKey(registry, LocalMachine, "only b"));
    EXPECT_FALSE(registryHasKey(registry, CurrentUser, "only b"));
}

TEST_F(RegistryTest, TheUsersLiesBelowHomeWithoutAConfigurationFolder) {
    write(".config", "[Identities]\nDefault User ID={1}\n");
    EXPECT_EQ(userIdentity(readRegistry({{"HOME", root}})), "{1}");
    EXPECT_EQ(userIdentity(readRegistry({{"HOME", root}, {"XDG_CONFIG_HOME", root + "/b"}})), "");
    EXPECT_EQ(userIdentity(readRegistry({})), "");
}

TEST_F(RegistryTest, TheUsersIsUsableUnlessItsFileCanBeNeitherReadNorMade) {
    std::ofstream(folder / "file") << "x";
    write("full", "");
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
