#include "widgets/status_line.h"

#include "widgets/tool_tip.h"

#include <QPainter>
#include <QStyle>

namespace quendra {

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void StatusLine::setLine(const QString& line) {
    setText(line);
    setToolTip(fontMetrics().horizontalAdvance(line) > width() ? wrappingToolTip(line) : QString());
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    setLine(text());
}

void StatusLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(
        &painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
        fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()), foregroundRole());
}

}  // namespace quendra
