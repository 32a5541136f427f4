#include "review/review_window.h"

#include "review/change_texts.h"
#include "review/review_heading.h"
#include "review/review_list.h"
#include "session/document.h"
#include "text/text_ids.h"
#include "widgets/message_box.h"
#include "widgets/placement.h"
#include "widgets/status_line.h"
#include "widgets/symbol_icon.h"
#include "widgets/ui_text.h"

#include <QAction>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

// The first few numbers of steps, for a message.
std::string listed(const std::vector<std::size_t>& steps) {
    constexpr std::size_t most = 8;
    std::string text;
    for (std::size_t i = 0; i < std::min(steps.size(), most); ++i)
        text += (i == 0 ? "" : ", ") + std::to_string(steps[i] + 1);
    return steps.size() > most ? text + ", ..." : text;
}

}  // namespace

ReviewWindow::ReviewWindow(ApplicationState& state)
    : state_(state), model_(new ReviewModel(state, this)) {
    setObjectName(QStringLiteral("reviewWindow"));
    setProperty("helpPage", QStringLiteral("compare"));
    setWindowIcon(programIcon());
    constexpr QSize comfortable{1000, 640};
    constexpr QSize smallest{420, 300};
    setMinimumSize(smallest);
    resize(comfortable.boundedTo(screen()->availableSize()));
    build();
    centreOnScreen(*this);
}

ReviewWindow::~ReviewWindow() = default;

QString ReviewWindow::text(StringId id, std::initializer_list<std::string> args) const {
    return qtText(libraryText(state_.language, id, args));
}

void ReviewWindow::build() {
    list_ = new ReviewList(*model_);
    details_ = new QPlainTextEdit;
    details_->setObjectName(QStringLiteral("reviewDetails"));
    details_->setReadOnly(true);
    details_->setTabChangesFocus(true);
    auto* split = new QSplitter(Qt::Vertical);
    split->setObjectName(QStringLiteral("reviewSplitter"));
    split->setChildrenCollapsible(false);
    split->addWidget(list_);
    split->addWidget(details_);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 0);
    constexpr int detailLines = 5;
    details_->setMinimumHeight(fontMetrics().lineSpacing() * 2);
    const int below = fontMetrics().lineSpacing() * detailLines;
    split->setSizes({height() - below, below});
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(8, 8, 8, 8);
    all->addWidget(buildHeadings());
    all->addWidget(split, 1);
    consequence_ = new StatusLine;
    consequence_->setObjectName(QStringLiteral("reviewConsequence"));
    all->addWidget(consequence_);
    all->addWidget(buildBar());
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ReviewWindow::showCurrent);
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ReviewWindow::showCurrent);
}

QWidget* ReviewWindow::buildHeadings() {
    auto* headings = new QWidget;
    headings->setObjectName(QStringLiteral("reviewHeadings"));
    left_ = new ReviewHeading(QStringLiteral("reviewLeft"));
    right_ = new ReviewHeading(QStringLiteral("reviewRight"));
    note_ = new QLabel;
    note_->setObjectName(QStringLiteral("reviewNote"));
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    auto* all = new QGridLayout(headings);
    // Above the halves of the rows, which leave the scroll bar its place.
    const int scrollBar = list_->verticalScrollBar()->sizeHint().width();
    all->setContentsMargins(6, 0, scrollBar + 2, 2);
    all->setHorizontalSpacing(list_->columns(0).gutter);
    all->addWidget(left_, 0, 0);
    all->addWidget(right_, 0, 1);
    all->setColumnStretch(0, 1);
    all->setColumnStretch(1, 1);
    all->addWidget(note_, 1, 0, 1, 2);
    return headings;
}

QWidget* ReviewWindow::buildBar() {
    auto* bar = new QWidget;
    bar->setObjectName(QStringLiteral("reviewBar"));
    bar->installEventFilter(this);
    bar_ = new QHBoxLayout(bar);
    bar_->setContentsMargins(0, 0, 0, 0);
    summary_ = new StatusLine;
    summary_->setObjectName(QStringLiteral("reviewSummary"));
    buttons_ = new QWidget;
    buttons_->setObjectName(QStringLiteral("reviewButtons"));
    bar_->addWidget(summary_, 1);
    bar_->addWidget(buttons_);
    auto* all = new QHBoxLayout(buttons_);
    all->setContentsMargins(0, 0, 0, 0);
    all->addStretch(1);
    previous_ = addArrow("reviewPrevious", textid::reviewPrevious, Qt::UpArrow,
                         Qt::SHIFT | Qt::Key_F7, &ReviewWindow::goToPrevious);
    next_ = addArrow("reviewNext", textid::reviewNext, Qt::DownArrow, Qt::Key_F7,
                     &ReviewWindow::goToNext);
    takeOver_ = addButton("reviewTakeOver", textid::reviewTakeOver, Qt::ALT | Qt::Key_Right,
                          [this] { takeOver(); });
    keep_ = {addButton("reviewKeepOurs", textid::reviewKeepOurs, Qt::ALT | Qt::Key_1,
                       [this] { keep(ConflictChoice::Ours); }),
             addButton("reviewKeepTheirs", textid::reviewKeepTheirs, Qt::ALT | Qt::Key_2,
                       [this] { keep(ConflictChoice::Theirs); }),
             addButton("reviewKeepBoth", textid::reviewKeepBoth, Qt::ALT | Qt::Key_3,
                       [this] { keep(ConflictChoice::Both); })};
    all->addWidget(previous_);
    all->addWidget(next_);
    all->addWidget(takeOver_);
    for (QPushButton* button : keep_)
        all->addWidget(button);
    addKeys({Qt::CTRL | Qt::Key_Z}, &ReviewWindow::undoAsked);
    addKeys({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, &ReviewWindow::redoAsked);
    return bar;
}

// The summary has a line of its own where it would be cut beside the buttons.
bool ReviewWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        constexpr int summaryCharacters = 40;
        const int room = summaryCharacters * fontMetrics().averageCharWidth();
        const int width = static_cast<const QWidget&>(*bar_->parentWidget()).width();
        const bool isNarrow = width < buttons_->sizeHint().width() + room;
        bar_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }
    return QWidget::eventFilter(watched, event);
}

void ReviewWindow::addKeys(const QList<QKeySequence>& keys, void (ReviewWindow::*act)()) {
    auto* action = new QAction(this);
    action->setShortcuts(keys);
    addAction(action);
    connect(action, &QAction::triggered, this, act);
}

QToolButton* ReviewWindow::addArrow(const char* name, StringId toolTip, Qt::ArrowType arrow,
                                    const QKeySequence& key, void (ReviewWindow::*act)()) {
    addKeys({key}, act);
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text(toolTip));
    button->setToolTip(text(toolTip) + QStringLiteral(" (") +
                       key.toString(QKeySequence::NativeText) + u')');
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, act);
    return button;
}

QPushButton* ReviewWindow::addButton(const char* name, StringId caption, const QKeySequence& key,
                                     const std::function<void()>& act) {
    auto* action = new QAction(this);
    action->setShortcut(key);
    addAction(action);
    auto* button = new QPushButton(text(caption));
    button->setObjectName(QLatin1String(name));
    button->setToolTip(key.toString(QKeySequence::NativeText));
    // The key does what the button does, and nothing where that is greyed.
    connect(action, &QAction::triggered, button, &QPushButton::click);
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

void ReviewWindow::compare(ReviewSide left, ReviewSide right, Editor editor) {
    isConflicts_ = false;
    begin(std::move(editor));
    showSides(std::move(left), std::move(right));
    goToChange(0, 0);
}

void ReviewWindow::resolve(ReviewSide script, Editor editor) {
    isConflicts_ = true;
    begin(std::move(editor));
    showConflicts(std::move(script));
    goToChange(0, 0);
}

void ReviewWindow::follow(ReviewSide left, ReviewSide right) {
    if (left == model_->side(Side::Left) && right == model_->side(Side::Right)) return;
    keepPlace([&] { showSides(std::move(left), std::move(right)); });
}

void ReviewWindow::follow(ReviewSide script) {
    if (script == resolved_) return;
    keepPlace([&] { showConflicts(std::move(script)); });
}

void ReviewWindow::begin(Editor editor) {
    editor_ = std::move(editor);
    const bool canTake = editor_ && !isConflicts_;
    takeOver_->setVisible(canTake);
    for (QPushButton* button : keep_)
        button->setVisible(isConflicts_);
    consequence_->setVisible(static_cast<bool>(editor_));
}

// The rows before the change are as they were, so that the row is still the place.
void ReviewWindow::keepPlace(const std::function<void()>& show) {
    const int row = list_->focusedRow();
    const int scrolled = list_->verticalScrollBar()->value();
    show();
    const int last = model_->rowCount() - 1;
    if (last >= 0) list_->setCurrentIndex(model_->index(std::clamp(row, 0, last), 0));
    list_->verticalScrollBar()->setValue(scrolled);
    if (last >= 0) list_->scrollTo(list_->currentIndex());
    showCurrent();
}

void ReviewWindow::showConflicts(ReviewSide script) {
    resolved_ = std::move(script);
    ConflictSearch found = findConflicts(resolved_.script);
    conflicts_ = std::move(found.conflicts);
    hasStrayMarks_ = !found.strayMarks.empty();
    note_->setText(text(textid::reviewStrayMarks, {listed(found.strayMarks)}));
    note_->setVisible(hasStrayMarks_);
    setWindowTitle(text(textid::reviewResolveTitle, {resolved_.name}));
    fill(resolved_, resolved_, alignConflicts(resolved_.script, conflicts_));
}

// Of the current conflict, or the last one before the focused row, for each has names of its own.
void ReviewWindow::showConflictNames() {
    const auto& changes = model_->aligned().changes;
    if (!isConflicts_ || changes.empty()) return;
    const auto row = static_cast<std::size_t>(std::max(list_->focusedRow(), 0));
    const auto behind = std::ranges::upper_bound(changes, row) - changes.begin();
    const MergeConflict& conflict =
        conflicts_[static_cast<std::size_t>(std::max(behind, decltype(behind){1}) - 1)];
    left_->setName(conflictSideName(resolved_.script, conflict.start));
    right_->setName(conflictSideName(resolved_.script, conflict.end));
}

void ReviewWindow::showSides(ReviewSide left, ReviewSide right) {
    note_->hide();
    resolved_ = {};
    setWindowTitle(text(textid::reviewCompareTitle, {left.name, right.name}));
    AlignedScripts aligned = alignScripts(left.script, right.script);
    fill(std::move(left), std::move(right), std::move(aligned));
}

void ReviewWindow::fill(ReviewSide left, ReviewSide right, AlignedScripts aligned) {
    list_->setAccessibleName(windowTitle());
    model_->show(std::move(left), std::move(right), std::move(aligned));
    for (const auto& [heading, side] : {std::pair(left_, Side::Left), {right_, Side::Right}}) {
        const ReviewSide& shown = model_->side(side);
        heading->show(shown, entryCountText(state_.language, shown.script.entryCount()));
    }
    showCurrent();
}

void ReviewWindow::showCurrent() {
    const bool hasChanges = !model_->aligned().changes.empty();
    previous_->setEnabled(hasChanges);
    next_->setEnabled(hasChanges);
    takeOver_->setEnabled(!isConflicts_ && editor_ && !selectedChanges().empty());
    for (QPushButton* button : keep_)
        button->setEnabled(isConflicts_ && currentChange());
    const int row = list_->focusedRow();
    details_->setPlainText(row < 0 ? QString() : changeText(*model_, row, state_.language));
    consequence_->setLine(consequence());
    showConflictNames();
    showSummary({});
}

void ReviewWindow::showSummary(const QString& remark) {
    QString line = summary() + remark;
    const HostType left = model_->side(Side::Left).hostType;
    const HostType right = model_->side(Side::Right).hostType;
    if (left != right) {
        line += text(textid::reviewHostTypes,
                     {std::string(hostTypeInfo(left).name), std::string(hostTypeInfo(right).name)});
    }
    summary_->setLine(line);
    details_->setAccessibleName(summary());
}

QString ReviewWindow::summary() const {
    const std::string count = std::to_string(model_->aligned().changes.size());
    if (const auto change = currentChange()) {
        return text(isConflicts_ ? textid::reviewConflictPosition : textid::reviewChangePosition,
                    {std::to_string(*change + 1), count});
    }
    const bool isOne = count == "1";
    if (isConflicts_) {
        if (conflicts_.empty()) {
            return text(hasStrayMarks_ ? textid::reviewOnlyStrayMarks : textid::reviewNoConflicts);
        }
        return isOne ? text(textid::reviewOneConflict) : text(textid::reviewConflicts, {count});
    }
    if (count != "0") {
        return isOne ? text(textid::reviewOneChange) : text(textid::reviewChanges, {count});
    }
    return text(textid::reviewSame);
}

QString ReviewWindow::consequence() const {
    if (isConflicts_) {
        const auto change = currentChange();
        if (!change) return {};
        const MergeConflict& conflict = conflicts_[*change];
        return text(textid::reviewKeepsSide,
                    {std::to_string(conflict.start + 1), std::to_string(conflict.end + 1)});
    }
    const std::vector<std::size_t> changes = selectedChanges();
    if (changes.empty()) return {};
    if (changes.size() > 1) {
        return text(textid::reviewTakesSelected, {std::to_string(changes.size())});
    }
    const std::size_t row = model_->aligned().changes[changes.front()];
    return takeOverText(model_->row(static_cast<int>(row)), state_.language);
}

std::optional<std::size_t> ReviewWindow::currentChange() const {
    const int row = list_->focusedRow();
    if (row < 0) return std::nullopt;
    return model_->row(row).change;
}

std::vector<std::size_t> ReviewWindow::selectedChanges() const {
    std::vector<std::size_t> changes;
    const QItemSelection selection = list_->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (const auto change = model_->row(row).change) changes.push_back(*change);
        }
    }
    std::ranges::sort(changes);
    const auto twice = std::ranges::unique(changes);
    changes.erase(twice.begin(), twice.end());
    return changes;
}

// Both go by rows, so that they lead on from wherever the user is, and round at the ends.
void ReviewWindow::goToNext() {
    const auto& changes = model_->aligned().changes;
    if (changes.empty()) return;
    const auto row = static_cast<std::size_t>(std::max(list_->focusedRow(), 0));
    const auto next = std::ranges::upper_bound(changes, row);
    const bool isEnd = next == changes.end();
    goToChange(isEnd ? 0 : static_cast<std::size_t>(next - changes.begin()),
               isEnd ? textid::reviewFromStart : 0);
}

void ReviewWindow::goToPrevious() {
    const auto& changes = model_->aligned().changes;
    if (changes.empty()) return;
    const auto row = static_cast<std::size_t>(std::max(list_->focusedRow(), 0));
    const auto next = std::ranges::lower_bound(changes, row);
    const bool isEnd = next == changes.begin();
    goToChange(static_cast<std::size_t>((isEnd ? changes.end() : next) - changes.begin()) - 1,
               isEnd ? textid::reviewFromEnd : 0);
}

void ReviewWindow::goToChange(std::size_t change, StringId remark) {
    const auto& changes = model_->aligned().changes;
    if (change < changes.size()) {
        list_->goToRow(static_cast<int>(changes[change]));
    } else if (model_->rowCount() > 0) {
        list_->goToRow(0);
    }
    list_->setFocus();
    if (remark != 0) showSummary(text(remark));
}

void ReviewWindow::goToChangeFromHere() {
    const auto& changes = model_->aligned().changes;
    const auto row = static_cast<std::size_t>(std::max(list_->focusedRow(), 0));
    const auto here = std::ranges::lower_bound(changes, row);
    if (here == changes.end()) return goToNext();
    goToChange(static_cast<std::size_t>(here - changes.begin()), 0);
}

void ReviewWindow::takeOver() {
    const std::vector<std::size_t> changes = selectedChanges();
    TakenOver taken = takeOverChanges(model_->aligned(), model_->side(Side::Left).script,
                                      model_->side(Side::Right).script, changes);
    if (taken.script.entryCount() > maxEntries) {
        const std::string most = std::to_string(maxEntries);
        return showMessage(
            this, {libraryText(state_.language, textid::reviewTooManyEntries, {most}),
                   "Quendra Script Editor", MessageIcon::Information, MessageButtons::Ok, false});
    }
    if (!editor_({std::move(taken.script), taken.at, textid::reviewTakeOverStep})) return;
    list_->setFocus();
    goToChangeFromHere();
}

void ReviewWindow::keep(ConflictChoice choice) {
    const auto change = currentChange();
    if (!change) return;
    const MergeConflict conflict = conflicts_[*change];
    Script script = resolved_.script;
    resolveConflict(script, conflict, choice);
    if (!editor_({std::move(script), conflict.start, textid::resolveConflictsToolTip})) return;
    list_->setFocus();
    goToChangeFromHere();
}

void ReviewWindow::present() {
    QWidget::show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

// What nobody sees any more is not kept, for it may hold secrets.
void ReviewWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    conflicts_.clear();
    resolved_ = {};
    fill({}, {}, {});
}

void ReviewWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    close();
}

}  // namespace quendra
