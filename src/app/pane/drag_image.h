// What is seen of a drag: the selected rows of a list, half transparent, held by the pointer.
#pragma once

#include <QPoint>
#include <QWidget>

#include <vector>

namespace quendra {

class PaneList;

/// A sheet over its parent that shows the rows one under the other, with the gaps of the rows
/// between them. Rows are painted where they show, so thousands cost no more than a screenful.
class DragImage : public QWidget {
    Q_OBJECT

  public:
    /// Lifts the selected rows of `source`, which is a descendant of `parent` and outlives the
    /// image. `grip` is the point of the parent at which the pointer took hold of them.
    DragImage(const PaneList& source, QPoint grip, QWidget* parent);

    /// Moves the rows along with the pointer, in the parent's coordinates.
    void follow(QPoint pointer);

    /// Where the first selected row would be seen if nothing were in the way, in the parent's
    /// coordinates.
    [[nodiscard]] QPoint origin() const { return origin_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const PaneList& source_;
    std::vector<std::size_t> rows_;
    QSize rowSize_;
    /// From the pointer to the upper left corner of the first selected row.
    QPoint offset_;
    QPoint origin_;
};

}  // namespace quendra
