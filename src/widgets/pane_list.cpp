#include "widgets/pane_list.h"

#include "text/name_match.h"
#include "widgets/contrast.h"
#include "widgets/problem_sign.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QPainter>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <tuple>
#include <utility>

namespace quendra {
namespace {

constexpr int iconExtent = 16;
constexpr int lineThickness = 2;
/// Right of the text of a row that is painted only as wide as its text.
constexpr int textMargin = 4;

/// How many characters at the start of a text fill `width`; all of them if they do not.
qsizetype filling(const QString& text, const QFontMetrics& metrics, int width) {
    qsizetype count = 0;
    for (int advance = 0; count < text.size() && advance <= width; ++count) {
        advance += metrics.horizontalAdvance(text.at(count));
    }
    return count;
}

/// Leaves more of the text than fits, so that the ellipsis stands where it would anyway: the text
/// has the row's width less that of the icon, by far more than kerning may save.
void cutToWidth(QStyleOptionViewItem& row) {
    const qsizetype most = filling(row.text, row.fontMetrics, row.rect.width());
    if (row.text.size() <= most) return;
    const bool splitsPair = row.text.at(most - 1).isHighSurrogate();
    row.text.truncate(splitsPair ? most - 1 : most);
    row.text += QChar(0x2026);
}

/// At the lower right corner of the row's icon, so that the text stands where it does without.
void paintProblem(QPainter& painter, const QStyleOptionViewItem& row, const QVariant& problem) {
    const QRect icon =
        row.widget->style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &row, row.widget);
    const qreal extent = icon.height() * 0.6;
    const QRectF box(icon.right() + 2 - extent, icon.bottom() + 2 - extent, extent, extent);
    drawProblemSign(painter, box, static_cast<Severity>(problem.toInt()), row.palette);
}

class RowDelegate : public QStyledItemDelegate {
  public:
    explicit RowDelegate(PaneList& list) : QStyledItemDelegate(&list), list_(list) {}

    /// No width, so that the list gives every row its own and elides what is longer; the height is
    /// the same for every row and needs no text to be made.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& /*index*/) const override {
        return {0, std::max(option.decorationSize.height(), option.fontMetrics.height()) + 3};
    }

    /// Lines can be thousands of characters long, of which a row shows a few dozen: what cannot be
    /// seen is cut off before the text is laid out.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem row = option;
        if (const RowGutter* gutter = list_.gutter()) {
            const int width = gutter->width();
            gutter->paint(*painter, QRect(row.rect.topLeft(), QSize(width, row.rect.height())),
                          index.row());
            row.rect.setLeft(row.rect.left() + width);
        }
        paintText(*painter, row, index);
    }

    void paintText(QPainter& painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        cutToWidth(row);
        row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, &painter, row.widget);
        const QVariant problem = index.data(PaneList::ProblemRole);
        if (problem.isValid()) paintProblem(painter, row, problem);
    }

    [[nodiscard]] int neededWidth(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
        return QStyledItemDelegate::sizeHint(option, index).width();
    }

    /// Only a row whose text is cut off, or whose tool tip says more than it, has more to tell.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (index.isValid() && event->type() == QEvent::ToolTip &&
            !index.data(PaneList::MoreInToolTip).toBool() &&
            neededWidth(option, index) <= option.rect.width() - list_.gutterWidth()) {
            QToolTip::hideText();
            return true;
        }
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }

  protected:
    /// A row without an icon keeps the icon's place free, so that all texts begin at one line.
    void initStyleOption(QStyleOptionViewItem* row, const QModelIndex& index) const override {
        const QSize icon = row->decorationSize;
        QStyledItemDelegate::initStyleOption(row, index);
        row->features |= QStyleOptionViewItem::HasDecoration;
        row->decorationSize = icon;
    }

  private:
    PaneList& list_;
};

/// Icons keep up with large text.
void fitIcons(PaneList& list) {
    const int extent = std::max(iconExtent, list.fontMetrics().height());
    list.setIconSize({extent, extent});
}

}  // namespace

PaneList::PaneList(QWidget* parent) : QListView(parent) {
    setItemDelegate(new RowDelegate(*this));
    setUniformItemSizes(true);
    fitIcons(*this);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
}

std::vector<std::size_t> PaneList::selectedRows() const {
    std::vector<std::size_t> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(static_cast<std::size_t>(row));
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool PaneList::isRowSelected(int row) const {
    return selectionModel()->isSelected(model()->index(row, 0));
}

QRect PaneList::rowRect(int row) const {
    return visualRect(model()->index(row, 0));
}

void PaneList::paintSelectedRow(QPainter& painter, int row) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const auto& delegate = static_cast<const RowDelegate&>(*itemDelegate());
    const QModelIndex index = model()->index(row, 0);
    const QSize whole = rowRect(row).size();
    const int width =
        std::min(whole.width() - gutterWidth(), delegate.neededWidth(option, index) + textMargin);
    option.rect = QRect(gutterWidth(), 0, width, whole.height());
    option.state |= QStyle::State_Selected | QStyle::State_Active;
    option.state &= ~QStyle::State_HasFocus;
    delegate.paintText(painter, option, index);
}

// As the base class: letters typed without a rest belong together, one letter again and again goes
// from row to row.
void PaneList::keyboardSearch(const QString& search) {
    if (!findsAnywhere_) return QListView::keyboardSearch(search);
    const bool goesOn =
        sinceTyped_.isValid() && !sinceTyped_.hasExpired(QApplication::keyboardInputInterval());
    sinceTyped_.start();
    typed_ = goesOn ? typed_ + search : search;
    const bool isOneLetter = typed_.count(typed_.left(1)) == typed_.size();
    const QString wanted = foldedName(isOneLetter ? typed_.left(1) : typed_);
    const int rows = model()->rowCount();
    if (wanted.isEmpty() || rows == 0) return;
    const int first = std::max(focusedRow(), 0) + (isOneLetter && focusedRow() >= 0 ? 1 : 0);
    int best = -1;
    NameFit bestFit = NameFit::No;
    for (int i = 0; i < rows; ++i) {
        const int row = (first + i) % rows;
        const NameFit fit = NameMatcher(model()->index(row, 0).data().toString()).fit(wanted);
        if (fit < bestFit) std::tie(best, bestFit) = std::pair(row, fit);
    }
    if (best >= 0) setCurrentIndex(model()->index(best, 0));
}

void PaneList::setGutter(const RowGutter* gutter) {
    gutter_ = gutter;
    viewport()->update();
}

void PaneList::setLandingLines(std::vector<int> rows) {
    if (rows == landingLines_) return;
    landingLines_ = std::move(rows);
    viewport()->update();
}

// A clicked row is in sight. The base class would bring it there half a second later, though the
// wheel has moved on since, and the next click would hit another row than the one aimed at.
void PaneList::mousePressEvent(QMouseEvent* event) {
    setAutoScroll(false);
    QListView::mousePressEvent(event);
    setAutoScroll(true);
}

void PaneList::setHint(const QString& hint) {
    hint_ = hint;
    setAccessibleDescription(hint);
    viewport()->update();
}

void PaneList::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (model()->rowCount() == 0) paintHint(painter);
    if (!landingLines_.empty()) paintLandingLines(painter);
}

void PaneList::paintHint(QPainter& painter) const {
    const int margin = 2 * fontMetrics().height();
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint_);
}

void PaneList::paintLandingLines(QPainter& painter) const {
    const int rows = model()->rowCount();
    const int rowHeight = rows > 0 ? rowRect(0).height() : 0;
    const int firstTop = rows > 0 ? rowRect(0).top() : 0;
    const int lowest = viewport()->height() - lineThickness - 1;
    int previous = -1;
    for (const int row : landingLines_) {
        const int y = std::clamp(firstTop + row * rowHeight - lineThickness / 2, 1, lowest);
        if (y == previous) continue;
        previous = y;
        // The rim keeps the line apart from a selected row, which has its colour.
        const QRect line(0, y, viewport()->width(), lineThickness);
        painter.fillRect(line.adjusted(0, -1, 0, 1), palette().base());
        painter.fillRect(line, accentColor(palette()));
    }
}

void PaneList::focusInEvent(QFocusEvent* event) {
    // The base class would focus the first row of a list that has none focused; here, having none
    // means something: what is inserted goes to the end.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

// A bar that opens takes room from below, and must not hide the row that is worked on.
void PaneList::resizeEvent(QResizeEvent* event) {
    const QModelIndex current = currentIndex();
    const bool wasInSight =
        current.isValid() && QRect({}, event->oldSize()).intersects(visualRect(current));
    QListView::resizeEvent(event);
    if (wasInSight) scrollTo(current);
}

void PaneList::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange) fitIcons(*this);
}

}  // namespace quendra
