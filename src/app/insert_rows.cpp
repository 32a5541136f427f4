#include "app/insert_rows.h"

#include "text/text_ids.h"
#include "widgets/palette_model.h"
#include "widgets/symbol_icon.h"
#include "widgets/ui_text.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

constexpr int gapBeforeTitle = 12;
constexpr int marginBehindTitle = 6;
constexpr int rowMargins = 6;

}  // namespace

InsertRows::InsertRows(ApplicationState& state, QObject* parent)
    : QAbstractListModel(parent), state_(state), search_({}, {}) {
    for (const Palette palette : allPalettes) {
        titles_[static_cast<std::size_t>(palette)] =
            qtText(libraryText(state.language, paletteInfo(palette).titleId));
    }
}

void InsertRows::reload(const InsertionCounts& counts) {
    std::vector<InsertSearch::Offer> offers;
    bitmapIds_.clear();
    const LuCatalogue& luFunctions = state_.luCatalogues.of(state_.currentHostType);
    for (const Palette palette : allPalettes) {
        int row = 0;
        for (const PaletteRow& offered : paletteRows(palette, luFunctions, state_.menuCommands)) {
            const PaletteChoice choice{palette, row++};
            offers.push_back(
                {choice, insertionId(choice, state_.currentHostType, luFunctions), offered.text});
            bitmapIds_.push_back(offered.bitmapId);
        }
    }
    search_ = InsertSearch(std::move(offers), counts);
    find({});
}

void InsertRows::find(const QString& typed) {
    beginResetModel();
    shown_ = search_.find(typed);
    endResetModel();
}

PaletteChoice InsertRows::choiceAt(int row) const {
    return search_.offer(shown_[static_cast<std::size_t>(row)]).choice;
}

int InsertRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant InsertRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const std::size_t number = shown_[static_cast<std::size_t>(index.row())];
    const InsertSearch::Offer& offer = search_.offer(number);
    const QString& title = titles_[static_cast<std::size_t>(offer.choice.palette)];
    switch (role) {
        case Qt::DisplayRole: return offer.name;
        case Qt::DecorationRole: return bitmapIcon(bitmapIds_[number]);
        case Qt::AccessibleTextRole:
            return qtText(libraryText(state_.language, textid::insertByNameRow,
                                      {offer.name.toStdString(), title.toStdString()}));
        case PaletteRole: return title;
        default: return {};
    }
}

QSize InsertRowDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& /*index*/) const {
    return {0, std::max(option.decorationSize.height(), option.fontMetrics.height()) + rowMargins};
}

void InsertRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString title = index.data(InsertRows::PaletteRole).toString();
    const int titleWidth = row.fontMetrics.horizontalAdvance(title) + marginBehindTitle;
    const QRect text =
        row.widget->style()->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    const int room = row.rect.right() - text.left() - titleWidth - gapBeforeTitle;
    row.text = row.fontMetrics.elidedText(row.text, Qt::ElideRight, room);
    row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(
        row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText));
    painter->drawText(row.rect.adjusted(0, 0, -marginBehindTitle, 0),
                      Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, title);
    painter->restore();
}

}  // namespace quendra
