// The edit for a text of several lines: the prompt of an Input.
#pragma once

#include "widgets/input_fault.h"

#include <QPlainTextEdit>

#include <string>
#include <string_view>

namespace quendra {

/// At most 1023 characters of windows-1252, a line break counting as two, as it is stored. A longer
/// paste is cut; a text with other characters is refused whole.
class PromptEdit : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit PromptEdit(QWidget* parent = nullptr);

    /// Shows a stored prompt up to its first NUL.
    void setBytes(std::string_view windows1252);
    /// The text with CR LF between its lines, or the stored prompt as it was when nothing has
    /// changed.
    [[nodiscard]] std::string bytes() const;

  Q_SIGNALS:
    void refused(const quendra::InputFault& fault);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    /// Whether a text may take the place of the selection; reports why not.
    [[nodiscard]] bool accepts(const QString& text);
    /// How many more characters fit when the selection goes.
    [[nodiscard]] std::size_t room() const;
    [[nodiscard]] std::string shownBytes() const;

    std::string stored_;
    std::string storedAsShown_;
};

}  // namespace quendra
