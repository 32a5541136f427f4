// What is remembered from run to run: whole, private, shared between windows, and never in the way.
#include "settings/user_state.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

constexpr StateKey shown = {"View", "Gutter"};
constexpr StateKey height = {"View", "Height"};
constexpr StateKey word = {"Search", "Word"};
constexpr StateKey recent = {"Files", "Recent"};

class UserStateTest : public testing::Test {
  protected:
    void write(const std::string& bytes) const {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << bytes;
    }
    [[nodiscard]] std::string bytes() const {
        std::ostringstream all;
        all << std::ifstream(file).rdbuf();
        return all.str();
    }

    TemporaryFolder folder;
    const fs::path file = userStateFile({{"XDG_STATE_HOME", folder.path()}}).value();
};

TEST_F(UserStateTest, KeepsEveryKindOfValueInAPrivateFile) {
    const std::vector<std::string> names = {" blanks ", "\"quoted\"", "a=b;c\n[d] 100%\t",
                                            "\xC3\xA4", ""};
    UserState first(file);
    first.setFlag(shown, false);
    first.setNumber(height, -120);
    first.setText(word, names[2]);
    first.setTexts(recent, {"1", "2", "3", "4", "5", "6"});
    first.setTexts(recent, names);
    for (const UserState& state : {first, UserState(file)}) {
        EXPECT_FALSE(state.flag(shown, true));
        EXPECT_EQ(state.number(height, -200, 200), -120);
        EXPECT_EQ(state.text(word), names[2]);
        EXPECT_EQ(state.texts(recent), names) << "and none of a longer list before";
    }
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::permissions(file, fs::perms::all);
    first.setFlag(shown, true);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
}

TEST_F(UserStateTest, TakesDamagedAndForeignValuesForNone) {
    for (const char* value :
         {"", "maybe", "1x", "99999999999", "201", "-", "%", "%4", "%zz", "%00"}) {
        write("\x01garbage\n[View]\nGutter=" + std::string(value) + "\nHeight=" + value +
              "\n[Search]\nWord=" + value);
        const UserState state(file);
        EXPECT_TRUE(state.flag(shown, true)) << value;
        EXPECT_EQ(state.number(height, 0, 200), std::nullopt) << value;
        EXPECT_EQ(state.text(word).has_value(), *value != '%') << value;
    }
}

TEST_F(UserStateTest, LeavesWhatAnotherWindowHasWrittenMeanwhile) {
    write("[Later]\nKey = \"of a later version\"\n");
    UserState here(file);
    UserState there(file);
    there.setNumber(height, 7);
    here.setFlag(shown, false);
    const UserState next(file);
    EXPECT_EQ(next.number(height, 0, 9), 7);
    EXPECT_FALSE(next.flag(shown, true));
    EXPECT_EQ(next.text({"later", "key"}), "of a later version");
    EXPECT_EQ(here.number(height, 0, 9), std::nullopt) << "read once";
    there.setTexts(recent, {"a", "b", "c"});
    here.setTexts(recent, {});
    EXPECT_EQ(UserState(file).texts(recent), std::vector<std::string>()) << "cleared for good";
}

TEST_F(UserStateTest, WritesNothingWhereNothingChangesOrNothingMayBeWritten) {
    UserState pictures(file, UserState::Access::ReadOnly);
    pictures.setFlag(shown, false);
    EXPECT_FALSE(pictures.flag(shown, true)) << "remembered for this run";
    EXPECT_FALSE(fs::exists(file));
    write("; by hand\n[View]\nGutter=no\n");
    UserState(file).setFlag(shown, false);
    EXPECT_TRUE(bytes().starts_with("; by hand"));
    fs::remove_all(file.parent_path());
    std::ofstream(file.parent_path()) << "a file in the folder's place";
    UserState state(file);
    state.setFlag(shown, false);
    EXPECT_FALSE(state.flag(shown, true));
    EXPECT_EQ(userStateFile({}), std::nullopt);
}

}  // namespace
}  // namespace quendra::test
