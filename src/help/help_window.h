// The window of the manual: contents and search on the left, a page on the right.
#pragma once

#include "help/manual.h"
#include "text/language_library.h"

#include <QWidget>

#include <functional>
#include <vector>

class QAction;
class QToolBar;
class QUrl;

namespace quendra {

class PageFinder;
class PageSearch;
class PageView;

/// A window of its own, which keeps size, place and page while it is closed. It does not keep the
/// program running.
class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    /// `language` outlives the window. `openAddress` is given the links that lead out of the
    /// manual.
    HelpWindow(Manual manual, LanguageLibrary& language,
               std::function<void(const QString&)> openAddress);

    /// Shows a page, such as "wait-for.html", and at a heading of it when one is named, and brings
    /// the window to the front.
    void open(const QString& page, const QString& heading = {});

    /// The page that is shown.
    [[nodiscard]] const QString& page() const { return place_.page; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Place {
        QString page;
        QString heading;
        int scrolled = 0;
    };

    void build();
    QWidget* buildPage();
    QToolBar* buildBar();
    void addKeys();
    QAction* addCommand(const char* name, int icon, StringId toolTip,
                        const QList<QKeySequence>& keys, void (HelpWindow::*act)());

    void placeAtFirst();
    void goTo(const Place& place);
    void showPlace(const Place& place);
    void showMissing(const QString& page);
    void followLink(const QUrl& link);
    void goBack();
    void goForward();
    void goAlong(std::vector<Place>& way, std::vector<Place>& opposite);
    void goToStart();
    void zoomIn();
    void zoomOut();
    void zoomNormal();
    void focusSearch();
    void findInPage();
    void findNext();
    void findPrevious();
    void focusNext();
    void focusPrevious();
    void moveFocus(int step);
    [[nodiscard]] QString text(StringId id, std::initializer_list<std::string> args = {}) const;

    Manual manual_;
    LanguageLibrary& language_;
    std::function<void(const QString&)> openAddress_;
    Place place_;
    std::vector<Place> behind_;
    std::vector<Place> ahead_;

    bool isPlaced_ = false;

    PageFinder* finder_ = nullptr;
    PageView* view_ = nullptr;
    PageSearch* search_ = nullptr;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
};

}  // namespace quendra
