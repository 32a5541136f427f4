// Where windows of their own go on the screen.
#pragma once

#include <QSize>

class QWidget;

namespace quendra {

/// The largest that a window can be on its screen, with a frame around it and beside the panels of
/// the desktop.
[[nodiscard]] QSize largestWindow(const QWidget& window);

/// Puts a window that is not shown yet beside another one, narrower than it is if need be; in the
/// middle of the screen where neither side has room for anything that can be read.
void placeBeside(QWidget& window, const QWidget& other);

/// Moves a window that is not shown yet to the middle of its screen, a little above it.
void centreOnScreen(QWidget& window);

}  // namespace quendra
