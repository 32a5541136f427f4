#include "help/help_window.h"

#include "help/page_finder.h"
#include "help/page_search.h"
#include "help/page_view.h"
#include "text/text_ids.h"
#include "widgets/placement.h"
#include "widgets/symbol_icon.h"
#include "widgets/ui_text.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quendra {

namespace {

constexpr int backIcon = 401;
constexpr int forwardIcon = 402;
constexpr int startIcon = 403;
constexpr int zoomInIcon = 229;
constexpr int zoomOutIcon = 230;

constexpr int normalZoom = 100;

}  // namespace

HelpWindow::HelpWindow(Manual manual, LanguageLibrary& language,
                       std::function<void(const QString&)> openAddress)
    : manual_(std::move(manual)), language_(language), openAddress_(std::move(openAddress)) {
    setObjectName(QStringLiteral("helpWindow"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    constexpr QSize comfortable{1020, 720};
    resize(comfortable.boundedTo(screen()->availableSize()));
    build();
}

QString HelpWindow::text(StringId id, std::initializer_list<std::string> args) const {
    return qtText(libraryText(language_, id, args));
}

void HelpWindow::build() {
    finder_ = new PageFinder(manual_, language_);
    connect(finder_, &PageFinder::pageChosen, this, [this](const QString& page) {
        goTo({page, {}, 0});
    });
    connect(finder_, &PageFinder::hitChosen, this,
            [this](const QString& page, const QStringList& words) {
                // The marks are those of the words from now on.
                search_->hide();
                goTo({page, {}, 0});
                view_->markWords(words);
            });
    connect(finder_, &PageFinder::searchEnded, this, [this] {
        view_->markWords({});
        search_->pageChanged();
    });
    auto* split = new QSplitter;
    split->setObjectName(QStringLiteral("helpSplitter"));
    split->setChildrenCollapsible(false);
    split->addWidget(finder_);
    split->addWidget(buildPage());
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 1);
    const int left = std::min(fontMetrics().averageCharWidth() * 48, width() / 3);
    split->setSizes({left, width() - left});
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(8, 8, 8, 8);
    all->addWidget(split);
}

QWidget* HelpWindow::buildPage() {
    view_ = new PageView;
    view_->setObjectName(QStringLiteral("helpPage"));
    view_->setAccessibleName(text(textid::helpPage));
    // Queued, since another page takes the place of the document that is handling the click.
    connect(view_, &QTextBrowser::anchorClicked, this, &HelpWindow::followLink,
            Qt::QueuedConnection);
    auto* right = new QWidget;
    right->setObjectName(QStringLiteral("helpRight"));
    auto* all = new QVBoxLayout(right);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(buildBar());
    all->addWidget(view_, 1);
    search_ = new PageSearch(*view_, language_);
    all->addWidget(search_);
    return right;
}

QToolBar* HelpWindow::buildBar() {
    back_ = addCommand("helpBack", backIcon, textid::helpBack,
                       {Qt::ALT | Qt::Key_Left, Qt::Key_Back}, &HelpWindow::goBack);
    forward_ = addCommand("helpForward", forwardIcon, textid::helpForward,
                          {Qt::ALT | Qt::Key_Right, Qt::Key_Forward}, &HelpWindow::goForward);
    QAction* start = addCommand("helpStart", startIcon, textid::helpStartPage,
                                {Qt::ALT | Qt::Key_Home}, &HelpWindow::goToStart);
    QAction* smaller = addCommand("helpSmaller", zoomOutIcon, textid::helpSmallerText,
                                  {Qt::CTRL | Qt::Key_Minus}, &HelpWindow::zoomOut);
    QAction* larger =
        addCommand("helpLarger", zoomInIcon, textid::helpLargerText,
                   {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, &HelpWindow::zoomIn);
    addKeys();
    auto* bar = new QToolBar;
    bar->setObjectName(QStringLiteral("helpBar"));
    bar->setAccessibleName(text(textid::toolBarName));
    bar->setIconSize({20, 20});
    bar->addActions({back_, forward_, start});
    bar->addSeparator();
    bar->addActions({smaller, larger});
    for (QAction* action : {back_, forward_, start, smaller, larger}) {
        QWidget* button = bar->widgetForAction(action);
        button->setObjectName(action->objectName() + QLatin1String("Button"));
        // Each has a key of its own, and Tab leads from the search to the page.
        button->setFocusPolicy(Qt::NoFocus);
    }
    return bar;
}

// What has no button.
void HelpWindow::addKeys() {
    addCommand("helpNormal", 0, 0, {Qt::CTRL | Qt::Key_0}, &HelpWindow::zoomNormal);
    addCommand("helpFind", 0, 0, {QKeySequence(QKeySequence::Find)}, &HelpWindow::findInPage);
    addCommand("helpFindNext", 0, 0, {Qt::Key_F3}, &HelpWindow::findNext);
    addCommand("helpFindPrevious", 0, 0, {Qt::SHIFT | Qt::Key_F3}, &HelpWindow::findPrevious);
    addCommand("helpFocusSearch", 0, 0, {Qt::CTRL | Qt::SHIFT | Qt::Key_F},
               &HelpWindow::focusSearch);
    addCommand("helpNextPart", 0, 0, {Qt::Key_F6}, &HelpWindow::focusNext);
    addCommand("helpPreviousPart", 0, 0, {Qt::SHIFT | Qt::Key_F6}, &HelpWindow::focusPrevious);
}

QAction* HelpWindow::addCommand(const char* name, int icon, StringId toolTip,
                                const QList<QKeySequence>& keys, void (HelpWindow::*act)()) {
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    if (icon != 0) action->setIcon(bitmapIcon(icon));
    if (toolTip != 0) action->setText(text(toolTip));
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    return action;
}

void HelpWindow::open(const QString& page, const QString& heading) {
    placeAtFirst();
    goTo({page, heading, 0});
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    if (focusWidget() == nullptr) view_->setFocus();
}

// Beside the window that asks, so that both are seen; later where the user left it.
void HelpWindow::placeAtFirst() {
    if (isPlaced_) return;
    isPlaced_ = true;
    const QWidget* asking = QApplication::activeWindow();
    asking ? placeBeside(*this, *asking) : centreOnScreen(*this);
}

void HelpWindow::goTo(const Place& place) {
    const bool isThis = place.page == place_.page && place.heading == place_.heading;
    if (!place_.page.isEmpty() && !isThis) {
        place_.scrolled = view_->verticalScrollBar()->value();
        behind_.push_back(place_);
        ahead_.clear();
    }
    showPlace(place);
}

void HelpWindow::showPlace(const Place& place) {
    place_ = place;
    const QString file = manual_.fileOf(place.page);
    const QString html = manual_.htmlOf(place.page);
    QString title = manual_.titleOf(place.page);
    if (html.isEmpty()) {
        title = text(textid::helpPageMissingTitle);
        showMissing(place.page);
    } else {
        view_->showPage(html, file.section(u'/', 0, -2));
    }
    const bool isStart = place.page == QLatin1String(Manual::startPage);
    setWindowTitle(isStart ? text(textid::helpStartTitle)
                           : text(textid::helpWindowTitle, {title.toStdString()}));
    search_->pageChanged();
    finder_->selectPage(place.page);
    back_->setEnabled(!behind_.empty());
    forward_->setEnabled(!ahead_.empty());
    if (!place.heading.isEmpty() && view_->scrollToHeading(place.heading)) return;
    if (place.scrolled > 0) view_->verticalScrollBar()->setValue(place.scrolled);
}

void HelpWindow::showMissing(const QString& page) {
    const bool hasManual = !manual_.contents().empty();
    const QString what = hasManual ? page : manual_.folder();
    const QString sentence =
        text(hasManual ? textid::helpPageMissing : textid::helpManualMissing, {what.toStdString()});
    view_->showPage(
        QStringLiteral("<h1>%1</h1><p>%2</p>")
            .arg(text(textid::helpPageMissingTitle).toHtmlEscaped(), sentence.toHtmlEscaped()),
        {});
}

void HelpWindow::followLink(const QUrl& link) {
    if (!link.isRelative()) {
        openAddress_(link.toString(QUrl::FullyEncoded));
        return;
    }
    const QString page = link.path().isEmpty() ? place_.page : link.fileName();
    goTo({page, link.fragment(QUrl::FullyDecoded), 0});
}

void HelpWindow::goBack() {
    goAlong(behind_, ahead_);
}

void HelpWindow::goForward() {
    goAlong(ahead_, behind_);
}

// To the last place of one way; the present one becomes the last of the other.
void HelpWindow::goAlong(std::vector<Place>& way, std::vector<Place>& opposite) {
    if (way.empty()) return;
    place_.scrolled = view_->verticalScrollBar()->value();
    opposite.push_back(place_);
    const Place place = way.back();
    way.pop_back();
    showPlace(place);
}

void HelpWindow::goToStart() {
    goTo({QLatin1String(Manual::startPage), {}, 0});
}

void HelpWindow::zoomIn() {
    view_->setZoom(view_->zoom() + PageView::zoomStep);
}

void HelpWindow::zoomOut() {
    view_->setZoom(view_->zoom() - PageView::zoomStep);
}

void HelpWindow::zoomNormal() {
    view_->setZoom(normalZoom);
}

void HelpWindow::focusSearch() {
    finder_->focusSearch();
}

void HelpWindow::findInPage() {
    search_->open();
}

void HelpWindow::findNext() {
    search_->go(1);
}

void HelpWindow::findPrevious() {
    search_->go(-1);
}

void HelpWindow::focusNext() {
    moveFocus(1);
}

void HelpWindow::focusPrevious() {
    moveFocus(-1);
}

void HelpWindow::moveFocus(int step) {
    constexpr int count = 3;
    const std::array<QWidget*, count> parts = {finder_->searchField(), finder_->shownList(), view_};
    const auto focused =
        std::ranges::find_if(parts, [](const QWidget* part) { return part->hasFocus(); });
    const auto at = focused == parts.end() ? 0 : static_cast<int>(focused - parts.begin());
    parts[static_cast<std::size_t>((at + step + count) % count)]->setFocus(Qt::TabFocusReason);
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    if (search_->isHidden()) {
        close();
    } else {
        search_->close();
    }
}

}  // namespace quendra
