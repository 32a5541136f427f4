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

void placeBeside(QWidget& window, const QWidget& other) {
    constexpr int narrowest = 600;
    const QRect usable = other.screen()->availableGeometry();
    const QRect taken = other.frameGeometry();
    const int leftRoom = taken.left() - usable.left() - usualFrame.width();
    const int rightRoom = usable.right() - taken.right() - usualFrame.width();
    const int room = std::max(leftRoom, rightRoom);
    if (room < narrowest) return centreOnScreen(window);
    window.resize(std::min(window.width(), room), window.height());
    const int x =
        room == rightRoom ? taken.right() + 1 : taken.left() - window.width() - usualFrame.width();
    const int last = usable.bottom() - window.height() - usualFrame.height();
    window.move(x, std::max(usable.top(), std::min(taken.top(), last)));
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
