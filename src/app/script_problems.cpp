#include "app/script_problems.h"

#include "app/problems_panel.h"
#include "text/text_ids.h"
#include "widgets/problem_sign.h"
#include "widgets/ui_text.h"

#include <QMainWindow>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include <utility>

namespace quendra {

namespace {

/// After a change: longer than a window takes to be painted, shorter than anybody waits for a mark.
constexpr int checkDelayMs = 20;

constexpr StateKey listKey = {"View", "Problems"};

}  // namespace

ScriptProblems::ScriptProblems(ApplicationState& state, EditorPane& pane, QAction& quickFix,
                               QMainWindow& window)
    : QObject(&window),
      state_(state),
      pane_(pane),
      check_(state),
      panel_(new ProblemsPanel(check_, state.language, quickFix, &window)),
      count_(new QToolButton(&window)),
      soon_(new QTimer(this)) {
    window.addDockWidget(Qt::BottomDockWidgetArea, panel_);
    panel_->setVisible(state.userState.flag(listKey, false));
    connect(panel_, &ProblemsPanel::chosen, this, &ScriptProblems::choose);
    connect(panel_, &ProblemsPanel::closeRequested, this, [this] { setListShown(false); });
    count_->setObjectName(QStringLiteral("problemCount"));
    count_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    count_->setAutoRaise(true);
    // A button would make the status bar higher, at the cost of the pane.
    count_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    count_->setToolTip(qtText(libraryText(state.language, textid::showProblems)));
    window.statusBar()->addPermanentWidget(count_);
    connect(count_, &QToolButton::clicked, this, [this] { setListShown(true); });
    soon_->setSingleShot(true);
    connect(soon_, &QTimer::timeout, this, &ScriptProblems::checkNow);
    connect(&pane, &EditorPane::selectionChanged, this, &ScriptProblems::followEntry);
    pane.showFindings(check_);
    panel_->reload(std::nullopt);
    showCount();
}

void ScriptProblems::checkSoon() {
    if (check_.follow()) {
        pane_.showFindings(check_);
        current_.reset();
        followEntry();
        panel_->reload(current_);
    }
    // Not put off by the next change: a held key would put it off for good.
    if (!soon_->isActive()) soon_->start(checkDelayMs);
}

void ScriptProblems::checkNow() {
    soon_->stop();
    const LiveCheck::Change change = check_.update();
    if (change == LiveCheck::Change::None) return;
    if (change == LiveCheck::Change::Marks) pane_.showFindings(check_);
    // Findings before it may have come or gone.
    current_.reset();
    followEntry();
    panel_->reload(current_);
    showCount();
    Q_EMIT changed();
}

void ScriptProblems::showCount() {
    const std::string counts = check_.counts();
    count_->setVisible(!counts.empty());
    if (counts.empty()) return;
    const bool hasErrors = check_.count(Severity::Error) > 0;
    count_->setIcon(problemIcon(hasErrors ? Severity::Error : Severity::Warning));
    count_->setText(qtText(counts));
    count_->setAccessibleName(count_->text());
}

// The current finding is one of the focused entry's, so that list, keys and fix mean the same.
void ScriptProblems::followEntry() {
    if (goes_) return;
    const int entry = pane_.focusedEntry();
    const auto here =
        entry < 0 ? std::span<const Finding>() : check_.findingsOf(static_cast<std::size_t>(entry));
    if (here.empty()) {
        current_.reset();
    } else {
        const auto first = static_cast<std::size_t>(here.data() - check_.findings().data());
        const bool isHere = current_ && *current_ >= first && *current_ < first + here.size();
        if (!isHere) current_ = first;
    }
    panel_->setCurrent(current_);
}

void ScriptProblems::choose(std::size_t finding, bool leaves) {
    static_cast<void>(goTo(finding));
    if (leaves) pane_.takeFocus();
}

std::string ScriptProblems::goToNext() {
    checkNow();
    return goTo(nextFinding(check_.findings(), pane_.focusedEntry(), current_));
}

std::string ScriptProblems::goToPrevious() {
    checkNow();
    return goTo(previousFinding(check_.findings(), pane_.focusedEntry(), current_));
}

std::string ScriptProblems::goTo(std::optional<std::size_t> finding) {
    if (!finding) return libraryText(state_.language, textid::noProblems);
    if (*finding >= check_.findings().size()) return {};
    const Finding& found = check_.findings()[*finding];
    const std::size_t entries[] = {found.place.step};
    current_ = finding;
    const bool went = std::exchange(goes_, true);
    if (found.place.step < state_.script.entryCount())
        pane_.selectEntries(entries, static_cast<int>(found.place.step));
    goes_ = went;
    panel_->setCurrent(current_);
    Q_EMIT changed();
    return check_.told(found);
}

void ScriptProblems::setListShown(bool shown) {
    panel_->setVisible(shown);
    state_.userState.setFlag(listKey, shown);
    if (shown) {
        panel_->takeFocus();
    } else {
        pane_.takeFocus();
    }
    Q_EMIT changed();
}

void ScriptProblems::toggleList() {
    setListShown(panel_->isHidden());
}

QuickFixOffer ScriptProblems::offer() const {
    const int entry = pane_.focusedEntry();
    QuickFixOffer offer{std::nullopt, entry < 0 ? textid::noProblems : textid::fixNothingHere};
    if (!current_ || entry < 0 || *current_ >= check_.findings().size()) return offer;
    const auto fixOf = [this](const Finding& finding) {
        return quickFixFor(finding, check_.outline(), state_.script);
    };
    offer = fixOf(check_.findings()[*current_]);
    for (const Finding& other : check_.findingsOf(static_cast<std::size_t>(entry))) {
        if (offer.fix) break;
        if (auto another = fixOf(other); another.fix) offer = std::move(another);
    }
    return offer;
}

QuickFixOffer ScriptProblems::quickFix() {
    checkNow();
    return offer();
}

void ScriptProblems::addFacts(CommandFacts& facts) const {
    const QuickFixOffer offered = offer();
    if (offered.fix) {
        facts.quickFix = quickFixName(*offered.fix, state_.language);
    } else {
        facts.whyNoQuickFix = libraryText(state_.language, offered.whyNot);
    }
    facts.hasConflicts = check_.hasConflicts();
    facts.problemsAreShown = !panel_->isHidden();
}

}  // namespace quendra
