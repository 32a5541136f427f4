#include "widgets/placement.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quendra {

void centreOnScreen(QWidget& window) {
    constexpr int raisedBy = 10;
    const QRect screen = window.screen()->geometry();
    const QRect usable = window.screen()->availableGeometry();
    const int left = screen.left() + (screen.width() - window.width()) / 2;
    const int top = screen.top() + (screen.height() - window.height()) / 2 - raisedBy;
    window.move(std::max(usable.left(), left), std::max(usable.top(), top));
}

}  // namespace quendra
