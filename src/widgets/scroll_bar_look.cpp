#include "widgets/scroll_bar_look.h"

#include "widgets/contrast.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace quendra {
namespace {

void drawArrow(QPainter& painter, const QRectF& button, Qt::ArrowType direction) {
    const qreal step = std::min(button.width(), button.height()) / 5;
    painter.save();
    painter.translate(button.center());
    painter.rotate(direction == Qt::UpArrow      ? 0
                   : direction == Qt::RightArrow ? 90
                   : direction == Qt::DownArrow  ? 180
                                                 : 270);
    painter.drawPolygon(
        QPolygonF{{QPointF(-1.5 * step, step), QPointF(0, -step), QPointF(1.5 * step, step)}});
    painter.restore();
}

}  // namespace

void drawScrollBar(const QStyle& style, const QStyleOptionSlider& option, QPainter& painter,
                   const QWidget* widget) {
    const auto part = [&](QStyle::SubControl control) {
        return QRectF(style.subControlRect(QStyle::CC_ScrollBar, &option, control, widget));
    };
    const bool upright = option.orientation == Qt::Vertical;
    const bool mirrored = !upright && option.direction == Qt::RightToLeft;
    const QPalette& palette = option.palette;
    painter.save();
    painter.fillRect(option.rect, palette.color(QPalette::Window));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool moves =
        option.maximum > option.minimum && option.state.testFlag(QStyle::State_Enabled);
    painter.setBrush(moves ? edgeColor(palette)
                           : palette.color(QPalette::Disabled, QPalette::WindowText));
    drawArrow(painter, part(QStyle::SC_ScrollBarSubLine),
              upright    ? Qt::UpArrow
              : mirrored ? Qt::RightArrow
                         : Qt::LeftArrow);
    drawArrow(painter, part(QStyle::SC_ScrollBarAddLine),
              upright    ? Qt::DownArrow
              : mirrored ? Qt::LeftArrow
                         : Qt::RightArrow);
    if (moves) {
        const bool held = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                          option.state.testAnyFlags(QStyle::State_Sunken | QStyle::State_MouseOver);
        if (held) painter.setBrush(palette.color(QPalette::WindowText));
        QRectF handle = part(QStyle::SC_ScrollBarSlider);
        constexpr qreal beside = 3;
        handle = upright ? handle.adjusted(beside, 1, -beside, -1)
                         : handle.adjusted(1, beside, -1, -beside);
        const qreal radius = std::min(handle.width(), handle.height()) / 2;
        painter.drawRoundedRect(handle, radius, radius);
    }
    painter.restore();
}

}  // namespace quendra
