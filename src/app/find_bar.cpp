#include "app/find_bar.h"

#include "app/field_titles.h"
#include "app/replacement.h"
#include "scriptfile/entry_codec.h"
#include "text/text_ids.h"
#include "widgets/status_line.h"
#include "widgets/ui_text.h"

#include <QAccessible>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <utility>

namespace quendra {

namespace {

constexpr int widestEditCharacters = 48;
constexpr int narrowestEditCharacters = 12;
/// The columns of the grid: the fields, the buttons beside them, what is said, and closing.
constexpr int optionColumn = 1;
constexpr int countColumn = 6;
constexpr int closeColumn = 7;
/// Below the fields, for what is too long to be said beside them.
constexpr int longCountRow = 2;
constexpr int countMargin = 8;
/// What the bar leaves less at its ends than the lists above it.
constexpr int lineUp = 6;

std::size_t stepOfHit(const SearchHit& hit) {
    return hit.place.step;
}

}  // namespace

FindBar::FindBar(ApplicationState& state, EditorPane& pane, QWidget* parent)
    : QToolBar(parent), state_(state), pane_(pane), escape_(new QShortcut(Qt::Key_Escape, parent)) {
    setObjectName(QStringLiteral("findBar"));
    setAccessibleName(text(textid::findToolTip));
    setMovable(false);
    auto* content = new QWidget(this);
    grid_ = new QGridLayout(content);
    grid_->setContentsMargins(lineUp, 0, lineUp, 0);
    grid_->setHorizontalSpacing(2);
    grid_->setVerticalSpacing(4);
    grid_->setColumnStretch(0, 1);
    grid_->setColumnStretch(countColumn, 1);
    buildFindRow(*grid_);
    buildReplaceRow(*grid_);
    content->installEventFilter(this);
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    addWidget(content);
    setTabOrder(edit_, replacement_);
    connect(&pane_, &EditorPane::listRebuilt, this, [this] {
        if (!isVisible()) return;
        search();
        // They are those of the script as it was.
        if (fault_) setHits({});
    });
    connect(&pane_, &EditorPane::selectionChanged, this, &FindBar::selectionMoved);
    connect(escape_, &QShortcut::activated, this, &FindBar::close);
    escape_->setEnabled(false);
    showReplaceRow(false);
    hide();
}

QLineEdit* FindBar::makeEdit(const char* name, StringId description) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setPlaceholderText(text(description));
    edit->setAccessibleName(text(description));
    const int character = fontMetrics().averageCharWidth();
    edit->setMinimumWidth(narrowestEditCharacters * character);
    edit->setMaximumWidth(widestEditCharacters * character);
    edit->installEventFilter(this);
    return edit;
}

QToolButton* FindBar::makeButton(const char* name, StringId description, void (FindBar::*act)()) {
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setToolTip(text(description));
    button->setAccessibleName(text(description));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, act);
    return button;
}

QToolButton* FindBar::makeOption(const char* name, StringId description, const char* sign,
                                 const char* key) {
    QToolButton* option = makeButton(name, description, &FindBar::typed);
    option->setCheckable(true);
    option->setText(QLatin1String(sign));
    const QKeySequence keys(QLatin1String(key), QKeySequence::PortableText);
    // The button's own shortcut would press it for a while before it acts.
    connect(new QShortcut(keys, this), &QShortcut::activated, option, &QToolButton::click);
    option->setToolTip(
        QStringLiteral("%1 (%2)").arg(text(description), keys.toString(QKeySequence::NativeText)));
    return option;
}

void FindBar::buildFindRow(QGridLayout& grid) {
    edit_ = makeEdit("findText", textid::findToolTip);
    connect(edit_, &QLineEdit::textEdited, this, &FindBar::typed);
    matchCase_ = makeOption("findMatchCase", textid::findMatchCase, "Aa", "Alt+C");
    wholeWords_ = makeOption("findWholeWords", textid::findWholeWords, "\"w\"", "Alt+W");
    expression_ = makeOption("findExpression", textid::findExpression, ".*", "Alt+R");
    QToolButton* previous =
        makeButton("findPrevious", textid::findPrevious, &FindBar::goToPrevious);
    previous->setArrowType(Qt::UpArrow);
    QToolButton* next = makeButton("findNext", textid::findNext, &FindBar::goToNext);
    next->setArrowType(Qt::DownArrow);
    count_ = new StatusLine;
    count_->setObjectName(QStringLiteral("findCount"));
    count_->setContentsMargins(countMargin, 0, countMargin, 0);
    QToolButton* closing = makeButton("findClose", textid::findClose, &FindBar::close);
    closing->setText(QStringLiteral("\u00d7"));
    grid.addWidget(edit_, 0, 0);
    int column = optionColumn;
    for (QWidget* button : {matchCase_, wholeWords_, expression_, previous, next}) {
        grid.addWidget(button, 0, column++);
    }
    grid.addWidget(count_, 0, countColumn);
    grid.addWidget(closing, 0, closeColumn);
}

void FindBar::buildReplaceRow(QGridLayout& grid) {
    replacement_ = makeEdit("replaceText", textid::findReplacement);
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    row->setSpacing(2);
    QToolButton* one = makeButton("replace", textid::replaceToolTip, &FindBar::replaceHit);
    one->setText(text(textid::replaceButton));
    one->setToolTip({});
    one->setAutoRaise(false);
    QToolButton* all = makeButton("replaceAll", textid::replaceAllStep, &FindBar::replaceAll);
    all->setText(text(textid::replaceAllButton));
    all->setToolTip({});
    all->setAutoRaise(false);
    row->addWidget(one);
    row->addWidget(all);
    row->addStretch(1);
    grid.addWidget(replacement_, 1, 0);
    grid.addWidget(buttons, 1, optionColumn, 1, closeColumn);
    replaceRow_ = {replacement_, buttons};
}

void FindBar::showReplaceRow(bool shows) {
    for (QWidget* widget : replaceRow_) {
        widget->setVisible(shows);
    }
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

void FindBar::openReplace() {
    if (state_.script.entryCount() == 0) return;
    showReplaceRow(true);
    open();
}

void FindBar::close() {
    hide();
    showReplaceRow(false);
    escape_->setEnabled(false);
    // Nothing keeps records that the script has no more.
    search_.clear();
    setHits({});
    pane_.takeFocus();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) placeCount();
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
    if (key.modifiers().testFlag(Qt::ShiftModifier)) {
        goToPrevious();
    } else if (watched == replacement_) {
        replaceHit();
    } else {
        goToNext();
    }
    return true;
}

void FindBar::typed() {
    search();
    if (fault_) return;
    if (hits_.empty()) return goBack();
    goTo(hitFrom(origin_));
}

// What fewer letters hit is nothing that was looked for.
void FindBar::goBack() {
    if (pane_.focusedEntry() < 0 || currentEntry() == origin_) return;
    if (origin_ >= state_.script.entryCount()) return;
    const std::size_t entries[] = {origin_};
    goes_ = true;
    pane_.selectEntries(entries, static_cast<int>(origin_));
    goes_ = false;
}

void FindBar::readPattern() {
    pattern_.reset();
    fault_.reset();
    const std::string wanted = edit_->text().toStdString();
    if (wanted.empty()) return;
    auto made = TextPattern::of(wanted, {.ignoreCase = !matchCase_->isChecked(),
                                         .wholeWords = wholeWords_->isChecked(),
                                         .isExpression = expression_->isChecked()});
    if (auto* pattern = std::get_if<TextPattern>(&made)) {
        pattern_ = std::move(*pattern);
    } else {
        fault_ = std::get<PatternFault>(std::move(made));
    }
}

void FindBar::search() {
    readPattern();
    if (fault_) return showCount();
    search_.update(state_.script, state_.cipher, state_.displayNames());
    setHits(pattern_ ? search_.find(*pattern_) : std::vector<SearchHit>());
}

void FindBar::setHits(std::vector<SearchHit> hits) {
    const auto before = current_ ? std::optional(hits_[*current_]) : std::nullopt;
    hits_ = std::move(hits);
    current_.reset();
    if (before) {
        const auto same = std::ranges::lower_bound(hits_, *before, std::less<>());
        if (same != hits_.end() && *same == *before) {
            current_ = static_cast<std::size_t>(same - hits_.begin());
        }
    }
    std::vector<std::size_t> entries;
    for (const SearchHit& hit : hits_) {
        if (entries.empty() || entries.back() != stepOfHit(hit)) entries.push_back(stepOfHit(hit));
    }
    pane_.markEntries(std::move(entries));
    followSelection();
    showCount();
}

void FindBar::goToNext() {
    if (isHidden()) open();
    if (hits_.empty() || fault_) return;
    const std::size_t behind = static_cast<std::size_t>(pane_.focusedEntry() + 1);
    goTo(current_ ? (*current_ + 1) % hits_.size() : hitFrom(behind));
    origin_ = currentEntry();
}

void FindBar::goToPrevious() {
    if (isHidden()) open();
    if (hits_.empty() || fault_) return;
    const std::size_t from = current_ ? *current_ : hitFrom(currentEntry());
    goTo((from + hits_.size() - 1) % hits_.size());
    origin_ = currentEntry();
}

std::size_t FindBar::hitFrom(std::size_t entry) const {
    const auto next = std::ranges::lower_bound(hits_, entry, {}, stepOfHit);
    return next == hits_.end() ? 0 : static_cast<std::size_t>(next - hits_.begin());
}

std::size_t FindBar::hitBehind(const SearchHit& hit) const {
    const auto next = std::upper_bound(hits_.begin(), hits_.end(), hit);
    return next == hits_.end() ? 0 : static_cast<std::size_t>(next - hits_.begin());
}

void FindBar::goTo(std::size_t hit) {
    current_ = hit;
    const std::size_t entries[] = {stepOfHit(hits_[hit])};
    goes_ = true;
    pane_.selectEntries(entries, static_cast<int>(entries[0]));
    goes_ = false;
    // Another field of the same entry is no change of the selection.
    showCount();
}

void FindBar::selectionMoved() {
    if (!goes_) origin_ = currentEntry();
    followSelection();
    showCount();
}

void FindBar::followSelection() {
    const int focused = pane_.focusedEntry();
    if (focused < 0) return current_.reset();
    const auto entry = static_cast<std::size_t>(focused);
    if (current_ && stepOfHit(hits_[*current_]) == entry) return;
    const auto first = std::ranges::lower_bound(hits_, entry, {}, stepOfHit);
    const bool isHit = first != hits_.end() && stepOfHit(*first) == entry;
    current_ =
        isHit ? std::optional(static_cast<std::size_t>(first - hits_.begin())) : std::nullopt;
}

std::size_t FindBar::currentEntry() const {
    return static_cast<std::size_t>(std::max(pane_.focusedEntry(), 0));
}

bool FindBar::canReplace() {
    if (isHidden() || !pattern_ || hits_.empty()) return false;
    if (!pattern_->gaveUp()) return true;
    Q_EMIT noted(text(textid::findGaveUp).toStdString());
    return false;
}

void FindBar::replaceHit() {
    if (!canReplace()) return;
    if (!current_) return goToNext();
    const SearchHit hit = hits_[*current_];
    if (hit.field != nullptr) {
        const ScriptChanges changes =
            replaceInField(state_.script, stepOfHit(hit), fieldPath(hit.place.slot, *hit.field),
                           *pattern_, replacement_->text().toStdString());
        if (!changes.canAllBeMade()) {
            static_cast<void>(agreedToChanges(state_, window(), changes));
            return;
        }
        if (!changes.fields.empty()) {
            Q_EMIT changesAgreed(changes, text(textid::replaceToolTip).toStdString());
        }
    }
    if (!hits_.empty()) goTo(hitBehind(hit));
    origin_ = currentEntry();
    if (hit.field == nullptr) Q_EMIT noted(text(textid::replaceNotHere).toStdString());
}

void FindBar::replaceAll() {
    if (!canReplace()) return;
    const ScriptChanges changes =
        replaceInFields(state_.script, *pattern_, replacement_->text().toStdString(), {});
    const bool isLineOnly = std::ranges::none_of(hits_, &SearchHit::field);
    if (isLineOnly) return Q_EMIT noted(text(textid::replaceNotHere).toStdString());
    if (agreedToChanges(state_, window(), changes)) {
        Q_EMIT changesAgreed(changes, text(textid::replaceAllStep).toStdString());
    } else if (!changes.fields.empty()) {
        return;
    }
    const std::string made = std::to_string(changedFields(changes));
    Q_EMIT noted(libraryText(state_.language, textid::replacedCount, {made}));
}

void FindBar::showCount() {
    const QString shown = countText();
    if (shown == count_->text()) return;
    count_->setLine(shown);
    placeCount();
    QAccessibleEvent changed(count_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void FindBar::placeCount() {
    const int needed = count_->fontMetrics().horizontalAdvance(count_->text()) + 2 * countMargin;
    const bool goesBelow = needed > grid_->cellRect(0, countColumn).width();
    if (std::exchange(countIsBelow_, goesBelow) == goesBelow) return;
    grid_->removeWidget(count_);
    if (goesBelow) {
        grid_->addWidget(count_, longCountRow, 0, 1, closeColumn + 1);
    } else {
        grid_->addWidget(count_, 0, countColumn);
    }
}

QString FindBar::countText() const {
    if (edit_->text().isEmpty()) return {};
    LanguageLibrary& language = state_.language;
    if (fault_) {
        return qtText(libraryText(language, textid::findBadExpression,
                                  {std::to_string(fault_->position), fault_->what}));
    }
    const std::string all = std::to_string(hits_.size());
    QString said = text(textid::findNothing);
    if (current_) {
        const std::string number = std::to_string(*current_ + 1);
        said = qtText(libraryText(language, textid::findPosition, {number, all}));
        const QString title = titleOf(hits_[*current_]);
        if (!title.isEmpty()) said += QStringLiteral(" - ") + title;
    } else if (!hits_.empty()) {
        said = qtText(libraryText(language, textid::findCount, {all}));
    }
    if (pattern_ && pattern_->gaveUp()) said += QStringLiteral("; ") + text(textid::findGaveUp);
    return said;
}

QString FindBar::titleOf(const SearchHit& hit) const {
    if (hit.field == nullptr || stepOfHit(hit) >= state_.script.entryCount()) return {};
    const ScriptEntry entry = unpackSealedEntry(state_.script.entries[stepOfHit(hit)]);
    return fieldTitle(state_.language, entry, hit.place.slot, *hit.field);
}

}  // namespace quendra
