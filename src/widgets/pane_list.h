// The kind of list that the editor pane has four of: one line and one icon per row, at a cost that
// depends on the visible rows only.
#pragma once

#include <QElapsedTimer>
#include <QListView>

#include <vector>

namespace quendra {

/// What a list draws at the left of each row, apart from its text and never selected with it.
class RowGutter {
  public:
    RowGutter() = default;
    RowGutter(const RowGutter&) = delete;
    RowGutter& operator=(const RowGutter&) = delete;
    virtual ~RowGutter() = default;

    [[nodiscard]] virtual int width() const = 0;
    /// `area` is as wide as that, and as high as the row.
    virtual void paint(QPainter& painter, const QRect& area, int row) const = 0;
};

class PaneList : public QListView {
    Q_OBJECT

  public:
    /// Whether the tool tip of a row tells more than its line, and shows though that is not cut
    /// off.
    static constexpr int MoreInToolTip = Qt::UserRole;
    /// How bad the row's worst problem is, a number of Severity, whose sign is drawn over the row's
    /// icon.
    static constexpr int ProblemRole = Qt::UserRole + 1;

    explicit PaneList(QWidget* parent = nullptr);

    /// Ascending. Costs as much as there are selected rows, and nothing per row of the list.
    [[nodiscard]] std::vector<std::size_t> selectedRows() const;
    /// The focused row, -1 for none.
    [[nodiscard]] int focusedRow() const { return currentIndex().row(); }
    [[nodiscard]] bool isRowSelected(int row) const;

    /// Where a row stands in the viewport's coordinates, also a row out of sight.
    [[nodiscard]] QRect rowRect(int row) const;
    /// Paints a row as it looks when it is selected, at the painter's origin and no wider than its
    /// text; without its gutter, whose place stays free.
    void paintSelectedRow(QPainter& painter, int row) const;

    /// Has what is typed found anywhere in the rows, in the best place first. Otherwise rows begin
    /// with it, which takes no more than their texts: that is for lists of thousands.
    void setFindsAnywhere() { findsAnywhere_ = true; }
    void keyboardSearch(const QString& search) override;

    /// `gutter` outlives the list or is taken away again with null.
    void setGutter(const RowGutter* gutter);
    /// None: 0.
    [[nodiscard]] int gutterWidth() const { return gutter_ ? gutter_->width() : 0; }
    [[nodiscard]] const RowGutter* gutter() const { return gutter_; }

    /// What stands in the list while it has no rows.
    void setHint(const QString& hint);

    /// Lines across the list above these rows (the row count stands for the end of the list); a
    /// line out of sight shows at the edge nearest to it.
    void setLandingLines(std::vector<int> rows);
    [[nodiscard]] const std::vector<int>& landingLines() const { return landingLines_; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void paintHint(QPainter& painter) const;
    void paintLandingLines(QPainter& painter) const;

    std::vector<int> landingLines_;
    const RowGutter* gutter_ = nullptr;
    QString hint_;
    bool findsAnywhere_ = false;
    /// What has been typed without a rest, and when the last of it was.
    QString typed_;
    QElapsedTimer sinceTyped_;
};

}  // namespace quendra
