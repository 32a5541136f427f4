// Where the controls of the editor pane stand at every size.
#pragma once

#include <QRect>
#include <QSize>

#include <array>

namespace quendra {

struct PaletteGeometry {
    QRect label;
    QRect list;
};

struct PaneGeometry {
    QRect scriptList;
    /// From top to bottom.
    std::array<PaletteGeometry, 3> palettes;
};

/// The script list takes two thirds of the pane, the palettes share the rest in thirds. Labels are
/// 14 high, or as high as a line of text when that is more; the list below then starts lower and
/// keeps its bottom edge. No size is negative, however small the pane.
[[nodiscard]] PaneGeometry paneGeometry(QSize pane, int lineHeight);

}  // namespace quendra
