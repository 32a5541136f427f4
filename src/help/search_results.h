// What a search of the manual found, as a list of pages with the line that was found below each.
#pragma once

#include "help/manual.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <vector>

namespace quendra {

class SearchResults : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    void setHits(std::vector<SearchHit> hits);
    [[nodiscard]] const SearchHit& hit(int row) const {
        return hits_[static_cast<std::size_t>(row)];
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<SearchHit> hits_;
};

/// Draws two lines a row, the second one from shortly before the first word that was found.
class SearchResultDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setWords(const QStringList& words) { words_ = words; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

  private:
    QStringList words_;
};

/// The part of a line to show: all of it, or the rest from a whole word before the first of
/// `words` on, with an ellipsis in front.
[[nodiscard]] QString lineFromWord(const QString& line, const QStringList& words);

}  // namespace quendra
