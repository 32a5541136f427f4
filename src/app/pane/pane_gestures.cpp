#include "app/pane/pane_gestures.h"

#include "app/pane/pane_lists.h"
#include "app/pane/pane_selection.h"
#include "widgets/pane_list.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace quendra {
namespace {

// What a double-click or Return asks for, by the number of the list.
EditorCommand commandOfList(std::size_t list) {
    return list == 0 ? EditorCommand::EditEntry : insertCommand(allPalettes[list - 1]);
}

Qt::KeyboardModifiers heldModifiers(const QKeyEvent& event) {
    return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

}  // namespace

PaneGestures::PaneGestures(ApplicationState& state, PaneLists& lists, PaneSelection& selection)
    : state_(state), lists_(lists), selection_(selection) {
    for (PaneList* list : lists.all()) {
        list->installEventFilter(this);
        list->viewport()->installEventFilter(this);
    }
    connect(&selection, &PaneSelection::rebuilt, this, [this] { keyMoves_ = false; });
}

bool PaneGestures::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress: {
            const std::size_t number = lists_.numberOf(watched);
            return number < lists_.all().size() &&
                   pressKey(*lists_.all()[number], static_cast<QKeyEvent&>(*event));
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick: {
            keyMoves_ = false;
            const std::size_t number = lists_.numberOf(watched->parent());
            return number < lists_.all().size() &&
                   pressMouse(*lists_.all()[number], static_cast<QMouseEvent&>(*event));
        }
        default: return false;
    }
}

bool PaneGestures::pressKey(PaneList& list, QKeyEvent& event) {
    const Qt::KeyboardModifiers held = heldModifiers(event);
    const bool upOrDown = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    const bool keptMoving = std::exchange(keyMoves_, false) && event.isAutoRepeat();
    if ((event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && held == Qt::NoModifier) {
        // A key held down would insert, or open dialog after dialog.
        if (!event.isAutoRepeat() && list.focusedRow() >= 0) activate(lists_.numberOf(&list));
        return true;
    }
    if (upOrDown && held == Qt::ControlModifier && &list == &lists_.script()) {
        keyMoves_ = moveByOne(event.key() == Qt::Key_Up, keptMoving);
        return true;
    }
    const bool isPlain = !(held & ~Qt::KeyboardModifiers(Qt::ShiftModifier));
    if (isPlain && event.text() == QLatin1String("/") && &list == &lists_.script()) {
        if (!event.isAutoRepeat()) askFor(EditorCommand::InsertByName);
        return true;
    }
    if (event.matches(QKeySequence::SelectAll) && &list != &lists_.script()) {
        // After an insert from a palette that is still meant for the script.
        lists_.script().setFocus();
        lists_.script().selectAll();
        return true;
    }
    if (event.matches(QKeySequence::Copy)) {
        // The base class would copy the line to the system clipboard.
        event.ignore();
        return true;
    }
    return false;
}

bool PaneGestures::pressMouse(PaneList& list, const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return false;
    if (event.type() == QEvent::MouseButtonDblClick) return doubleClick(list, event);
    // Beside the rows, a press chooses none, in a list of one choice too; one that was to add to
    // the selection leaves it.
    const bool adds = event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    if (!adds && !list.indexAt(event.position().toPoint()).isValid()) list.clearSelection();
    return false;
}

// With several entries selected, the click adds one more to them, as anywhere else.
bool PaneGestures::goesToLabel(PaneList& list, const QMouseEvent& event) {
    if (&list != &lists_.script() || event.modifiers() != Qt::ControlModifier) return false;
    const QModelIndex index = list.indexAt(event.position().toPoint());
    if (!index.isValid() || list.selectedRows().size() > 1) return false;
    const auto row = static_cast<std::size_t>(index.row());
    if (state_.script.entries[row].code() != CommandCode::Goto) return false;
    list.setCurrentIndex(index);
    list.selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    askFor(EditorCommand::GoToLabel);
    return true;
}

bool PaneGestures::doubleClick(PaneList& list, const QMouseEvent& event) {
    const QModelIndex index = list.indexAt(event.position().toPoint());
    if (!index.isValid()) return false;
    // The two clicks may have hit neighbouring rows.
    if (list.currentIndex() != index || !list.isRowSelected(index.row())) {
        list.setCurrentIndex(index);
    }
    activate(lists_.numberOf(&list));
    return true;
}

void PaneGestures::activate(std::size_t list) {
    askFor(commandOfList(list));
}

void PaneGestures::askFor(EditorCommand command) {
    QMetaObject::invokeMethod(
        this, [this, command] { Q_EMIT commandRequested(command); }, Qt::QueuedConnection);
}

void PaneGestures::drop(int source, int target, bool up) {
    state_.currentIndex = target;
    if (target < 0) return;
    if (source != 0) {
        state_.dropPending = true;
        activate(static_cast<std::size_t>(source));
        return;
    }
    state_.dropPending = false;
    const int focused = lists_.script().focusedRow();
    if (focused == target) return;
    const MovePlan plan =
        planMove(lists_.script().selectedRows(), focused, target, up, entryCount());
    applyMove(plan, movesOf(orderAfter(plan.steps, entryCount())), false);
}

bool PaneGestures::moveByOne(bool up, bool goesOn) {
    const std::vector<std::size_t> selected = lists_.script().selectedRows();
    if (selected.empty()) return false;
    const int lead = static_cast<int>(up ? selected.front() : selected.back());
    const int focusedRow = lists_.script().focusedRow();
    const int focused = focusedRow >= 0 ? focusedRow : lead;
    const MovePlan plan = planMove(selected, focused, focused + (up ? -1 : 1), up, entryCount());
    const std::vector<EntryMove> moves = movesOf(orderAfter(plan.steps, entryCount()));
    if (!moves.empty()) applyMove(plan, moves, goesOn);
    return !moves.empty();
}

void PaneGestures::applyMove(const MovePlan& plan, std::span<const EntryMove> moves, bool goesOn) {
    Q_EMIT entriesAboutToMove();
    {
        const PaneSelection::QuietChange quiet(selection_);
        moveEntries(state_.script, moves);
        // The one entry that has to be in sight: shown first, another one would have the list jump.
        state_.currentIndex = plan.focused >= 0 ? plan.focused : plan.current;
        selection_.rebuild();
        std::vector<std::size_t> selected;
        for (const int entry : plan.selected) {
            if (entry >= 0 && entry < entryCount()) {
                selected.push_back(static_cast<std::size_t>(entry));
            }
        }
        selection_.select(selected, plan.focused);
    }
    Q_EMIT entriesMoved(goesOn);
}

}  // namespace quendra
