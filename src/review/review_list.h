// The list of a comparison: each row shows both sides, so that one scroll bar and one set of keys
// move them together.
#pragma once

#include "review/review_model.h"

#include <QListView>
#include <QPalette>

namespace quendra {

class ReviewList : public QListView {
    Q_OBJECT

  public:
    /// `model` outlives the list.
    explicit ReviewList(ReviewModel& model, QWidget* parent = nullptr);

    /// The focused row, -1 for none.
    [[nodiscard]] int focusedRow() const { return currentIndex().row(); }
    /// Selects and focuses one row, with a few others around it in sight.
    void goToRow(int row);

    /// Where the columns stand in a row of this width: the headings above the list follow them.
    struct Columns {
        int half;
        int gutter;
    };
    [[nodiscard]] Columns columns(int width) const;

  protected:
    void changeEvent(QEvent* event) override;
};

/// The ground behind a step of a kind, and the text on it where the other side has none.
[[nodiscard]] QColor reviewGround(const QPalette& palette, RowKind kind);
[[nodiscard]] QColor reviewQuietText(const QPalette& palette);

}  // namespace quendra
