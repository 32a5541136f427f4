// The way back from labels: bounded, and right after the script was edited.
#include "session/jump_history.h"

#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

Script commentsOf(std::initializer_list<const char*> texts) {
    Script script;
    for (const char* text : texts)
        script.entries.push_back(storeRecord(commentRecord(text)));
    return script;
}

TEST(JumpHistory, FindsAPlaceWhereItsRecordWent) {
    Script script = commentsOf({"same", "same", "b", "same"});
    JumpHistory history;
    history.leave(script, 1);
    history.leave(script, 3);
    history.leave(script, 2);
    removeEntries(script, std::vector<std::size_t>{0});
    EXPECT_EQ(history.goBack(script), 1U);
    script.entries.pop_back();
    EXPECT_EQ(history.goBack(script), 1U) << "gone, and so is its number";
    EXPECT_EQ(history.goBack(script), 0U) << "not another record that says the same";
    EXPECT_EQ(history.goBack(script), std::nullopt);
}

TEST(JumpHistory, KeepsTheLastPlacesAndNoneInAnEmptyScript) {
    Script script = commentsOf({"a", "b"});
    JumpHistory history;
    for (std::size_t i = 0; i <= JumpHistory::mostPlaces; ++i)
        history.leave(script, i == 0 ? 1 : 0);
    for (std::size_t i = 0; i < JumpHistory::mostPlaces; ++i)
        EXPECT_EQ(history.goBack(script), 0U);
    EXPECT_FALSE(history.canGoBack());
    history.leave(script, 0);
    EXPECT_EQ(history.goBack({}), std::nullopt);
}

}  // namespace
}  // namespace quendra::test
