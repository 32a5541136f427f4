#include "review/review_list.h"

#include "widgets/editor_style.h"

#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace quendra {

namespace {

constexpr int smallestIcon = 16;
constexpr int gap = 6;

QColor mixed(const QColor& ground, const QColor& over, double part) {
    const auto between = [part](int from, int to) {
        return static_cast<int>(from + (to - from) * part);
    };
    return {between(ground.red(), over.red()), between(ground.green(), over.green()),
            between(ground.blue(), over.blue())};
}

QRgb hueOf(RowKind kind) {
    switch (kind) {
        case RowKind::Same: break;
        case RowKind::Changed: return 0xffe0a000;
        case RowKind::Gone: return 0xffd6403c;
        case RowKind::New: return 0xff2fa84f;
        case RowKind::MovedAway:
        case RowKind::MovedHere: return 0xff2f7fe0;
        case RowKind::Conflict: return 0xffb04ac8;
    }
    return 0;
}

// Cut before it is laid out, for lines can be thousands of characters long.
QString fitting(const QString& line, const QFontMetrics& metrics, int width) {
    const auto most = static_cast<qsizetype>(std::max(width, 0) / 2 + 1);
    return metrics.elidedText(line.size() > most ? line.left(most) + QChar(0x2026) : line,
                              Qt::ElideRight, width);
}

class ReviewDelegate : public QStyledItemDelegate {
  public:
    ReviewDelegate(const ReviewModel& model, ReviewList& list)
        : QStyledItemDelegate(&list), model_(model), list_(list) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& /*index*/) const override {
        return {0, std::max(option.decorationSize.height(), option.fontMetrics.height()) + 4};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        const ReviewList::Columns columns = list_.columns(option.rect.width());
        QRect left = option.rect;
        left.setWidth(columns.half);
        QRect right = option.rect;
        right.setLeft(option.rect.right() + 1 - columns.half);
        const QRect between(left.right() + 1, left.top(), right.left() - left.right() - 1,
                            left.height());
        const Look look = lookOf(option);
        painter->fillRect(option.rect, look.isSelected ? look.ground : look.sheet);
        paintSide(*painter, left, index.row(), Side::Left, look, option);
        paintSide(*painter, right, index.row(), Side::Right, look, option);
        paintSign(*painter, between, model_.row(index.row()).kind, look, option);
        if ((option.state & QStyle::State_HasFocus) != 0) paintFocus(*painter, option, look);
        painter->restore();
    }

  private:
    struct Look {
        bool isSelected;
        QColor sheet;
        QColor ground;
        QColor text;
        QColor quietText;
        QPalette palette;
    };

    static Look lookOf(const QStyleOptionViewItem& option) {
        const bool isSelected = (option.state & QStyle::State_Selected) != 0;
        const bool hasFocus = option.widget != nullptr && option.widget->hasFocus() &&
                              (option.state & QStyle::State_Active) != 0;
        const auto group = hasFocus ? QPalette::Active : QPalette::Inactive;
        QPalette palette = option.palette;
        palette.setCurrentColorGroup(QPalette::Active);
        const QColor text = isSelected ? palette.color(group, QPalette::HighlightedText)
                                       : palette.color(QPalette::Text);
        return {isSelected,
                palette.color(QPalette::Base),
                palette.color(group, QPalette::Highlight),
                text,
                isSelected ? text : reviewQuietText(palette),
                palette};
    }

    void paintSide(QPainter& painter, QRect half, int row, Side side, const Look& look,
                   const QStyleOptionViewItem& option) const {
        const AlignedRow& aligned = model_.row(row);
        const auto step = stepOf(aligned, side);
        if (!look.isSelected) painter.fillRect(half, groundOf(aligned, step.has_value(), look));
        const int numbers = numberWidth(option.fontMetrics);
        QRect rest = half.adjusted(numbers + 2 * gap, 0, -gap, 0);
        if (!step) {
            painter.setPen(look.quietText);
            drawText(painter, rest, model_.emptyText(row), option);
            return;
        }
        painter.setPen(look.quietText);
        painter.drawText(QRect(half.left() + gap, half.top(), numbers, half.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(*step + 1));
        const int extent = option.decorationSize.height();
        model_.icon(row, side).paint(
            &painter, QRect(rest.left(), half.center().y() - extent / 2, extent, extent),
            Qt::AlignCenter, look.isSelected ? QIcon::Selected : QIcon::Normal);
        rest.setLeft(rest.left() + extent + gap);
        painter.setPen(look.text);
        drawText(painter, rest, model_.line(row, side), option);
    }

    static QColor groundOf(const AlignedRow& row, bool hasStep, const Look& look) {
        if (row.kind == RowKind::Same) return look.sheet;
        return hasStep ? reviewGround(look.palette, row.kind)
                       : look.palette.color(QPalette::AlternateBase);
    }

    static void drawText(QPainter& painter, const QRect& rect, const QString& text,
                         const QStyleOptionViewItem& option) {
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fitting(text, option.fontMetrics, rect.width()));
    }

    static void paintSign(QPainter& painter, const QRect& rect, RowKind kind, const Look& look,
                          const QStyleOptionViewItem& option) {
        if (kind == RowKind::Same) return;
        QFont bold = option.font;
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(look.text);
        painter.drawText(rect, Qt::AlignCenter, signOf(kind));
    }

    static void paintFocus(QPainter& painter, const QStyleOptionViewItem& option,
                           const Look& look) {
        if (look.isSelected) return;
        painter.setPen(QPen(look.palette.color(QPalette::Active, QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    }

    [[nodiscard]] int numberWidth(const QFontMetrics& metrics) const {
        const std::size_t most = std::max(model_.side(Side::Left).script.entryCount(),
                                          model_.side(Side::Right).script.entryCount());
        const QString digits(QString::number(most).size(), u'8');
        return metrics.horizontalAdvance(digits);
    }

    const ReviewModel& model_;
    const ReviewList& list_;
};

void fitIcons(ReviewList& list) {
    const int extent = std::max(smallestIcon, list.fontMetrics().height());
    list.setIconSize({extent, extent});
}

}  // namespace

QColor reviewGround(const QPalette& palette, RowKind kind) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    if (kind == RowKind::Same) return base;
    return mixed(base, QColor::fromRgb(hueOf(kind)), isDark(palette) ? 0.26 : 0.2);
}

QColor reviewQuietText(const QPalette& palette) {
    return mixed(palette.color(QPalette::Active, QPalette::Base),
                 palette.color(QPalette::Active, QPalette::Text), 0.78);
}

ReviewList::ReviewList(ReviewModel& model, QWidget* parent) : QListView(parent) {
    setObjectName(QStringLiteral("reviewList"));
    setModel(&model);
    setItemDelegate(new ReviewDelegate(model, *this));
    setUniformItemSizes(true);
    fitIcons(*this);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void ReviewList::goToRow(int row) {
    const QModelIndex index = model()->index(row, 0);
    setCurrentIndex(index);
    constexpr int rowsAround = 2;
    const QRect shown = visualRect(index);
    const int margin = rowsAround * shown.height();
    if (shown.top() < margin || shown.bottom() > viewport()->height() - margin) {
        scrollTo(index, PositionAtCenter);
    }
}

ReviewList::Columns ReviewList::columns(int width) const {
    const int gutter = fontMetrics().horizontalAdvance(u'M') + 2 * gap;
    return {std::max((width - gutter) / 2, 0), gutter};
}

void ReviewList::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange) fitIcons(*this);
}

}  // namespace quendra
