#include "app/step_bar.h"

#include "text/text_ids.h"
#include "widgets/status_line.h"
#include "widgets/ui_text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMainWindow>
#include <QRegularExpression>
#include <QStatusBar>

#include <algorithm>
#include <optional>
#include <string>

namespace quendra {

namespace {

constexpr int longestNumber = 12;

// "1,234" and "1 234" are numbers too, whoever writes them so; "1.5" is none.
std::optional<std::size_t> numberIn(const QString& text) {
    static const QRegularExpression number(
        QStringLiteral("^(?:\\d+|\\d{1,3}(?:[\\s,.'\u2019]\\d{3})+)$"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QString trimmed = text.trimmed();
    if (!number.match(trimmed).hasMatch()) return std::nullopt;
    std::size_t value = 0;
    for (const QChar c : trimmed) {
        if (c.isDigit()) value = value * 10 + static_cast<std::size_t>(c.digitValue());
    }
    return value;
}

// The user's own way where it is one of the window's language; a machine that has none would write
// numbers without groups.
QLocale localeOf(const ApplicationState& state) {
    const std::string language = state.language.language();
    const QLocale wanted(language.empty() ? QStringLiteral("en") : qtText(language));
    const QLocale own;
    return own.language() == wanted.language() ? own : wanted;
}

}  // namespace

StepBar::StepBar(ApplicationState& state, EditorPane& pane, QMainWindow& window)
    : QToolBar(&window),
      state_(state),
      pane_(pane),
      prompt_(new QLabel(this)),
      edit_(new QLineEdit(this)),
      refusal_(new StatusLine(this)),
      position_(new QLabel(&window)) {
    build();
    hide();
    position_->setObjectName(QStringLiteral("stepPosition"));
    position_->setContentsMargins(4, 0, 4, 0);
    window.statusBar()->addPermanentWidget(position_);
    connect(&pane, &EditorPane::selectionChanged, this, &StepBar::showPosition);
    showPosition();
}

void StepBar::build() {
    const QString name = qtText(libraryText(state_.language, textid::goToStepToolTip));
    setObjectName(QStringLiteral("stepBar"));
    setAccessibleName(name);
    setMovable(false);
    prompt_->setObjectName(QStringLiteral("stepPrompt"));
    edit_->setObjectName(QStringLiteral("stepNumber"));
    edit_->setAccessibleName(name);
    edit_->setMaxLength(longestNumber);
    edit_->setFixedWidth(longestNumber * fontMetrics().averageCharWidth());
    edit_->installEventFilter(this);
    refusal_->setObjectName(QStringLiteral("stepRefusal"));
    // As one widget: of a bar that is too narrow, a tool bar would hide the parts at the end.
    auto* whole = new QWidget(this);
    whole->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout(whole);
    row->setContentsMargins(4, 0, 4, 0);
    row->addWidget(prompt_);
    row->addWidget(edit_);
    row->addWidget(refusal_, 1);
    addWidget(whole);
    connect(edit_, &QLineEdit::textEdited, refusal_, [this] { refusal_->setLine({}); });
}

void StepBar::showPosition() {
    const int focused = pane_.focusedEntry();
    position_->setVisible(focused >= 0);
    if (focused < 0) return;
    const QLocale locale = localeOf(state_);
    const auto grouped = [&locale](std::size_t number) {
        return locale.toString(qulonglong{number}).toStdString();
    };
    position_->setText(qtText(libraryText(
        state_.language, textid::stepPosition,
        {grouped(static_cast<std::size_t>(focused) + 1), grouped(state_.script.entryCount())})));
}

void StepBar::open() {
    const std::size_t count = state_.script.entryCount();
    if (count == 0) return;
    prompt_->setText(
        qtText(libraryText(state_.language, textid::goToStepPrompt, {std::to_string(count)})));
    refusal_->setLine({});
    edit_->setText(QString::number(std::max(pane_.focusedEntry(), 0) + 1));
    show();
    edit_->setFocus();
    edit_->selectAll();
}

void StepBar::close() {
    hide();
    pane_.takeFocus();
}

void StepBar::go() {
    const std::size_t count = state_.script.entryCount();
    const auto number = numberIn(edit_->text());
    if (!number || *number < 1 || *number > count) {
        refusal_->setLine(
            qtText(libraryText(state_.language, textid::goToStepRefused,
                               {edit_->text().toStdString(), std::to_string(count)})));
        edit_->selectAll();
        return;
    }
    const std::size_t entries[] = {*number - 1};
    pane_.selectEntries(entries, static_cast<int>(*number - 1));
    close();
}

bool StepBar::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        // Not when a menu or another window takes it for a while.
        const Qt::FocusReason reason = static_cast<const QFocusEvent&>(*event).reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) hide();
        return false;
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!isReturn && key.key() != Qt::Key_Escape) return false;
    if (event->type() == QEvent::ShortcutOverride) {
        // Another bar closes by this key too.
        event->accept();
    } else if (isReturn) {
        go();
    } else {
        close();
    }
    return true;
}

}  // namespace quendra
