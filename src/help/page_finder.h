// The left part of the help window: where a page is found, by the contents or by a search.
#pragma once

#include "help/manual.h"
#include "text/language_library.h"

#include <QWidget>

#include <initializer_list>
#include <string>

class QLabel;
class QLineEdit;
class QListView;
class QStackedWidget;
class QStandardItemModel;
class QTreeView;

namespace quendra {

class SearchResultDelegate;
class SearchResults;

/// The contents, or, while there are words in the field above, the pages that hold them.
class PageFinder : public QWidget {
    Q_OBJECT

  public:
    /// `manual` and `language` outlive it.
    PageFinder(Manual& manual, LanguageLibrary& language, QWidget* parent = nullptr);

    [[nodiscard]] QWidget* searchField() const;
    /// Contents or results: whichever is shown.
    [[nodiscard]] QWidget* shownList() const;
    void focusSearch();
    /// Selects the page's line in the contents, without choosing it.
    void selectPage(const QString& page);

  Q_SIGNALS:
    void pageChosen(const QString& page);
    void hitChosen(const QString& page, const QStringList& words);
    void searchEnded();

  protected:
    /// Of the search field: Return opens the first page found, Down goes to the list, and Escape
    /// empties the field.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeSearchField();
    void makeContents();
    void makeResults();
    void search();
    void chooseFirstHit();
    [[nodiscard]] QStringList words() const;
    [[nodiscard]] QString text(StringId id, std::initializer_list<std::string> args = {}) const;

    Manual& manual_;
    LanguageLibrary& language_;
    QLineEdit* field_;
    QStackedWidget* lists_;
    QTreeView* contents_;
    QStandardItemModel* lines_;
    QWidget* found_;
    QLabel* count_;
    QListView* results_;
    SearchResults* hits_;
    SearchResultDelegate* hitRows_;
};

}  // namespace quendra
