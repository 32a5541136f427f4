// How a scroll bar looks: a groove, a handle that stands out from it, and an arrow at either end.
#pragma once

class QPainter;
class QStyle;
class QStyleOptionSlider;
class QWidget;

namespace quendra {

/// Draws the whole scroll bar; `style` says where its parts are.
void drawScrollBar(const QStyle& style, const QStyleOptionSlider& option, QPainter& painter,
                   const QWidget* widget);

}  // namespace quendra
