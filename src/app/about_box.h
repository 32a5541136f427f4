// The About box.
#pragma once

#include "text/language_library.h"

#include <QDialog>

namespace quendra {

class AboutBox : public QDialog {
    Q_OBJECT

  public:
    explicit AboutBox(LanguageLibrary& language, QWidget* parent = nullptr);

  protected:
    /// Escape does not close this box; only its button and its close box do.
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quendra
