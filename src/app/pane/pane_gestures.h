// What keys, clicks and drops do in the pane's lists: they ask for commands, and move entries.
#pragma once

#include "session/application_state.h"
#include "session/commands.h"
#include "session/drop_rules.h"

#include <QObject>

#include <span>
#include <vector>

class QKeyEvent;
class QMouseEvent;

namespace quendra {

class PaneList;
class PaneLists;
class PaneSelection;

class PaneGestures : public QObject {
    Q_OBJECT

  public:
    /// All outlive it.
    PaneGestures(ApplicationState& state, PaneLists& lists, PaneSelection& selection);

    /// Rows of the list of this number were dropped on the script list before `target`, above or
    /// below where the drag began. From a palette it asks for an insert there.
    void drop(int source, int target, bool up);

    /// True when a press is Ctrl+click on a Goto, which goes to its label, and nothing else.
    bool goesToLabel(PaneList& list, const QMouseEvent& event);

    /// Moves the selected entries by one; `goesOn` with the same key, held down. True when it moved
    /// something.
    bool moveByOne(bool up, bool goesOn);

  Q_SIGNALS:
    /// Emitted after the gesture's own event has been handled, never from inside it.
    void commandRequested(quendra::EditorCommand command);
    void entriesAboutToMove();
    /// `goesOn`: by the same key, held down, as those before.
    void entriesMoved(bool goesOn);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool pressKey(PaneList& list, QKeyEvent& event);
    bool pressMouse(PaneList& list, const QMouseEvent& event);
    bool doubleClick(PaneList& list, const QMouseEvent& event);
    void activate(std::size_t list);
    /// Has the command asked for as soon as the present event has been handled.
    void askFor(EditorCommand command);
    void applyMove(const MovePlan& plan, std::span<const EntryMove> moves, bool goesOn);
    [[nodiscard]] int entryCount() const { return static_cast<int>(state_.script.entryCount()); }

    ApplicationState& state_;
    PaneLists& lists_;
    PaneSelection& selection_;
    /// The last thing that happened is a move by a key, which may be held down.
    bool keyMoves_ = false;
};

}  // namespace quendra
