// Where the controls stand, at usual and at unusual sizes of the pane and of its text.
#include "app/pane_layout.h"

#include <array>
#include <gtest/gtest.h>

namespace quendra {
namespace {

TEST(PaneLayout, RoundsEveryThirdTowardsZero) {
    const PaneGeometry geometry = paneGeometry({626, 355}, 14);
    EXPECT_EQ(geometry.scriptList, QRect(10, 12, 378, 332));
    const std::array<int, 3> tops = {10, 124, 238};
    for (std::size_t i = 0; i < tops.size(); ++i) {
        EXPECT_EQ(geometry.palettes[i].label, QRect(398, tops[i], 217, 14));
        EXPECT_EQ(geometry.palettes[i].list, QRect(398, tops[i] + 16, 217, 90));
    }
}

TEST(PaneLayout, NoSizeIsNegativeInATinyPane) {
    const PaneGeometry geometry = paneGeometry({20, 10}, 14);
    EXPECT_EQ(geometry.scriptList.size(), QSize(0, 0));
    EXPECT_EQ(geometry.palettes[2].list.height(), 0);
}

TEST(PaneLayout, LargeTextHasWholeLabelsThatCoverNoList) {
    EXPECT_EQ(paneGeometry({600, 400}, 16).palettes[0].list, QRect(381, 26, 209, 105))
        << "the gap below the label is used up first";
    for (const int lineHeight : {16, 17, 40}) {
        const auto [label, list] = paneGeometry({600, 400}, lineHeight).palettes[2];
        EXPECT_EQ(label.height(), lineHeight);
        EXPECT_FALSE(label.intersects(list)) << "line height " << lineHeight;
        EXPECT_EQ(list.bottom(), 388);
    }
}

}  // namespace
}  // namespace quendra
