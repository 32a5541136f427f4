// The gutter of the script list: the number of each step, and the jumps as arrows.
#pragma once

#include "session/live_check.h"
#include "widgets/pane_list.h"

#include <QCache>
#include <QStaticText>

namespace quendra {

class ScriptGutter : public RowGutter {
  public:
    /// Both outlive it, `check` may be null: then there are no jumps.
    ScriptGutter(const PaneList& list, const LiveCheck* check) : list_(list), check_(check) {}

    /// Rows, jumps or font are others: takes the width that they need.
    void refit();

    [[nodiscard]] int width() const override { return width_; }
    void paint(QPainter& painter, const QRect& area, int row) const override;

  private:
    [[nodiscard]] const QStaticText& laidOut(int number) const;
    void paintNumber(QPainter& painter, const QRect& area, int row) const;
    void paintJumps(QPainter& painter, const QRect& area, const StepJumps& jumps,
                    const QColor& colour) const;
    void paintFaults(QPainter& painter, const QRect& area, const StepJumps& jumps) const;
    [[nodiscard]] int laneX(const QRect& area, int lane) const;

    const PaneList& list_;
    const LiveCheck* check_;
    int width_ = 0;
    int numberWidth_ = 0;
    int digitWidth_ = 0;
    int digitHeight_ = 0;
    /// Laid out, which takes longer than painting: more than a screen has rows.
    mutable QCache<int, QStaticText> numbers_{200};
};

/// Text that keeps in the background: still easy to read on the palette's base, and on the mark of
/// what a search has found.
[[nodiscard]] QColor quietText(const QPalette& palette);

}  // namespace quendra
