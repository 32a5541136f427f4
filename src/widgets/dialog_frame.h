// What every dialog with OK and Cancel has around its own content: the buttons, the line of notes,
// its page of the manual and its place on the screen.
#pragma once

#include "text/language_library.h"

#include <QDialog>

#include <string_view>

class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace quendra {

/// A dialog that is modal to its window. Return is OK, Escape is Cancel. A derived class builds its
/// content in its constructor, in a ScrollingContent, places what makeNote() and makeButtons() give
/// below it, and ends that with finish(). The dialog is as large as its content, but never larger
/// than the screen: there the content scrolls, and the buttons stay.
class DialogFrame : public QDialog {
    Q_OBJECT

  public:
    /// `name` is the dialog's object name; `helpPage`, in the property of that name, says which
    /// page of the manual is about it. The language library outlives the dialog.
    DialogFrame(LanguageLibrary& language, QWidget* window, const char* name,
                std::string_view helpPage);

    void setVisible(bool visible) override;

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool focusNextPrevChild(bool next) override;

    /// Leaves the size to the user, once the dialog is shown.
    void makeResizable();

    [[nodiscard]] LanguageLibrary& language() const { return language_; }
    /// A text of the language library.
    [[nodiscard]] QString text(StringId id) const;

    /// The line of notes, which is the caller's to place, as are the buttons.
    QLabel* makeNote();
    /// OK and Cancel, and another one apart from them.
    [[nodiscard]] QDialogButtonBox* makeButtons(const QString& okText = QStringLiteral("OK"),
                                                QPushButton* other = nullptr);
    /// Makes OK the default button, and lets mnemonics act at once. All widgets are in the dialog.
    void finish();

    /// Shows a note, an empty one for none, to screen readers too. Without a line for it, nothing.
    void showNote(const QString& note);

    /// Gives the focus to the field that has it when the dialog opens.
    virtual void focusFirst() = 0;

  private:
    void fit();

    LanguageLibrary& language_;
    QLabel* note_ = nullptr;
    bool resizable_ = false;
};

}  // namespace quendra
