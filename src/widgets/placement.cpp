#include "widgets/placement.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quendra {

namespace {

// A window that is not shown yet has none; the window manager will give it about this one.
constexpr QSize usualFrame = {8, 40};

}  // namespace

QSize largestWindow(const QWidget& window) {
    return window.screen()->availableSize() - usualFrame;
}

void centreOnScreen(QWidget& window) {
    constexpr int raisedBy = 10;
    const QRect screen = window.screen()->geometry();
    const QRect usable = window.screen()->availableGeometry();
    const QPoint last = usable.bottomRight() - QPoint(window.width(), window.height()) -
                        QPoint(usualFrame.width(), usualFrame.height());
    const int left = screen.left() + (screen.width() - window.width()) / 2;
    const int top = screen.top() + (screen.height() - window.height()) / 2 - raisedBy;
    window.move(std::max(usable.left(), std::min(left, last.x() + 1)),
                std::max(usable.top(), std::min(top, last.y() + 1)));
}

}  // namespace quendra
