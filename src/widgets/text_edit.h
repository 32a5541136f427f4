// The line edit of every parameter that is a text: it takes only what a script can store.
#pragma once

#include "widgets/input_fault.h"
#include "widgets/secret_text.h"

#include <QLineEdit>

#include <functional>
#include <string_view>

class QMenu;

namespace quendra {

class TextValidator;

/// At most 255 characters of windows-1252, or fewer by setMaxLength(), in one line. A longer paste
/// is cut; a text with other characters is refused whole; of several pasted lines the first is
/// taken, and that is reported. Line breaks and other control characters that a file brought in
/// stay in the text.
///
/// While masked, the line edit itself knows asterisks only: the text lies in a SecretText, so no
/// undo history, layout or freed buffer of Qt's holds it. Read it with bytes(); text() then gives
/// asterisks. A text that was typed before the field was masked has been on the screen and in Qt's
/// memory; that is for the user to know.
class TextEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit TextEdit(QWidget* parent = nullptr);

    /// Shows a stored text, as it stands.
    void setBytes(std::string_view windows1252);
    [[nodiscard]] SecretText bytes() const;

    /// Replaces the text as if it had been pasted over it. False when the text has characters that
    /// cannot be stored, has several lines or is too long; then nothing changes and the refusal is
    /// reported.
    [[nodiscard]] bool takeText(const QString& text);

    /// Shows every character as "*" or in the clear. A masked field takes at most 246 characters,
    /// which is what can be enciphered; a longer text that it already has is kept.
    void setMasked(bool masked);

  Q_SIGNALS:
    void refused(const quendra::InputFault& fault);
    void maskingChanged(bool masked);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    [[nodiscard]] std::size_t lengthLimit() const;
    /// False when the line edit itself pastes such a text as it should.
    bool insertPasted(const QString& text);
    void beginUndoStep();
    /// Reports further lines behind `take`, unless that has refused the first one.
    void takeFirstLine(bool hasFurther, const std::function<void()>& take);
    void insertMasked(const QString& line);
    void removeMaskedSelection();
    void showMask(std::size_t cursor);
    void followMaskedChange();
    void reportRejection();
    void useForThis(QMenu& menu);

    TextValidator* validator_;
    bool masked_ = false;
    bool showingMask_ = false;
    SecretText secret_;
};

}  // namespace quendra
