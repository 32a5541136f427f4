// Texts of translators are formats, and translators make mistakes.
#include "platform/format_text.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

TEST(FormatText, FillsThePlacesFromLeftToRightAndLeavesTheRestAsItStands) {
    EXPECT_EQ(formatText("%s %d of %u?", {"Delete", "3", "4"}), "Delete 3 of 4?");
    EXPECT_EQ(formatText("%s and %s", {"one"}), "one and %s");
    EXPECT_EQ(formatText("%n 5% %", {"one"}), "%n 5% %");
    EXPECT_EQ(formatText("", {"one"}), "");
    EXPECT_EQ(formatText("%%s is %s", {"x"}), "%s is x");
    EXPECT_EQ(formatText("%s, %s", {"50%s", "b"}), "50%s, b") << "an argument is no format";
}

}  // namespace
}  // namespace quendra
