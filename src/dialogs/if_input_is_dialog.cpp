// The If_Input_Is dialog: two values to compare, each a variable or a literal, and what to do when
// they are equal or not.
#include "dialogs/action_pair.h"
#include "dialogs/compare_operand.h"
#include "dialogs/parameter_dialog.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace quendra {

namespace {

constexpr ActionTexts equalTexts = {textid::equalButton, textid::equalLine};
constexpr ActionTexts notEqualTexts = {textid::notEqualButton, textid::notEqualLine};

/// A box that offers the variables and takes any text that a script can store.
struct OperandBox {
    QComboBox* box = nullptr;
    TextEdit* text = nullptr;
};

void showOperand(const OperandBox& operand, std::string_view bytes) {
    operand.text->setBytes(bytes);
    const QString text = operand.text->text();
    // The list opens on the variable that is shown; a row also sets the text, and none empties it.
    operand.box->setCurrentIndex(operand.box->findText(text, Qt::MatchExactly));
    operand.text->setBytes(bytes);
}

CompareOperand operandOf(const OperandBox& operand) {
    const SecretText bytes = operand.text->bytes();
    return parseOperand(bytes.view());
}

class IfInputIsDialog : public ParameterDialog {
  public:
    IfInputIsDialog(const DialogContext& context, ScriptEntry& entry)
        : ParameterDialog(context, {entry}, "ifInputIsDialog", "If_Input_Is"),
          actions_(new ActionPair(context.state, entry, ActionOwner::IfInputIs, equalTexts,
                                  notEqualTexts)) {
        setWindowTitle(QStringLiteral("If_Input_Is"));
        first_ = makeBox("firstOperand", "firstOperandText");
        second_ = makeBox("secondOperand", "secondOperandText");
        addLabelled("operandsLabel", text(textid::ifInputIsOperands), first_.box);
        body().addWidget(second_.box);
        body().addSpacing(4);
        body().addWidget(actions_);
        addButtons(text(textid::okButton));
    }

    void load() override {
        showOperand(first_, firstOperandShown(target().entry));
        showOperand(second_, secondOperandShown(target().entry));
        actions_->refresh();
    }

    [[nodiscard]] std::optional<Refusal> check() const override {
        for (const OperandBox& operand : {first_, second_}) {
            if (operand.text->text().isEmpty()) {
                return required(operand.box, QStringLiteral("If_Input_Is"));
            }
        }
        return std::nullopt;
    }

    void store() override {
        setFirstOperand(target().entry, operandOf(first_));
        setSecondOperand(target().entry, operandOf(second_));
    }

  private:
    OperandBox makeBox(const char* name, const char* textName) {
        OperandBox made = {named(new QComboBox, name), new TextEdit};
        // The label leads to the first box only.
        made.box->setAccessibleName(plainLabel(text(textid::ifInputIsOperands)));
        made.box->setEditable(true);
        made.box->setLineEdit(made.text);
        made.box->setInsertPolicy(QComboBox::NoInsert);
        // It would turn a typed "Var" into the name of a variable.
        made.box->setCompleter(nullptr);
        for (const std::string_view variable : inputVariableNames) {
            made.box->addItem(qtText(variable));
        }
        named(made.text, textName);
        return made;
    }

    ActionPair* actions_;
    OperandBox first_;
    OperandBox second_;
};

}  // namespace

bool editIfInputIs(const DialogContext& context, ScriptEntry& entry) {
    // A copy: the dialogs of the actions change it before this one ends.
    ScriptEntry working = entry;
    IfInputIsDialog dialog(context, working);
    if (!dialog.run()) return false;
    entry = working;
    return true;
}

}  // namespace quendra
