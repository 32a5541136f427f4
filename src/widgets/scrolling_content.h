// What is inside of a dialog, for screens that are too small for all of it.
#pragma once

#include <QScrollArea>

namespace quendra {

/// Wants to be as large as its content, and scrolls to whatever has the focus where it is smaller.
class ScrollingContent : public QScrollArea {
    Q_OBJECT

  public:
    /// Takes the content over.
    explicit ScrollingContent(QWidget* content);
    ScrollingContent(const ScrollingContent&) = delete;
    ScrollingContent& operator=(const ScrollingContent&) = delete;
    ~ScrollingContent() override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showFocused(const QWidget* focused);
};

}  // namespace quendra
