#include "app/pane/pane_layout.h"

#include <algorithm>

namespace quendra {
namespace {

constexpr int usualLabelHeight = 14;
constexpr int labelGap = 2;

QRect rectOf(int x, int y, int width, int height) {
    return {x, y, std::max(width, 0), std::max(height, 0)};
}

}  // namespace

PaneGeometry paneGeometry(QSize pane, int lineHeight) {
    const int widthThird = pane.width() / 3;
    const int widthTwoThirds = 2 * pane.width() / 3;
    const int heightThird = pane.height() / 3;
    const int labelHeight = std::max(usualLabelHeight, lineHeight);
    // A label may use up the gap below it before its list has to give way.
    const int lowered = std::max(labelHeight - usualLabelHeight - labelGap, 0);
    const int x = widthTwoThirds - 19;
    const int width = widthThird + 9;

    PaneGeometry geometry;
    geometry.scriptList = rectOf(10, 12, widthTwoThirds - 39, 3 * heightThird - 22);
    const std::array<int, 3> tops = {10, heightThird + 6, 2 * heightThird + 2};
    for (std::size_t i = 0; i < tops.size(); ++i) {
        geometry.palettes[i].label = rectOf(x, tops[i], width, labelHeight);
        geometry.palettes[i].list =
            rectOf(x, tops[i] + 16 + lowered, width, heightThird - 28 - lowered);
    }
    return geometry;
}

}  // namespace quendra
