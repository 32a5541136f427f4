// Where windows of their own go on the screen.
#pragma once

class QWidget;

namespace quendra {

/// Moves a window that is not shown yet to the middle of its screen, a little above it.
void centreOnScreen(QWidget& window);

}  // namespace quendra
