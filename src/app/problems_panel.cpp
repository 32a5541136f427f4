#include "app/problems_panel.h"

#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

constexpr int rowsAtFirst = 4;

// A list wants more room than the script has to spare.
class LowRoom : public QWidget {
  public:
    LowRoom(int height, QWidget* parent) : QWidget(parent), height_(height) {}
    [[nodiscard]] QSize sizeHint() const override { return {QWidget::sizeHint().width(), height_}; }

  private:
    int height_;
};

}  // namespace

ProblemsPanel::ProblemsPanel(const LiveCheck& check, LanguageLibrary& language, QAction& quickFix,
                             QWidget* parent)
    : QDockWidget(parent),
      check_(check),
      language_(language),
      quickFix_(quickFix),
      model_(new ProblemModel(check, this)),
      list_(new QListView(this)),
      count_(new QLabel(this)) {
    setObjectName(QStringLiteral("problemsPanel"));
    setProperty("helpPage", QStringLiteral("checks"));
    setFeatures(NoDockWidgetFeatures);
    // Not seen, but heard.
    setWindowTitle(text(textid::problemsToolTip));
    buildTitle(quickFix);
    buildList();
}

void ProblemsPanel::buildTitle(QAction& quickFix) {
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(10, 2, 10, 2);
    auto* title = new QLabel(text(textid::problemsToolTip), bar);
    title->setObjectName(QStringLiteral("problemsTitle"));
    title->setBuddy(list_);
    count_->setObjectName(QStringLiteral("problemsCount"));
    count_->setForegroundRole(QPalette::WindowText);
    auto* fix = new QToolButton(bar);
    fix->setObjectName(QStringLiteral("problemsQuickFix"));
    fix->setDefaultAction(&quickFix);
    fix->setToolButtonStyle(Qt::ToolButtonTextOnly);
    fix->setAutoRaise(true);
    auto* close = new QToolButton(bar);
    close->setObjectName(QStringLiteral("problemsClose"));
    close->setText(QStringLiteral("\u00d7"));
    close->setToolTip(text(textid::findClose));
    close->setAccessibleName(text(textid::findClose));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &ProblemsPanel::closeRequested);
    row->addWidget(title);
    row->addSpacing(8);
    row->addWidget(count_, 1);
    row->addWidget(fix);
    row->addWidget(close);
    setTitleBarWidget(bar);
}

void ProblemsPanel::buildList() {
    const int extent = std::max(16, list_->fontMetrics().height());
    const int rowHeight = extent + 4;
    auto* content = new LowRoom(rowsAtFirst * rowHeight, this);
    auto* room = new QHBoxLayout(content);
    room->setContentsMargins(10, 0, 10, 6);
    room->addWidget(list_);
    list_->setObjectName(QStringLiteral("problemsList"));
    list_->setAccessibleName(text(textid::problemsToolTip));
    list_->setModel(model_);
    list_->setUniformItemSizes(true);
    list_->setEditTriggers(QListView::NoEditTriggers);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setIconSize({extent, extent});
    list_->setMinimumHeight(2 * rowHeight);
    list_->installEventFilter(this);
    connect(list_, &QListView::customContextMenuRequested, this, &ProblemsPanel::showMenu);
    connect(list_, &QListView::clicked, this,
            [this](const QModelIndex& index) { choose(index, false); });
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) { choose(index, false); });
    setWidget(content);
}

QString ProblemsPanel::text(StringId id) const {
    return qtText(libraryText(language_, id));
}

void ProblemsPanel::reload(std::optional<std::size_t> current) {
    const bool wasSetting = std::exchange(isSetting_, true);
    model_->reload();
    isSetting_ = wasSetting;
    const std::string counts = check_.counts();
    count_->setText(counts.empty() ? text(textid::noProblems) : qtText(counts));
    setCurrent(current);
}

void ProblemsPanel::setCurrent(std::optional<std::size_t> finding) {
    const bool wasSetting = std::exchange(isSetting_, true);
    if (finding) {
        list_->setCurrentIndex(model_->index(static_cast<int>(*finding), 0));
    } else {
        list_->selectionModel()->clear();
    }
    isSetting_ = wasSetting;
}

void ProblemsPanel::takeFocus() {
    list_->setFocus();
}

void ProblemsPanel::choose(const QModelIndex& index, bool leaves) {
    if (isSetting_ || !index.isValid()) return;
    Q_EMIT chosen(static_cast<std::size_t>(index.row()), leaves);
}

void ProblemsPanel::showMenu(QPoint at) {
    const QModelIndex index = list_->indexAt(at);
    if (!index.isValid()) return;
    choose(index, false);
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("problemMenu"));
    // Why an item cannot be chosen.
    menu.setToolTipsVisible(true);
    const QAction* go = menu.addAction(text(textid::goToProblem));
    menu.addAction(&quickFix_);
    const QAction* help = menu.addAction(text(textid::helpOnProblem));
    const QAction* chosenItem = menu.exec(list_->viewport()->mapToGlobal(at));
    if (chosenItem == go) choose(index, true);
    if (chosenItem == help) showHelp();
}

// As the key does, which the help answers for every part of a window that names its page.
void ProblemsPanel::showHelp() {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(list_, &key);
}

bool ProblemsPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && !list_->currentIndex().isValid()) {
        // A list that gets the focus, whether by Tab or because a bar closes, makes its first row
        // the current one, which nobody has chosen.
        const bool wasSetting = std::exchange(isSetting_, true);
        watched->event(event);
        list_->selectionModel()->clear();
        isSetting_ = wasSetting;
        return true;
    }
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (event->type() == QEvent::ShortcutOverride) {
        // Taken as a plain key, it reaches the help on this list instead of the window's command.
        if (key.key() == Qt::Key_F1) event->accept();
        return false;
    }
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
    choose(list_->currentIndex(), true);
    return true;
}

}  // namespace quendra
