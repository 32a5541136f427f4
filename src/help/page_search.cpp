#include "help/page_search.h"

#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace quendra {

PageSearch::PageSearch(PageView& view, LanguageLibrary& language, QWidget* parent)
    : QWidget(parent), view_(view), language_(language), edit_(new QLineEdit), count_(new QLabel) {
    setObjectName(QStringLiteral("helpPageSearch"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 6, 0, 0);
    const QString name = qtText(libraryText(language_, textid::helpFindInPage));
    edit_->setObjectName(QStringLiteral("helpFindText"));
    edit_->setPlaceholderText(name);
    edit_->setAccessibleName(name);
    edit_->setMaximumWidth(40 * fontMetrics().averageCharWidth());
    row->addWidget(edit_, 1);
    addButton("helpFindPrevious", textid::findPrevious, Qt::UpArrow, &PageSearch::previous);
    addButton("helpFindNext", textid::findNext, Qt::DownArrow, &PageSearch::next);
    count_->setObjectName(QStringLiteral("helpFindCount"));
    count_->setTextFormat(Qt::PlainText);
    row->addWidget(count_);
    row->addStretch(1);
    addButton("helpFindClose", textid::findClose, Qt::NoArrow, &PageSearch::close);
    connect(edit_, &QLineEdit::textEdited, this, &PageSearch::typed);
    hide();
}

void PageSearch::addButton(const char* name, StringId toolTip, Qt::ArrowType arrow,
                           void (PageSearch::*act)()) {
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    const QString tip = qtText(libraryText(language_, toolTip));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setArrowType(arrow);
    if (arrow == Qt::NoArrow) button->setText(QStringLiteral("\u00d7"));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, act);
    layout()->addWidget(button);
}

void PageSearch::open() {
    const bool wasHidden = isHidden();
    show();
    edit_->setFocus();
    edit_->selectAll();
    if (wasHidden) typed();
}

void PageSearch::close() {
    hide();
    view_.markWords({});
    view_.setFocus();
}

void PageSearch::go(int step) {
    if (isHidden()) return open();
    const int count = view_.markCount();
    if (count == 0) return;
    current_ = (current_ + step + count) % count;
    view_.goToMark(current_);
    showCount();
}

void PageSearch::pageChanged() {
    if (!isHidden()) typed();
}

void PageSearch::typed() {
    current_ = 0;
    const QString text = edit_->text();
    view_.markWords(text.isEmpty() ? QStringList() : QStringList(text));
    if (view_.markCount() > 0) view_.goToMark(0);
    showCount();
}

void PageSearch::showCount() {
    const int count = view_.markCount();
    if (edit_->text().isEmpty()) return count_->clear();
    count_->setText(
        qtText(count == 0 ? libraryText(language_, textid::findNothing)
                          : libraryText(language_, textid::findPosition,
                                        {std::to_string(current_ + 1), std::to_string(count)})));
}

void PageSearch::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape: return close();
        case Qt::Key_Return:
        case Qt::Key_Enter: return go(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
        default: QWidget::keyPressEvent(event);
    }
}

}  // namespace quendra
