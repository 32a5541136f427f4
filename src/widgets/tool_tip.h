// Tool tips that say what a list shows.
#pragma once

#include <QString>

namespace quendra {

/// A tool tip that shows exactly this text, wrapped where it is too long for one line.
[[nodiscard]] QString wrappingToolTip(const QString& text);

}  // namespace quendra
