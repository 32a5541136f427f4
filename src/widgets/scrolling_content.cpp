#include "widgets/scrolling_content.h"

#include <QApplication>
#include <QEvent>

namespace quendra {

ScrollingContent::ScrollingContent(QWidget* content) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    // The page of a tab has another ground than the window.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { showFocused(focused); });
}

// The focus leaves a content that goes, when this is no longer what it was.
ScrollingContent::~ScrollingContent() {
    disconnect(qApp, nullptr, this, nullptr);
}

QSize ScrollingContent::sizeHint() const {
    return widget()->sizeHint();
}

bool ScrollingContent::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void ScrollingContent::showFocused(const QWidget* focused) {
    if (focused == nullptr || !widget()->isAncestorOf(focused)) return;
    constexpr int around = 8;
    ensureWidgetVisible(const_cast<QWidget*>(focused), around, around);
}

}  // namespace quendra
