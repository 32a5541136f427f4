#include "help/page_view.h"

#include "help/page_style.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>

namespace quendra {

namespace {

constexpr int smallestZoom = 70;
constexpr int largestZoom = 300;
constexpr double largerThanControls = 1.08;
constexpr QRgb markColour = 0xffffe59a;
constexpr QRgb currentMarkColour = 0xffffb300;
// Longer lines are hard to follow.
constexpr int charactersInALine = 100;

}  // namespace

PageView::PageView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setFrameShape(QFrame::StyledPanel);
    setLineWrapMode(FixedPixelWidth);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void PageView::showPage(const QString& html, const QString& folder) {
    html_ = html;
    folder_ = folder;
    words_.clear();
    currentMark_ = -1;
    render();
    verticalScrollBar()->setValue(0);
}

QFont PageView::pageFont() const {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * largerThanControls * zoom_ / 100);
    return font;
}

int PageView::columnWidth() const {
    const int longLine = QFontMetrics(pageFont()).averageCharWidth() * charactersInALine;
    return std::max(std::min(viewport()->width(), longLine), 1);
}

void PageView::render() {
    const QFont font = pageFont();
    // Built apart: a document on the screen is laid out anew with every row of a table.
    auto* page = new QTextDocument(this);
    page->setDocumentMargin(QFontMetricsF(font).height() * 1.2);
    showHtml(*page, html_, {palette(), font});
    // They point into the old document.
    setExtraSelections({});
    // The one that the view was born with goes by itself.
    const QPointer<QTextDocument> before = document();
    setDocument(page);
    delete before;
    setLineWrapColumnOrWidth(columnWidth());
    moveCursor(QTextCursor::Start);
}

QTextCursor PageView::markAll(const QStringList& words) {
    QList<ExtraSelection> marks;
    QTextCursor first;
    for (const QString& word : words) {
        QTextCursor found = document()->find(word, 0);
        for (; !found.isNull(); found = document()->find(word, found)) {
            ExtraSelection mark;
            mark.cursor = found;
            mark.format.setBackground(QColor::fromRgb(markColour));
            mark.format.setForeground(Qt::black);
            marks.append(mark);
            const bool inTitle = found.block() == document()->begin();
            if (!inTitle && (first.isNull() || found < first)) first = found;
        }
    }
    setExtraSelections(marks);
    return first;
}

void PageView::drawCurrentMark() {
    QList<ExtraSelection> marks = extraSelections();
    if (currentMark_ < 0 || currentMark_ >= marks.size()) return;
    for (ExtraSelection& mark : marks) {
        mark.format.setBackground(QColor::fromRgb(markColour));
        mark.format.setFontUnderline(false);
    }
    ExtraSelection& current = marks[currentMark_];
    current.format.setBackground(QColor::fromRgb(currentMarkColour));
    current.format.setFontUnderline(true);
    setExtraSelections(marks);
}

void PageView::goToMark(int index) {
    currentMark_ = index;
    drawCurrentMark();
    const QRect place = cursorRect(extraSelections().at(index).cursor);
    if (viewport()->rect().contains(place)) return;
    const int above = viewport()->height() / 4;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top() - above);
}

void PageView::markWords(const QStringList& words) {
    words_ = words;
    currentMark_ = -1;
    const QTextCursor first = markAll(words);
    if (first.isNull()) return;
    // A few lines before it stay in sight.
    const QRect place = cursorRect(first);
    const int above = viewport()->height() / 4;
    if (place.bottom() > viewport()->height()) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top() - above);
    }
}

bool PageView::scrollToHeading(const QString& anchor) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0) continue;
        if (headingAnchor(block.text()) != anchor) continue;
        const int top = cursorRect(QTextCursor(block)).top();
        verticalScrollBar()->setValue(verticalScrollBar()->value() + top - fontMetrics().height());
        return true;
    }
    return false;
}

void PageView::setZoom(int percent) {
    percent = std::clamp(percent, smallestZoom, largestZoom);
    if (percent == zoom_) return;
    zoom_ = percent;
    changeLook();
}

QVariant PageView::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource || !name.isRelative()) return {};
    QImage image(QDir::cleanPath(folder_ + u'/' + name.path()));
    return image.isNull() ? QVariant() : QVariant(image);
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    const int up = event->angleDelta().y();
    if (up != 0) setZoom(zoom_ + (up > 0 ? zoomStep : -zoomStep));
    event->accept();
}

void PageView::resizeEvent(QResizeEvent* event) {
    setLineWrapColumnOrWidth(columnWidth());
    QTextBrowser::resizeEvent(event);
}

void PageView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    const bool looksOtherwise =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    // The colours are part of the document.
    if (looksOtherwise && !html_.isEmpty()) changeLook();
}

// The same page at the same place in another look.
void PageView::changeLook() {
    QScrollBar& bar = *verticalScrollBar();
    const double place = bar.maximum() > 0 ? double(bar.value()) / bar.maximum() : 0;
    render();
    markAll(words_);
    drawCurrentMark();
    bar.setValue(static_cast<int>(place * bar.maximum()));
}

}  // namespace quendra
