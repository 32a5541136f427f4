#include "app/pane/pane_gestures.h"

#include "app/pane/pane_lists.h"
#include "app/pane/pane_selection.h"
#include "widgets/pane_list.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <array>

namespace quendra {
namespace {

// What a double-click or Return asks for, by the number of the list.
constexpr std::array<EditorCommand, 1 + PaneLists::paletteCount> commandOfList = {
    EditorCommand::EditEntry, EditorCommand::InsertScriptEvent, EditorCommand::InsertLuFunction,
    EditorCommand::InsertMenuCommand};

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
    if ((event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && held == Qt::NoModifier) {
        // A key held down would insert, or open dialog after dialog.
        if (!event.isAutoRepeat() && list.focusedRow() >= 0) activate(lists_.numberOf(&list));
        return true;
    }
    if (upOrDown && held == Qt::ControlModifier && &list == &lists_.script()) {
        moveByOne(event.key() == Qt::Key_Up);
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
    // Beside the rows, a press chooses none, in a list of one choice too.
    if (!list.indexAt(event.position().toPoint()).isValid()) list.clearSelection();
    return false;
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
    QMetaObject::invokeMethod(
        this, [this, list] { Q_EMIT commandRequested(commandOfList[list]); }, Qt::QueuedConnection);
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
    applyMove(plan, movesOf(orderAfter(plan.steps, entryCount())));
}

void PaneGestures::moveByOne(bool up) {
    const std::vector<std::size_t> selected = lists_.script().selectedRows();
    if (selected.empty()) return;
    const int lead = static_cast<int>(up ? selected.front() : selected.back());
    const int focusedRow = lists_.script().focusedRow();
    const int focused = focusedRow >= 0 ? focusedRow : lead;
    const MovePlan plan = planMove(selected, focused, focused + (up ? -1 : 1), up, entryCount());
    const std::vector<EntryMove> moves = movesOf(orderAfter(plan.steps, entryCount()));
    if (!moves.empty()) applyMove(plan, moves);
}

void PaneGestures::applyMove(const MovePlan& plan, std::span<const EntryMove> moves) {
    Q_EMIT entriesAboutToMove();
    {
        const PaneSelection::QuietChange quiet(selection_);
        moveEntries(state_.script, moves);
        state_.currentIndex = plan.current;
        selection_.rebuild();
        std::vector<std::size_t> selected;
        for (const int entry : plan.selected) {
            if (entry >= 0 && entry < entryCount()) {
                selected.push_back(static_cast<std::size_t>(entry));
            }
        }
        selection_.select(selected, plan.focused);
    }
    Q_EMIT entriesMoved();
}

}  // namespace quendra
