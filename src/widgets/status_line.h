// The status bar's own text: one line, shortened with an ellipsis where the window is too narrow.
#pragma once

#include <QLabel>

namespace quendra {

class StatusLine : public QLabel {
  public:
    explicit StatusLine(QWidget* parent = nullptr);
    /// Takes plain text; text() gives it back whole.
    void setLine(const QString& line);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace quendra
