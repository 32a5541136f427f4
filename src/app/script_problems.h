// What checks find, in the window: marks in the script list, the number in the status bar, the list
// of problems, and the way from one to the next.
#pragma once

#include "app/pane/editor_pane.h"
#include "session/command_rules.h"
#include "session/live_check.h"
#include "session/quick_fix.h"

#include <QObject>

#include <optional>

class QAction;
class QMainWindow;
class QTimer;
class QToolButton;

namespace quendra {

class ProblemsPanel;

class ScriptProblems : public QObject {
    Q_OBJECT

  public:
    /// All outlive it. `quickFix` is the action of that command.
    ScriptProblems(ApplicationState& state, EditorPane& pane, QAction& quickFix,
                   QMainWindow& window);

    /// The script has become another one: looks at it before it is painted.
    void checkNow();
    /// The script has been changed: looks at it when that has been painted. Until then what was
    /// found stays with its steps.
    void checkSoon();

    /// Goes to the next finding or the one before; gives what to say of it.
    [[nodiscard]] std::string goToNext();
    [[nodiscard]] std::string goToPrevious();
    /// Shows the list, with the focus, or hides it.
    void toggleList();
    /// For the finding at the focused entry: that chosen last, or else the first with a fix.
    [[nodiscard]] QuickFixOffer quickFix();
    /// Adds what commands go by.
    void addFacts(CommandFacts& facts) const;

  Q_SIGNALS:
    /// What addFacts gives may have become other.
    void changed();

  private:
    void setListShown(bool shown);
    void show();
    void followEntry();
    void choose(std::size_t finding, bool leaves);
    [[nodiscard]] std::string goTo(std::optional<std::size_t> finding);
    void showCount();
    [[nodiscard]] QuickFixOffer offer() const;

    ApplicationState& state_;
    EditorPane& pane_;
    LiveCheck check_;
    ProblemsPanel* panel_;
    QToolButton* count_;
    QTimer* soon_;
    /// The finding that was reached last.
    std::optional<std::size_t> current_;
    /// It is this that changes the focused entry.
    bool goes_ = false;
};

}  // namespace quendra
