#include "app/pane/drag_controller.h"

#include "app/pane/drag_image.h"
#include "widgets/pane_list.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

namespace quendra {

DragController::DragController(QWidget& pane, std::array<PaneList*, 4> lists)
    : pane_(pane), lists_(lists) {
    pane_.installEventFilter(this);
    for (PaneList* list : lists_) {
        list->installEventFilter(this);
        list->viewport()->installEventFilter(this);
    }
}

DragController::~DragController() {
    cancel();
}

void DragController::cancel() {
    if (isDragging()) finish();
}

bool DragController::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            return filterMouse(watched, static_cast<QMouseEvent&>(*event));
        case QEvent::Wheel: return isDragging();
        case QEvent::ShortcutOverride:
            // Taken as a plain key, it reaches the drag instead of a command of the window.
            if (isDragging()) event->accept();
            return isDragging();
        case QEvent::KeyPress:
            if (!isDragging()) return false;
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) cancel();
            return true;
        case QEvent::KeyRelease: return isDragging();
        case QEvent::FocusOut:
            if (isDragging() && watched == &source()) cancel();
            return false;
        case QEvent::WindowDeactivate:
        case QEvent::Hide:
            if (watched == &pane_) cancel();
            return false;
        default: return false;
    }
}

bool DragController::filterMouse(QObject* watched, QMouseEvent& event) {
    PaneList* const list = listOf(watched);
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            if (isDragging()) return true;
            if (!list || event.button() != Qt::LeftButton) return false;
            if (otherUse_ && otherUse_(*list, event)) {
                phase_ = Phase::Spent;
                return true;
            }
            return press(*list, event);
        case QEvent::MouseButtonDblClick:
            // The second press of a double-click starts no drag.
            if (phase_ == Phase::Idle && event.button() == Qt::LeftButton) phase_ = Phase::Spent;
            return isDragging();
        case QEvent::MouseMove: return move(event);
        default: return release(event);
    }
}

bool DragController::press(PaneList& list, const QMouseEvent& event) {
    const QModelIndex index = list.indexAt(event.position().toPoint());
    phase_ = Phase::Idle;
    heldBack_ = HeldBack::Nothing;
    if (!index.isValid()) return false;
    phase_ = Phase::Armed;
    source_ =
        static_cast<std::size_t>(std::find(lists_.begin(), lists_.end(), &list) - lists_.begin());
    pressedRow_ = index.row();
    start_ = event.globalPosition().toPoint();
    QItemSelectionModel& selection = *list.selectionModel();
    const bool toggles = event.modifiers().testFlag(Qt::ControlModifier);
    if (!selection.isSelected(index) || event.modifiers().testFlag(Qt::ShiftModifier)) return false;
    if (!toggles && list.selectedRows().size() < 2) return false;
    heldBack_ = toggles ? HeldBack::Deselect : HeldBack::SelectOnly;
    selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    return true;
}

bool DragController::move(const QMouseEvent& event) {
    if (phase_ == Phase::Idle) return false;
    if (!event.buttons().testFlag(Qt::LeftButton)) {
        // The release went elsewhere.
        cancel();
        phase_ = Phase::Idle;
        return false;
    }
    const QPoint pointer = event.globalPosition().toPoint();
    if (phase_ == Phase::Armed &&
        (pointer - start_).manhattanLength() >= QApplication::startDragDistance()) {
        begin();
    }
    if (isDragging()) follow(pointer);
    return true;
}

bool DragController::release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return isDragging();
    if (isDragging()) {
        finish();
        phase_ = Phase::Idle;
        drop(event.globalPosition().toPoint());
        return true;
    }
    const Phase phase = std::exchange(phase_, Phase::Idle);
    if (phase == Phase::Armed) makeUpHeldBack();
    return phase == Phase::Spent || (phase == Phase::Armed && heldBack_ != HeldBack::Nothing);
}

void DragController::begin() {
    phase_ = Phase::Spent;
    if (pane_.window()->focusWidget() != &source() || source().selectedRows().empty()) return;
    phase_ = Phase::Dragging;
    marked_ = {};
    QToolTip::hideText();
    QApplication::setOverrideCursor(Qt::BlankCursor);
    // Moves without a button are how a release that went elsewhere is noticed.
    pane_.setMouseTracking(true);
    pane_.grabMouse();
    image_ = std::make_unique<DragImage>(source(), pane_.mapFromGlobal(start_), &pane_);
}

void DragController::finish() {
    phase_ = Phase::Spent;
    image_.reset();
    lists_.front()->setLandingLines({});
    pane_.releaseMouse();
    pane_.setMouseTracking(false);
    QApplication::restoreOverrideCursor();
}

void DragController::follow(QPoint pointer) {
    image_->follow(pane_.mapFromGlobal(pointer));
    const std::pair<std::optional<int>, bool> aim = {targetAt(pointer),
                                                     heading(pointer) == Heading::Up};
    if (aim == marked_) return;
    marked_ = aim;
    lists_.front()->setLandingLines(landing(aim.first, aim.second));
}

void DragController::drop(QPoint pointer) {
    if (const std::optional<int> target = targetAt(pointer)) {
        Q_EMIT dropped(static_cast<int>(source_), *target, heading(pointer) == Heading::Up);
    }
}

void DragController::makeUpHeldBack() {
    const QModelIndex index = source().model()->index(pressedRow_, 0);
    switch (heldBack_) {
        case HeldBack::Nothing: return;
        case HeldBack::SelectOnly: source().setCurrentIndex(index); return;
        case HeldBack::Deselect:
            source().selectionModel()->select(index, QItemSelectionModel::Deselect);
            return;
    }
}

PaneList* DragController::listOf(QObject* watched) const {
    const auto list = std::find_if(lists_.begin(), lists_.end(), [&](const PaneList* candidate) {
        return candidate->viewport() == watched;
    });
    return list == lists_.end() ? nullptr : *list;
}

Heading DragController::heading(QPoint pointer) const {
    if (pointer.y() < start_.y()) return Heading::Up;
    return pointer.y() > start_.y() ? Heading::Down : Heading::Level;
}

std::optional<int> DragController::targetAt(QPoint pointer) const {
    // A palette's frame may stand a pixel below the client area of the script list.
    for (std::size_t i = 1; i < lists_.size(); ++i) {
        if (lists_[i]->rect().contains(lists_[i]->mapFromGlobal(pointer))) return std::nullopt;
    }
    const PaneList& script = *lists_.front();
    const QWidget& client = *script.viewport();
    const QPoint point = client.mapFromGlobal(pointer);
    const int entry = client.rect().contains(point) ? script.indexAt(point).row() : -1;
    return dropTarget(
        {point.x(), point.y(), client.width(), client.height(), entry, heading(pointer)},
        script.model()->rowCount());
}

std::vector<int> DragController::landing(std::optional<int> target, bool up) const {
    if (!target || *target < 0) return {};
    if (source_ != 0) return {*target};
    const int focused = source().focusedRow();
    if (focused == *target) return {};
    const int count = source().model()->rowCount();
    const std::vector<std::size_t> selected = source().selectedRows();
    const MovePlan plan = planMove(selected, focused, *target, up, count);
    return landingRows(orderAfter(plan.steps, count), selected);
}

}  // namespace quendra
