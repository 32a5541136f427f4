// How well colours are told apart, and the colours of edges that have to be.
#pragma once

#include <QColor>
#include <QPalette>

namespace quendra {

/// The contrast of two opaque colours, from 1 (none) to 21 (black on white): their relative
/// luminances, lighter over darker, with the glare of a screen added to both. Text needs 4.5, and
/// what has to be seen without being read, an edge or a handle, needs 3.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// The accent colour in a palette: its highlight colour, lightened or darkened as far as it must be
/// to stand out as a thin line on the palette's base colour.
[[nodiscard]] QColor accentColor(const QPalette& palette);

/// The edge of fields and lists, and the handle of scroll bars: at least 3 to 1 against the grounds
/// on both of its sides.
[[nodiscard]] QColor edgeColor(const QPalette& palette);
/// The same around what has the keyboard focus.
[[nodiscard]] QColor focusColor(const QPalette& palette);

}  // namespace quendra
