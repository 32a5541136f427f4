// The part of the help window that shows a page.
#pragma once

#include "help/manual.h"

#include <QTextBrowser>

namespace quendra {

class PageView : public QTextBrowser {
    Q_OBJECT

  public:
    explicit PageView(QWidget* parent = nullptr);

    /// `folder` is where the pictures of the page are looked for.
    void showPage(const QString& html, const QString& folder);
    /// Marks every occurrence of the words, and scrolls to the first one behind the title.
    void markWords(const QStringList& words);
    /// How many places are marked.
    [[nodiscard]] int markCount() const { return static_cast<int>(extraSelections().size()); }
    /// Makes a mark, counted from 0, stand out from the others and brings it into sight.
    void goToMark(int index);
    /// Scrolls to a heading; gives false when the page has none of that name.
    bool scrollToHeading(const QString& anchor);

    /// In percent of the application's font.
    [[nodiscard]] int zoom() const { return zoom_; }
    void setZoom(int percent);
    static constexpr int zoomStep = 10;

    [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void render();
    void changeLook();
    /// Gives the first occurrence behind the title; null when there is none.
    QTextCursor markAll(const QStringList& words);
    void drawCurrentMark();
    [[nodiscard]] QFont pageFont() const;
    [[nodiscard]] int columnWidth() const;

    QString html_;
    QString folder_;
    QStringList words_;
    /// The mark that stands out; -1 for none.
    int currentMark_ = -1;
    int zoom_ = 100;
};

}  // namespace quendra
