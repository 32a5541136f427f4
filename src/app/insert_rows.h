// The rows of the panel that finds what can be inserted: a name with its icon, and quietly at the
// right the palette that has it.
#pragma once

#include "session/application_state.h"
#include "session/insert_search.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <array>
#include <vector>

namespace quendra {

class InsertRows : public QAbstractListModel {
    Q_OBJECT

  public:
    /// The title of the row's palette.
    static constexpr int PaletteRole = Qt::UserRole;

    /// `state` outlives the model.
    explicit InsertRows(ApplicationState& state, QObject* parent = nullptr);

    /// Takes the rows of the palettes as they are now, and shows all of them.
    void reload(const InsertionCounts& counts);
    /// Shows what fits, best first.
    void find(const QString& typed);
    [[nodiscard]] PaletteChoice choiceAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    ApplicationState& state_;
    InsertSearch search_;
    /// By the numbers of the offers.
    std::vector<int> bitmapIds_;
    std::array<QString, allPalettes.size()> titles_;
    std::vector<std::size_t> shown_;
};

class InsertRowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The same height for all rows; as wide as the list.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace quendra
