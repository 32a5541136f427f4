// The icons' drawings, as the build compiles them from SVG files: shapes that are ready to be
// painted, so that no start reads markup.
#pragma once

#include <QColor>
#include <QPainterPath>

#include <cstdint>
#include <span>
#include <string_view>

namespace quendra {

/// In place of these colours a drawing takes those of the palette that it is painted in.
inline constexpr QRgb inkMarker = 0xff010203;
inline constexpr QRgb accentMarker = 0xff030201;
/// No outline, or no filling.
inline constexpr QRgb noColour = 0;

/// A step of a path; the three points of a curve are three steps.
struct PathStep {
    QPainterPath::ElementType type;
    double x;
    double y;
};

struct DrawnShape {
    QRgb outline;
    double outlineWidth;
    Qt::PenCapStyle cap;
    Qt::PenJoinStyle join;
    QRgb filling;
    Qt::FillRule fillRule;
    std::span<const PathStep> path;
};

/// Shapes from the bottom up, on a square whose sides are `side` long.
struct Drawing {
    std::string_view name;
    double side;
    std::span<const DrawnShape> shapes;
};

/// All drawings by name, which is that of the file without ".svg".
[[nodiscard]] std::span<const Drawing> drawings();

}  // namespace quendra
