#include "help/search_results.h"

#include "widgets/tool_tip.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

constexpr int besideText = 8;
constexpr int aboveText = 5;
constexpr int betweenLines = 2;

QFont titleFont(const QFont& font) {
    QFont bold = font;
    bold.setWeight(QFont::DemiBold);
    return bold;
}

}  // namespace

QString lineFromWord(const QString& line, const QStringList& words) {
    constexpr qsizetype shownBefore = 16;
    qsizetype first = line.size();
    for (const QString& word : words) {
        const qsizetype at = line.indexOf(word, 0, Qt::CaseInsensitive);
        if (at >= 0) first = std::min(first, at);
    }
    if (first == line.size() || first <= shownBefore) return line;
    const qsizetype blank = line.indexOf(u' ', first - shownBefore);
    const qsizetype from = blank >= 0 && blank < first ? blank + 1 : first;
    return u'\u2026' + line.mid(from);
}

void SearchResults::setHits(std::vector<SearchHit> hits) {
    beginResetModel();
    hits_ = std::move(hits);
    endResetModel();
}

int SearchResults::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(hits_.size());
}

QVariant SearchResults::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const SearchHit& found = hit(index.row());
    switch (role) {
        case Qt::DisplayRole: return found.title;
        case Qt::ToolTipRole: return wrappingToolTip(found.line);
        case Qt::UserRole: return found.line;
        case Qt::AccessibleTextRole:
            return QString(found.title + QStringLiteral(": ") + found.line);
        default: return {};
    }
}

void SearchResultDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QWidget* list = option.widget;
    const QStyle* style = list != nullptr ? list->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, list);

    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool active = list == nullptr || list->hasFocus();
    const QPalette::ColorGroup group = active ? QPalette::Active : QPalette::Inactive;
    const QColor colour =
        option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QRect text = option.rect.adjusted(besideText, aboveText, -besideText, -aboveText);
    const auto drawLine = [&](const QString& line, const QFont& font, int top, qreal opacity) {
        const QFontMetrics metrics(font);
        painter->setFont(font);
        painter->setPen(colour);
        painter->setOpacity(opacity);
        painter->drawText(QRect(text.left(), top, text.width(), metrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(line, Qt::ElideRight, text.width()));
    };
    painter->save();
    const QFont bold = titleFont(option.font);
    drawLine(index.data().toString(), bold, text.top(), 1);
    drawLine(lineFromWord(index.data(Qt::UserRole).toString(), words_), option.font,
             text.top() + QFontMetrics(bold).height() + betweenLines, selected ? 1 : 0.8);
    painter->restore();
}

QSize SearchResultDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const int lines =
        QFontMetrics(titleFont(option.font)).height() + QFontMetrics(option.font).height();
    return {0, lines + betweenLines + 2 * aboveText};
}

}  // namespace quendra
