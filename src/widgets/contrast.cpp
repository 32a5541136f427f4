#include "widgets/contrast.h"

#include "widgets/editor_style.h"

#include <algorithm>
#include <cmath>

namespace quendra {
namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    constexpr double glare = 0.05;
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + glare) / (darker + glare);
}

QColor edgeColor(const QPalette& palette) {
    return QColor::fromRgb(isDark(palette) ? 0xff7d848e : 0xff767c85);
}

QColor accentColor(const QPalette& palette) {
    constexpr double enough = 4.5;
    constexpr int steps = 32;
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight).toHsl();
    const float start = highlight.lightnessF();
    const float end = luminance(base) < 0.18 ? 1.0F : 0.0F;
    QColor accent = highlight;
    for (int i = 1; i <= steps && contrast(accent, base) < enough; ++i) {
        const float lightness = start + (end - start) * static_cast<float>(i) / steps;
        accent = QColor::fromHslF(highlight.hslHueF(), highlight.hslSaturationF(), lightness);
    }
    return accent.toRgb();
}

QColor focusColor(const QPalette& palette) {
    return accentColor(palette);
}

}  // namespace quendra
