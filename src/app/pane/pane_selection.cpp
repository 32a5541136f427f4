#include "app/pane/pane_selection.h"

#include "app/pane/pane_lists.h"
#include "app/pane/script_list_model.h"
#include "widgets/pane_list.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QScrollBar>

namespace quendra {
namespace {

QItemSelection selectionOf(const QAbstractItemModel& model, std::span<const std::size_t> rows) {
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) {
            ++last;
        }
        selection.append(QItemSelectionRange(model.index(static_cast<int>(rows[first]), 0),
                                             model.index(static_cast<int>(rows[last]), 0)));
        first = last + 1;
    }
    return selection;
}

}  // namespace

PaneSelection::QuietChange::QuietChange(PaneSelection& selection) : selection_(selection) {
    ++selection_.quietChanges_;
}

PaneSelection::QuietChange::~QuietChange() {
    if (--selection_.quietChanges_ == 0) Q_EMIT selection_.changed();
}

PaneSelection::PaneSelection(ApplicationState& state, PaneLists& lists)
    : state_(state), lists_(lists), lastFocused_(&lists.script()) {
    for (PaneList* list : lists.all()) {
        watch(*list);
    }
}

void PaneSelection::watch(PaneList& list) {
    list.installEventFilter(this);
    const QItemSelectionModel* selection = list.selectionModel();
    const auto tell = [this] {
        if (quietChanges_ == 0) Q_EMIT changed();
    };
    connect(selection, &QItemSelectionModel::selectionChanged, this, tell);
    connect(selection, &QItemSelectionModel::currentChanged, this,
            [this, tell, &list](const QModelIndex& current) {
                const bool ofScript = &list == &lists_.script();
                if (ofScript && current.isValid() && quietChanges_ == 0) {
                    state_.currentIndex = current.row();
                }
                tell();
            });
}

bool PaneSelection::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) lastFocused_ = static_cast<PaneList*>(watched);
    return false;
}

void PaneSelection::rebuild() {
    const QuietChange quiet(*this);
    Q_EMIT aboutToChange();
    PaneList& list = lists_.script();
    const int scrolled = list.verticalScrollBar()->value();
    lists_.scriptModel().reload();
    if (const auto shown = lastTransferShown(state_.script, state_.cipher)) {
        state_.workingTransfer = *shown;
    }
    list.doItemsLayout();
    list.verticalScrollBar()->setValue(scrolled);
    const QModelIndex current = lists_.scriptModel().index(state_.currentIndex, 0);
    if (current.isValid()) {
        list.selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
        list.scrollTo(current);
    }
    Q_EMIT rebuilt();
}

void PaneSelection::select(std::span<const std::size_t> entries, int focused) {
    const QuietChange quiet(*this);
    Q_EMIT aboutToChange();
    PaneList& list = lists_.script();
    QItemSelectionModel& selection = *list.selectionModel();
    const QModelIndex current = lists_.scriptModel().index(focused, 0);
    if (current.isValid()) {
        selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        state_.currentIndex = focused;
        list.scrollTo(current);
    } else {
        selection.clearCurrentIndex();
    }
    selection.select(selectionOf(lists_.scriptModel(), entries),
                     QItemSelectionModel::ClearAndSelect);
}

void PaneSelection::show(const EntrySelection& selection) {
    const QuietChange quiet(*this);
    rebuild();
    select(selection.entries, selection.focused);
}

}  // namespace quendra
