#include "app/insert_panel.h"

#include "app/insert_rows.h"
#include "text/text_ids.h"
#include "widgets/contrast.h"
#include "widgets/ui_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace quendra {

namespace {

constexpr int mostRows = 10;
constexpr int panelMargin = 6;
constexpr int leastCharacters = 48;
constexpr int mostCharacters = 80;

}  // namespace

InsertPanel::InsertPanel(ApplicationState& state, EditorPane& pane)
    : QFrame(&pane),
      state_(state),
      pane_(pane),
      edit_(new QLineEdit(this)),
      list_(new QListView(this)),
      nothing_(new QLabel(this)),
      rows_(new InsertRows(state, this)),
      counts_(InsertionCounts::readFrom(state.userState)) {
    hide();
    build();
    pane.installEventFilter(this);
    saving_.setSingleShot(true);
    saving_.setInterval(std::chrono::seconds(1));
    connect(&saving_, &QTimer::timeout, this, [this] { counts_.writeTo(state_.userState); });
}

InsertPanel::~InsertPanel() {
    if (saving_.isActive()) counts_.writeTo(state_.userState);
}

void InsertPanel::build() {
    const QString name = text(textid::insertByNameToolTip);
    setObjectName(QStringLiteral("insertPanel"));
    setAccessibleName(name);
    setAutoFillBackground(true);
    edit_->setObjectName(QStringLiteral("insertName"));
    edit_->setAccessibleName(name);
    edit_->setPlaceholderText(text(textid::insertByNameField));
    edit_->installEventFilter(this);
    list_->setObjectName(QStringLiteral("insertList"));
    list_->setAccessibleName(text(textid::insertByNameList));
    list_->setModel(rows_);
    list_->setItemDelegate(new InsertRowDelegate(list_));
    list_->setUniformItemSizes(true);
    list_->setEditTriggers(QListView::NoEditTriggers);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The keys belong to the field throughout, and those for the list too: its row looks like that.
    list_->setFocusPolicy(Qt::NoFocus);
    QPalette colours = list_->palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    list_->setPalette(colours);
    nothing_->setObjectName(QStringLiteral("insertNothing"));
    nothing_->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(panelMargin, panelMargin, panelMargin, panelMargin);
    column->setSpacing(panelMargin);
    for (QWidget* part : {static_cast<QWidget*>(edit_), static_cast<QWidget*>(list_),
                          static_cast<QWidget*>(nothing_)})
        column->addWidget(part);
    connect(edit_, &QLineEdit::textChanged, this, &InsertPanel::search);
    connect(list_, &QListView::clicked, this, [this](const QModelIndex& index) {
        // Whoever double-clicks, as in a palette, must not hit the step beneath with the rest.
        QApplication::instance()->installEventFilter(this);
        QTimer::singleShot(QApplication::doubleClickInterval(), this,
                           [this] { QApplication::instance()->removeEventFilter(this); });
        choose(index.row());
    });
}

void InsertPanel::open() {
    rows_->reload(counts_);
    edit_->clear();
    search();
    show();
    raise();
    edit_->setFocus(Qt::ShortcutFocusReason);
}

void InsertPanel::noteInserted(const PaletteChoice& choice) {
    counts_.add(insertionId(choice, state_.currentHostType,
                            state_.luCatalogues.of(state_.currentHostType)));
    saving_.start();
}

void InsertPanel::search() {
    rows_->find(edit_->text());
    const bool isEmpty = rows_->rowCount() == 0;
    list_->setVisible(!isEmpty);
    nothing_->setVisible(isEmpty);
    if (isEmpty) {
        nothing_->setText(text(textid::insertByNameNothing, {edit_->text().toStdString()}));
        edit_->setAccessibleDescription(nothing_->text());
    }
    place();
    setRow(0);
}

// As high as its rows, and never part of a row.
void InsertPanel::place() {
    const QRect script = pane_.scriptArea();
    const int character = fontMetrics().averageCharWidth();
    const int extent = std::max(16, fontMetrics().height());
    list_->setIconSize({extent, extent});
    const int most = pane_.width() - 2 * script.left();
    const int width = std::min(
        std::clamp(script.width(), leastCharacters * character, mostCharacters * character), most);
    const int left = script.left() + std::max(0, (script.width() - width) / 2);
    const int frames = 2 * panelMargin;
    const int aroundList =
        frames + edit_->sizeHint().height() + panelMargin + 2 * list_->frameWidth();
    const int rowHeight = std::max(list_->sizeHintForRow(0), 1);
    const int fitting = (pane_.height() - 2 * script.top() - aroundList) / rowHeight;
    const int rows = std::max(1, std::min({rows_->rowCount(), mostRows, fitting}));
    list_->setFixedHeight(rows * rowHeight + 2 * list_->frameWidth());
    const bool isEmpty = rows_->rowCount() == 0;
    const int height =
        isEmpty ? frames + edit_->sizeHint().height() + panelMargin + nothing_->sizeHint().height()
                : aroundList + rows * rowHeight;
    setGeometry(left, script.top(), width, height);
}

void InsertPanel::setRow(int row) {
    if (rows_->rowCount() == 0) return;
    const QModelIndex index = rows_->index(std::clamp(row, 0, rows_->rowCount() - 1), 0);
    list_->setCurrentIndex(index);
    list_->scrollTo(index);
    // What the keys choose is told where the focus is.
    edit_->setAccessibleDescription(index.data(Qt::AccessibleTextRole).toString());
}

bool InsertPanel::goToRow(int key) {
    const int row = list_->currentIndex().row();
    const int page =
        std::max(1, list_->viewport()->height() / std::max(list_->sizeHintForRow(0), 1) - 1);
    switch (key) {
        case Qt::Key_Up: setRow(row - 1); return true;
        case Qt::Key_Down: setRow(row + 1); return true;
        case Qt::Key_PageUp: setRow(row - page); return true;
        case Qt::Key_PageDown: setRow(row + page); return true;
        default: return false;
    }
}

bool InsertPanel::pressKey(int key) {
    if (goToRow(key)) return true;
    if (key == Qt::Key_Escape) {
        leave();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    choose(list_->currentIndex().row());
    return true;
}

void InsertPanel::choose(int row) {
    if (row < 0 || row >= rows_->rowCount()) return;
    const PaletteChoice choice = rows_->choiceAt(row);
    pane_.focusScript();
    hide();
    QMetaObject::invokeMethod(
        this, [this, choice] { Q_EMIT chosen(choice); }, Qt::QueuedConnection);
}

void InsertPanel::leave() {
    pane_.takeFocus();
    hide();
}

QString InsertPanel::text(StringId id, std::initializer_list<std::string> arguments) const {
    return qtText(libraryText(state_.language, id, arguments));
}

// It lies on grounds of its own colour.
void InsertPanel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(edgeColor(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool InsertPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && !isVisible()) return true;
    if (watched != edit_ && watched != &pane_) return false;
    if (watched == &pane_) {
        if (event->type() == QEvent::Resize && isVisible()) place();
        return false;
    }
    switch (event->type()) {
        case QEvent::FocusOut: {
            const Qt::FocusReason reason = static_cast<const QFocusEvent&>(*event).reason();
            if (reason == Qt::ActiveWindowFocusReason) {
                leave();
            } else if (reason != Qt::PopupFocusReason) {
                hide();
            }
            return false;
        }
        case QEvent::ShortcutOverride:
            // Bars close by this key too.
            if (static_cast<const QKeyEvent&>(*event).key() != Qt::Key_Escape) return false;
            event->accept();
            return true;
        case QEvent::KeyPress: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            // Held down, it would answer the dialog that opens too.
            const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
            return (isReturn && key.isAutoRepeat()) || pressKey(key.key());
        }
        default: return false;
    }
}

}  // namespace quendra
