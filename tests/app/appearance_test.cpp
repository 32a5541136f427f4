// Everything that is read can be read: the contrast of colours that lie on each other.
#include "app/appearance.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

namespace quendra {
namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(AppearanceTest, TextsStandOutFromTheirGround) {
    using P = QPalette;
    constexpr double readable = 4.5;
    constexpr double discernible = 2.2;
    const std::tuple<P::ColorGroup, P::ColorRole, P::ColorRole, double> rows[] = {
        {P::Active, P::Text, P::Base, readable},
        {P::Active, P::Link, P::Window, readable},
        {P::Active, P::ButtonText, P::Button, readable},
        {P::Active, P::ToolTipText, P::ToolTipBase, readable},
        {P::Active, P::HighlightedText, P::Highlight, readable},
        {P::Inactive, P::HighlightedText, P::Highlight, readable},
        // Icons take the active colour on every selection.
        {P::Inactive, P::BrightText, P::Highlight, readable},
        {P::Disabled, P::ButtonText, P::Button, discernible},
        {P::Disabled, P::Text, P::Base, discernible},
    };
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        const P palette = appearancePalette(appearance);
        for (const auto& [group, text, ground, least] : rows) {
            EXPECT_GE(contrast(palette.color(group, text), palette.color(group, ground)), least)
                << (appearance == Appearance::Dark ? "dark " : "light ") << group << ' ' << text;
        }
    }
}

}  // namespace
}  // namespace quendra
