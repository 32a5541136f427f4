#include "widgets/appearance.h"

#include "widgets/editor_style.h"

#include <QApplication>
#include <QToolTip>

namespace quendra {

namespace {

struct Colours {
    QRgb window;
    QRgb base;
    QRgb alternate;
    QRgb text;
    QRgb disabledText;
    QRgb placeholderText;
    QRgb button;
    QRgb highlight;
    QRgb highlightedText;
    /// The selection of a list that does not have the focus: dark enough for the white that icons
    /// take on any selection.
    QRgb quietHighlight;
    QRgb quietHighlightedText;
    QRgb toolTip;
    QRgb link;
    /// Edges: lightest to darkest.
    QRgb light;
    QRgb midlight;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
};

constexpr Colours lightColours = {
    .window = 0xfff3f4f6,
    .base = 0xffffffff,
    .alternate = 0xfff7f8fa,
    .text = 0xff1b1f24,
    .disabledText = 0xff7a818b,
    .placeholderText = 0xff69707a,
    .button = 0xfff3f4f6,
    .highlight = 0xff2463c5,
    .highlightedText = 0xffffffff,
    .quietHighlight = 0xff6a7484,
    .quietHighlightedText = 0xffffffff,
    .toolTip = 0xfffffdf2,
    .link = 0xff1f5bb8,
    .light = 0xffffffff,
    .midlight = 0xffe6e8ec,
    .mid = 0xffc6cad1,
    .dark = 0xffa4a9b2,
    .shadow = 0xff6b717b,
};

constexpr Colours darkColours = {
    .window = 0xff26292e,
    .base = 0xff1c1f23,
    .alternate = 0xff212429,
    .text = 0xffe6e8eb,
    .disabledText = 0xff7d848e,
    .placeholderText = 0xff8f96a0,
    .button = 0xff32363c,
    .highlight = 0xff2f6bc6,
    .highlightedText = 0xffffffff,
    .quietHighlight = 0xff4d5561,
    .quietHighlightedText = 0xffffffff,
    .toolTip = 0xff32363c,
    .link = 0xff82b1ff,
    .light = 0xff4a4f57,
    .midlight = 0xff3c4047,
    .mid = 0xff30343a,
    .dark = 0xff17191c,
    .shadow = 0xff0d0e10,
};

QPalette paletteOf(const Colours& c) {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour) {
        palette.setColor(role, QColor::fromRgb(colour));
    };
    set(QPalette::Window, c.window);
    set(QPalette::WindowText, c.text);
    set(QPalette::Base, c.base);
    set(QPalette::AlternateBase, c.alternate);
    set(QPalette::Text, c.text);
    set(QPalette::BrightText, c.highlightedText);
    set(QPalette::Button, c.button);
    set(QPalette::ButtonText, c.text);
    set(QPalette::ToolTipBase, c.toolTip);
    set(QPalette::ToolTipText, c.text);
    set(QPalette::PlaceholderText, c.placeholderText);
    set(QPalette::Link, c.link);
    set(QPalette::LinkVisited, c.link);
    set(QPalette::Highlight, c.highlight);
    set(QPalette::HighlightedText, c.highlightedText);
    set(QPalette::Light, c.light);
    set(QPalette::Midlight, c.midlight);
    set(QPalette::Mid, c.mid);
    set(QPalette::Dark, c.dark);
    set(QPalette::Shadow, c.shadow);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(c.disabledText));
    }
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor::fromRgb(c.quietHighlight));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                     QColor::fromRgb(c.quietHighlightedText));
    // A field that takes nothing does not look like one that waits to be filled.
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(c.button));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(c.mid));
    return palette;
}

}  // namespace

QPalette appearancePalette(Appearance appearance) {
    return paletteOf(appearance == Appearance::Dark ? darkColours : lightColours);
}

void applyAppearance(Appearance appearance) {
    if (appearance == Appearance::Platform) {
        appearance = isDark(QApplication::palette()) ? Appearance::Dark : Appearance::Light;
    }
    QApplication::setStyle(new EditorStyle);
    const QPalette palette = appearancePalette(appearance);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

}  // namespace quendra
