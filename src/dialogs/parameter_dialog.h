// What every parameter dialog shares. A dialog is three functions over one slot of the working
// copy: load() shows the record, check() says what is wrong with the fields, store() writes the
// record. None of them needs the dialog to be on the screen.
#pragma once

#include "dialogs/parameter_dialogs.h"
#include "widgets/dialog_frame.h"
#include "widgets/input_fault.h"
#include "widgets/message_box.h"
#include "widgets/number_edit.h"
#include "widgets/prompt_edit.h"
#include "widgets/text_edit.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quendra {

/// Why a dialog cannot end with OK: what the user is told, and the field that then has the focus.
struct Refusal {
    Message message;
    QWidget* field = nullptr;
};

/// A dialog with the command's picture at the top left, the fields beside it, one line for notes
/// where something is typed, and OK and Cancel. A derived class builds its fields in its
/// constructor, each through add...() or named(), and ends that with addButtons().
class ParameterDialog : public DialogFrame {
    Q_OBJECT

  public:
    /// `name` is the dialog's object name; `helpPage`, in the property of that name, says which
    /// page of the manual is about it. The target's entry and the context's state outlive the
    /// dialog.
    ParameterDialog(const DialogContext& context, const EditTarget& target, const char* name,
                    std::string_view helpPage);

    virtual void load() = 0;
    /// The first thing that is wrong with the fields, in the order in which they are checked.
    [[nodiscard]] virtual std::optional<Refusal> check() const = 0;
    /// Called only when check() found nothing.
    virtual void store() = 0;

    /// Loads, shows the dialog in the middle of the screen and gives true when it ended with OK.
    [[nodiscard]] bool run();

    void accept() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] const DialogContext& context() const { return context_; }
    [[nodiscard]] const EditTarget& target() const { return target_; }
    /// The slot that this dialog edits.
    [[nodiscard]] Step& fields() const { return slotFields(target_.entry, target_.slot); }

    /// Where the fields go, from top to bottom.
    [[nodiscard]] QVBoxLayout& body() { return *body_; }
    /// The rows and columns of a few short fields, beside each other at the left.
    QGridLayout* addGrid();
    /// A label of plain text. Its mnemonic moves to `buddy`, which has to be there already.
    QLabel* makeLabel(const char* name, const QString& text, QWidget* buddy = nullptr);
    /// A label above `field`.
    void addLabelled(const char* labelName, const QString& label, QWidget* field);

    /// Gives a field its object name. The first enabled one has the focus when the dialog opens;
    /// what a field refuses, and the range of a number, shows in the line for notes.
    template <class Field>
    Field* named(Field* field, const char* name) {
        registerField(field, name);
        return field;
    }
    TextEdit* named(TextEdit* field, const char* name);
    PromptEdit* named(PromptEdit* field, const char* name);
    NumberEdit* named(NumberEdit* field, const char* name);
    SpinEdit* named(SpinEdit* field, const char* name);

    /// Shows the command's icon in the corner; by default that of the slot's command.
    void setPicture(int bitmapId);
    /// OK and Cancel, and another one apart from them.
    void addButtons(const QString& okText = QStringLiteral("OK"), QPushButton* other = nullptr);

    /// The refusals that several dialogs have. `label` names the field as its label does.
    [[nodiscard]] Refusal required(QWidget* field, const QString& caption) const;
    [[nodiscard]] Refusal outOfRange(SpinEdit* field, const QString& label,
                                     const QString& caption) const;
    /// That of a number that is missing or out of range; none for one that can be stored.
    [[nodiscard]] std::optional<Refusal> numberRefusal(NumberEdit* field, const QString& label,
                                                       const QString& caption) const;
    /// A refusal in the caller's own words.
    [[nodiscard]] static Refusal refusal(QWidget* field, const QString& text,
                                         const QString& caption);

    /// Stores a text into the slot. A text that the user left as it was keeps what was stored with
    /// it.
    void storeText(const TextEdit& field) const;

    /// Tells the user and moves the focus to the field.
    void refuse(const Refusal& refusal);

  private:
    void registerField(QWidget* field, const char* name);
    [[nodiscard]] bool hasTypedFields() const;
    void addNoteLine(QBoxLayout& all);
    void showFault(const QWidget* field, const InputFault& fault);
    void showRange();
    [[nodiscard]] QString rangeText(const QWidget* field) const;
    [[nodiscard]] Refusal outOfRange(QWidget* field, const NumberRange& range, const QString& label,
                                     const QString& caption) const;
    [[nodiscard]] int widestNote() const;
    void focusFirst() override;

    DialogContext context_;
    EditTarget target_;
    QVBoxLayout* body_ = nullptr;
    QWidget* picture_ = nullptr;
    std::vector<QWidget*> fields_;
};

/// A label as a name in a message: without its mnemonic and its colon.
[[nodiscard]] QString plainLabel(QString label);

/// Selects all of a line edit's or a spin box's text; other widgets are left alone.
void selectAllText(QWidget* field);

}  // namespace quendra
