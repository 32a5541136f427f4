// Dragging rows of the pane's four lists onto the script list: from the press of the button to the
// drop, or to the end without one.
#pragma once

#include "session/drop_rules.h"

#include <QObject>
#include <QPoint>

#include <array>
#include <functional>
#include <memory>
#include <utility>

class QMouseEvent;

namespace quendra {

class DragImage;
class PaneList;

/// A drag holds the selected rows of the list it starts in. Until it ends the pointer is hidden and
/// belongs to the pane, the keyboard to the drag alone, and no list scrolls. Escape, a lost pointer
/// and a window that goes to the background end it without a drop.
class DragController : public QObject {
    Q_OBJECT

  public:
    /// `lists`: the script list, then the palettes; they are children of `pane`, and both outlive
    /// the controller.
    DragController(QWidget& pane, std::array<PaneList*, 4> lists);
    ~DragController() override;

    /// `takes` is asked at each press of the left button on a list: where it gives true, the press
    /// is used up, and no drag starts with it.
    void setOtherUse(std::function<bool(PaneList&, const QMouseEvent&)> takes) {
        otherUse_ = std::move(takes);
    }

    [[nodiscard]] bool isDragging() const { return phase_ == Phase::Dragging; }
    /// Ends a drag without a drop; nothing happens when none runs.
    void cancel();

  Q_SIGNALS:
    /// A drop that has a target (see dropTarget). `source` is the number of the list that the rows
    /// come from, `up` whether the pointer is higher on the screen than where the drag began. The
    /// drag is over already.
    void dropped(int source, int target, bool up);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Phase {
        Idle,
        /// The button went down on a row and has not moved far enough yet.
        Armed,
        Dragging,
        /// Nothing more comes of this press; its moves and its release are kept from the lists.
        Spent,
    };
    /// What the press would have done to the selection, had it not been kept for a drag.
    enum class HeldBack { Nothing, SelectOnly, Deselect };

    bool filterMouse(QObject* watched, QMouseEvent& event);
    bool press(PaneList& list, const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    void begin();
    void finish();
    void follow(QPoint pointer);
    void drop(QPoint pointer);
    void makeUpHeldBack();
    [[nodiscard]] PaneList* listOf(QObject* watched) const;
    [[nodiscard]] PaneList& source() const { return *lists_[source_]; }
    [[nodiscard]] Heading heading(QPoint pointer) const;
    [[nodiscard]] std::optional<int> targetAt(QPoint pointer) const;
    [[nodiscard]] std::vector<int> landing(std::optional<int> target, bool up) const;

    QWidget& pane_;
    std::array<PaneList*, 4> lists_;
    std::function<bool(PaneList&, const QMouseEvent&)> otherUse_;
    Phase phase_ = Phase::Idle;
    std::size_t source_ = 0;
    int pressedRow_ = -1;
    HeldBack heldBack_ = HeldBack::Nothing;
    /// Where the button went down, on the screen: a quick hand is already elsewhere when its first
    /// move is seen.
    QPoint start_;
    std::unique_ptr<DragImage> image_;
    /// What the mark in the script list was made for.
    std::pair<std::optional<int>, bool> marked_;
};

}  // namespace quendra
