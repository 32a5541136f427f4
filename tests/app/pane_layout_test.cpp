// Where the controls stand, at usual and at unusual sizes of the pane and of its text.
#include "app/pane_layout.h"

#include <array>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace quendra {
namespace {

struct LayoutCase {
    std::string name;
    QSize pane;
    QRect script;
    std::array<QRect, 3> labels;
    std::array<QRect, 3> lists;
};

std::ostream& operator<<(std::ostream& out, const LayoutCase& row) {
    return out << row.name;
}

class PaneLayoutTest : public testing::TestWithParam<LayoutCase> {};

TEST_P(PaneLayoutTest, RoundsEveryThirdTowardsZero) {
    const LayoutCase& row = GetParam();
    const PaneGeometry geometry = paneGeometry(row.pane, 14);
    EXPECT_EQ(geometry.scriptList, row.script);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(geometry.palettes[i].label, row.labels[i]) << "label " << i;
        EXPECT_EQ(geometry.palettes[i].list, row.lists[i]) << "list " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, PaneLayoutTest,
    testing::Values(LayoutCase{"Usual",
                               {600, 400},
                               {10, 12, 361, 377},
                               {{{381, 10, 209, 14}, {381, 139, 209, 14}, {381, 268, 209, 14}}},
                               {{{381, 26, 209, 105}, {381, 155, 209, 105}, {381, 284, 209, 105}}}},
                    LayoutCase{"NothingDividesByThree",
                               {626, 355},
                               {10, 12, 378, 332},
                               {{{398, 10, 217, 14}, {398, 124, 217, 14}, {398, 238, 217, 14}}},
                               {{{398, 26, 217, 90}, {398, 140, 217, 90}, {398, 254, 217, 90}}}}),
    [](const auto& tested) { return tested.param.name; });

TEST(PaneLayout, NoSizeIsNegativeInATinyPane) {
    const PaneGeometry geometry = paneGeometry({20, 10}, 14);
    EXPECT_EQ(geometry.scriptList.size(), QSize(0, 0));
    EXPECT_EQ(geometry.palettes[2].list.height(), 0);
}

TEST(PaneLayout, LargeTextHasWholeLabelsThatCoverNoList) {
    for (const int lineHeight : {15, 16, 17, 24, 40}) {
        const PaneGeometry geometry = paneGeometry({600, 400}, lineHeight);
        for (std::size_t i = 0; i < 3; ++i) {
            const auto& [label, list] = geometry.palettes[i];
            EXPECT_EQ(label.height(), lineHeight);
            EXPECT_FALSE(label.intersects(list)) << "line height " << lineHeight;
            EXPECT_EQ(list.bottom(), paneGeometry({600, 400}, 14).palettes[i].list.bottom());
        }
    }
    EXPECT_EQ(paneGeometry({600, 400}, 16).palettes[0].list, QRect(381, 26, 209, 105))
        << "the gap below the label is used up first";
}

}  // namespace
}  // namespace quendra
