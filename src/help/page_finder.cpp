#include "help/page_finder.h"

#include "help/search_results.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace quendra {

namespace {

constexpr int pageRole = Qt::UserRole;

// The rows of a tree stand as close as their text lets them.
class RoomyRows : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        constexpr int room = 6;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, room);
    }
};

void addLines(QStandardItem& parent, const std::vector<ContentsLine>& lines, const QFont& bold) {
    for (const ContentsLine& line : lines) {
        auto* item = new QStandardItem(line.title);
        item->setData(line.page, pageRole);
        if (!line.lines.empty()) item->setFont(bold);
        item->setSelectable(!line.page.isEmpty());
        addLines(*item, line.lines, bold);
        parent.appendRow(item);
    }
}

QStandardItem* itemOf(const QStandardItem& parent, const QString& page) {
    for (int row = 0; row < parent.rowCount(); ++row) {
        QStandardItem* item = parent.child(row);
        if (item->data(pageRole).toString() == page) return item;
        if (QStandardItem* below = itemOf(*item, page)) return below;
    }
    return nullptr;
}

}  // namespace

PageFinder::PageFinder(Manual& manual, LanguageLibrary& language, QWidget* parent)
    : QWidget(parent),
      manual_(manual),
      language_(language),
      field_(new QLineEdit(this)),
      lists_(new QStackedWidget(this)),
      contents_(new QTreeView),
      lines_(new QStandardItemModel(this)),
      found_(new QWidget),
      count_(new QLabel),
      results_(new QListView),
      hits_(new SearchResults(this)),
      hitRows_(new SearchResultDelegate(this)) {
    setObjectName(QStringLiteral("helpFinder"));
    makeSearchField();
    makeContents();
    makeResults();
    lists_->setObjectName(QStringLiteral("helpLists"));
    lists_->addWidget(contents_);
    lists_->addWidget(found_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(field_);
    all->addWidget(lists_, 1);
}

void PageFinder::makeSearchField() {
    field_->setObjectName(QStringLiteral("helpSearch"));
    field_->setPlaceholderText(text(textid::helpSearch));
    field_->setAccessibleName(text(textid::helpSearch));
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    connect(field_, &QLineEdit::textChanged, this, &PageFinder::search);
}

void PageFinder::makeContents() {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    addLines(*lines_->invisibleRootItem(), manual_.contents(), bold);
    contents_->setObjectName(QStringLiteral("helpContents"));
    contents_->setAccessibleName(text(textid::helpContents));
    contents_->setModel(lines_);
    contents_->setItemDelegate(new RoomyRows(contents_));
    contents_->setHeaderHidden(true);
    contents_->setUniformRowHeights(true);
    contents_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    contents_->expandAll();
    connect(contents_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                const QString page = current.data(pageRole).toString();
                if (!page.isEmpty()) Q_EMIT pageChosen(page);
            });
}

void PageFinder::makeResults() {
    results_->setObjectName(QStringLiteral("helpResults"));
    results_->setAccessibleName(text(textid::helpResults));
    results_->setModel(hits_);
    results_->setItemDelegate(hitRows_);
    results_->setUniformItemSizes(true);
    results_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    results_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(results_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& hit) {
                if (hit.isValid()) Q_EMIT hitChosen(hits_->hit(hit.row()).page, words());
            });
    count_->setObjectName(QStringLiteral("helpResultCount"));
    count_->setTextFormat(Qt::PlainText);
    found_->setObjectName(QStringLiteral("helpFound"));
    auto* all = new QVBoxLayout(found_);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(count_);
    all->addWidget(results_, 1);
}

QString PageFinder::text(StringId id, std::initializer_list<std::string> args) const {
    return qtText(libraryText(language_, id, args));
}

QStringList PageFinder::words() const {
    return searchWords(field_->text());
}

QWidget* PageFinder::searchField() const {
    return field_;
}

QWidget* PageFinder::shownList() const {
    if (lists_->currentWidget() == contents_) return contents_;
    return results_;
}

void PageFinder::focusSearch() {
    field_->setFocus();
    field_->selectAll();
}

void PageFinder::selectPage(const QString& page) {
    const QStandardItem* item = itemOf(*lines_->invisibleRootItem(), page);
    const QSignalBlocker quiet(contents_->selectionModel());
    if (item == nullptr) {
        contents_->selectionModel()->clear();
    } else if (contents_->currentIndex() != item->index()) {
        contents_->selectionModel()->setCurrentIndex(item->index(),
                                                     QItemSelectionModel::ClearAndSelect);
        contents_->scrollTo(item->index());
    }
    // It was not told either.
    contents_->viewport()->update();
}

void PageFinder::search() {
    std::vector<SearchHit> found = manual_.search(words());
    const std::size_t count = found.size();
    hitRows_->setWords(words());
    hits_->setHits(std::move(found));
    count_->setText(count == 0   ? text(textid::helpFoundNothing)
                    : count == 1 ? text(textid::helpFoundOnePage)
                                 : text(textid::helpFoundPages, {std::to_string(count)}));
    const bool isOver = words().isEmpty();
    lists_->setCurrentIndex(isOver ? 0 : 1);
    if (isOver) Q_EMIT searchEnded();
}

void PageFinder::chooseFirstHit() {
    if (hits_->rowCount() == 0 || results_->currentIndex().isValid()) return;
    results_->setCurrentIndex(hits_->index(0, 0));
}

bool PageFinder::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    switch (static_cast<const QKeyEvent&>(*event).key()) {
        case Qt::Key_Escape:
            if (field_->text().isEmpty()) return false;
            field_->clear();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: chooseFirstHit(); return true;
        case Qt::Key_Down:
            chooseFirstHit();
            shownList()->setFocus();
            return true;
        default: return false;
    }
}

}  // namespace quendra
