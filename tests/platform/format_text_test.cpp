// Texts of translators are formats, and translators make mistakes.
#include "platform/format_text.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

TEST(FormatText, FillsThePlacesFromLeftToRight) {
    EXPECT_EQ(formatText("%s %s?", {"Delete", "3 entries"}), "Delete 3 entries?");
    EXPECT_EQ(formatText("%d entries", {"17"}), "17 entries");
    EXPECT_EQ(formatText("%u of %u", {"1", "2"}), "1 of 2");
}

TEST(FormatText, LeavesWhatItCannotFillAsItStands) {
    EXPECT_EQ(formatText("%s and %s", {"one"}), "one and %s");
    EXPECT_EQ(formatText("%n 5% %", {"one"}), "%n 5% %");
    EXPECT_EQ(formatText("", {"one"}), "");
    EXPECT_EQ(formatText("plain", {"one"}), "plain");
}

TEST(FormatText, TreatsADoublePercentAsOneAndNotAsAPlace) {
    EXPECT_EQ(formatText("%%s is %s", {"x"}), "%s is x");
    EXPECT_EQ(formatText("100%%", {}), "100%");
}

TEST(FormatText, DoesNotExpandPlacesWithinArguments) {
    EXPECT_EQ(formatText("%s, %s", {"50%s", "b"}), "50%s, b");
}

}  // namespace
}  // namespace quendra
