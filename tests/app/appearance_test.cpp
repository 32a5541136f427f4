// Everything that is read can be read: contrast of the colours that lie on each other, in both
// palettes.
#include "app/appearance.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

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

struct Pair {
    const char* name;
    QPalette::ColorGroup group;
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
    double least;
};

TEST(AppearanceTest, TextsStandOutFromTheirGround) {
    constexpr double readable = 4.5;
    constexpr double discernible = 2.2;
    const Pair pairs[] = {
        {"list", QPalette::Active, QPalette::Text, QPalette::Base, readable},
        {"label", QPalette::Active, QPalette::WindowText, QPalette::Window, readable},
        {"button", QPalette::Active, QPalette::ButtonText, QPalette::Button, readable},
        {"tool tip", QPalette::Active, QPalette::ToolTipText, QPalette::ToolTipBase, readable},
        {"selection", QPalette::Active, QPalette::HighlightedText, QPalette::Highlight, readable},
        {"quiet selection", QPalette::Inactive, QPalette::HighlightedText, QPalette::Highlight,
         readable},
        // Icons take the active colour on every selection.
        {"icon on a quiet selection", QPalette::Inactive, QPalette::BrightText, QPalette::Highlight,
         readable},
        {"disabled button", QPalette::Disabled, QPalette::ButtonText, QPalette::Button,
         discernible},
        {"disabled list", QPalette::Disabled, QPalette::Text, QPalette::Base, discernible},
        {"link", QPalette::Active, QPalette::Link, QPalette::Window, readable},
    };
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        const QPalette palette = appearancePalette(appearance);
        for (const Pair& pair : pairs) {
            EXPECT_GE(contrast(palette.color(pair.group, pair.text),
                               palette.color(pair.group, pair.ground)),
                      pair.least)
                << (appearance == Appearance::Dark ? "dark " : "light ") << pair.name;
        }
    }
}

}  // namespace
}  // namespace quendra
