#include "app/pane/drag_image.h"

#include "widgets/pane_list.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace quendra {
namespace {

constexpr double seeThrough = 0.85;

}  // namespace

DragImage::DragImage(const PaneList& source, QPoint grip, QWidget* parent)
    : QWidget(parent), source_(source), rows_(source.selectedRows()) {
    setObjectName(QStringLiteral("dragImage"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    const QRect first = source.rowRect(static_cast<int>(rows_.front()));
    rowSize_ = first.size();
    offset_ = source.viewport()->mapTo(parent, first.topLeft()) - grip;
    follow(grip);
    raise();
    show();
}

void DragImage::follow(QPoint pointer) {
    origin_ = pointer + offset_;
    const int rowSpan = static_cast<int>(rows_.back() - rows_.front()) + 1;
    const QRect whole(origin_, QSize(rowSize_.width(), rowSpan * rowSize_.height()));
    const QRect visible = whole.intersected(parentWidget()->rect());
    setGeometry(visible);
    // What shows changes while the clipped sheet may stay where it is.
    update();
}

void DragImage::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setOpacity(seeThrough);
    const QPoint firstTop = origin_ - pos();
    const int height = rowSize_.height();
    const int above = event->rect().top() - firstTop.y();
    const auto firstRow = rows_.front() + static_cast<std::size_t>(std::max(above, 0) / height);
    for (auto row = std::lower_bound(rows_.begin(), rows_.end(), firstRow); row != rows_.end();
         ++row) {
        const int y = firstTop.y() + static_cast<int>(*row - rows_.front()) * height;
        if (y > event->rect().bottom()) break;
        painter.save();
        painter.translate(firstTop.x(), y);
        source_.paintSelectedRow(painter, static_cast<int>(*row));
        painter.restore();
    }
}

}  // namespace quendra
