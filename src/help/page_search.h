// The bar below a page that finds texts in it.
#pragma once

#include "help/page_view.h"
#include "text/language_library.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace quendra {

/// Hidden until it is opened. While it shows, every place of its text is marked in the page.
class PageSearch : public QWidget {
    Q_OBJECT

  public:
    /// `view` and `language` outlive the bar.
    PageSearch(PageView& view, LanguageLibrary& language, QWidget* parent = nullptr);

    /// Shows the bar with its last text selected, ready to be typed over.
    void open();
    /// Takes the marks away and gives the focus to the page.
    void close();
    /// Goes to the next place, or to the one before for a step of -1, round from the last to the
    /// first; opens the bar where it is closed.
    void go(int step);
    /// Another page is shown, or the marks of another search have gone: marks the text there.
    void pageChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void addButton(const char* name, StringId toolTip, Qt::ArrowType arrow,
                   void (PageSearch::*act)());
    void next() { go(1); }
    void previous() { go(-1); }
    void typed();
    void showCount();

    PageView& view_;
    LanguageLibrary& language_;
    QLineEdit* edit_;
    QLabel* count_;
    int current_ = 0;
};

}  // namespace quendra
