// Where windows of their own go on the screen.
#pragma once

#include <QSize>

class QWidget;

namespace quendra {

/// The largest that a window can be on its screen, with a frame around it and beside the panels of
/// the desktop.
[[nodiscard]] QSize largestWindow(const QWidget& window);

/// Moves a window that is not shown yet to the middle of its screen, a little above it.
void centreOnScreen(QWidget& window);

}  // namespace quendra
