// How the program looks: one style with a light and a dark palette of its own.
#pragma once

#include <QPalette>

namespace quendra {

enum class Appearance {
    /// Light or dark as the platform's own palette is.
    Platform,
    Light,
    Dark,
};

/// Sets style and palette of the application; called once, before the first widget.
void applyAppearance(Appearance appearance);

/// The palettes, for those who want to test contrasts. Never Platform.
[[nodiscard]] QPalette appearancePalette(Appearance appearance);

}  // namespace quendra
