#include "app/find_bar.h"

#include "analysis/entry_search.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace quendra {

FindBar::FindBar(ApplicationState& state, EditorPane& pane, QWidget* parent)
    : QToolBar(parent),
      state_(state),
      pane_(pane),
      edit_(new QLineEdit(this)),
      count_(new QLabel(this)),
      escape_(new QShortcut(Qt::Key_Escape, parent)) {
    setObjectName(QStringLiteral("findBar"));
    setAccessibleName(text(textid::findToolTip));
    setMovable(false);
    edit_->setObjectName(QStringLiteral("findText"));
    edit_->setPlaceholderText(text(textid::findToolTip));
    edit_->setAccessibleName(text(textid::findToolTip));
    edit_->setMaximumWidth(24 * fontMetrics().averageCharWidth() * 2);
    edit_->installEventFilter(this);
    addWidget(edit_);
    addButton("findPrevious", textid::findPrevious, Qt::UpArrow, &FindBar::goToPrevious);
    addButton("findNext", textid::findNext, Qt::DownArrow, &FindBar::goToNext);
    count_->setObjectName(QStringLiteral("findCount"));
    count_->setTextFormat(Qt::PlainText);
    count_->setContentsMargins(8, 0, 8, 0);
    count_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(count_);
    addButton("findClose", textid::findClose, Qt::NoArrow, &FindBar::close);
    connect(edit_, &QLineEdit::textEdited, this, &FindBar::typed);
    connect(&pane_, &EditorPane::listRebuilt, this, [this] {
        if (isVisible()) search();
    });
    connect(&pane_, &EditorPane::selectionChanged, this, &FindBar::selectionMoved);
    connect(escape_, &QShortcut::activated, this, &FindBar::close);
    escape_->setEnabled(false);
    // Not the standard keys for it: Ctrl+G, which is one of them on some desktops, goes to a step.
    connect(new QShortcut(Qt::Key_F3, parent), &QShortcut::activated, this, &FindBar::goToNext);
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F3, parent), &QShortcut::activated, this,
            &FindBar::goToPrevious);
    hide();
}

void FindBar::addButton(const char* name, StringId toolTip, Qt::ArrowType arrow,
                        void (FindBar::*act)()) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(text(toolTip));
    button->setAccessibleName(text(toolTip));
    button->setArrowType(arrow);
    if (arrow == Qt::NoArrow) button->setText(QStringLiteral("\u00d7"));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, act);
    addWidget(button);
}

QString FindBar::text(StringId id) const {
    return qtText(libraryText(state_.language, id));
}

void FindBar::open() {
    if (state_.script.entryCount() == 0) return;
    origin_ = currentEntry();
    show();
    escape_->setEnabled(true);
    edit_->setFocus();
    edit_->selectAll();
    search();
}

void FindBar::close() {
    hide();
    escape_->setEnabled(false);
    search();
    pane_.takeFocus();
}

bool FindBar::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (key.modifiers().testFlag(Qt::ShiftModifier)) {
                goToPrevious();
            } else {
                goToNext();
            }
            return true;
        default: return false;
    }
}

void FindBar::typed() {
    search();
    if (matches_.empty()) return;
    const auto next = std::ranges::lower_bound(matches_, origin_);
    goTo(next == matches_.end() ? matches_.front() : *next);
}

void FindBar::search() {
    matches_ = isHidden() ? std::vector<std::size_t>()
                          : findEntries(state_.script, state_.cipher, state_.displayNames(),
                                        edit_->text().toStdString());
    pane_.markEntries(matches_);
    showCount();
}

void FindBar::goToNext() {
    if (isHidden()) open();
    if (matches_.empty()) return;
    const auto behind = static_cast<std::size_t>(pane_.focusedEntry() + 1);
    const auto next = std::ranges::lower_bound(matches_, behind);
    goTo(next == matches_.end() ? matches_.front() : *next);
    origin_ = currentEntry();
}

void FindBar::goToPrevious() {
    if (isHidden()) open();
    if (matches_.empty()) return;
    const auto next = std::ranges::lower_bound(matches_, currentEntry());
    goTo(next == matches_.begin() ? matches_.back() : *(next - 1));
    origin_ = currentEntry();
}

void FindBar::goTo(std::size_t entry) {
    const std::size_t entries[] = {entry};
    goes_ = true;
    pane_.selectEntries(entries, static_cast<int>(entry));
    goes_ = false;
}

void FindBar::selectionMoved() {
    if (!goes_) origin_ = currentEntry();
    showCount();
}

std::size_t FindBar::currentEntry() const {
    return static_cast<std::size_t>(std::max(pane_.focusedEntry(), 0));
}

void FindBar::showCount() {
    if (edit_->text().isEmpty()) return count_->clear();
    if (matches_.empty()) return count_->setText(text(textid::findNothing));
    const std::string all = std::to_string(matches_.size());
    const int focused = pane_.focusedEntry();
    const auto place = std::ranges::find(matches_, static_cast<std::size_t>(focused));
    if (focused < 0 || place == matches_.end()) {
        return count_->setText(qtText(libraryText(state_.language, textid::findCount, {all})));
    }
    const std::string number = std::to_string(place - matches_.begin() + 1);
    count_->setText(qtText(libraryText(state_.language, textid::findPosition, {number, all})));
}

}  // namespace quendra
