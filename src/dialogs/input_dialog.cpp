// Input: what the script asks its user for.
#include "dialogs/command_dialogs.h"
#include "model/entry_fields.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quendra {

namespace {

constexpr std::uint8_t singleCharacter = 0;
/// A string whose length nobody has chosen yet.
constexpr std::uint8_t stringOfAnyLength = 1;
constexpr int promptLines = 4;

class InputDialog : public ParameterDialog {
  public:
    InputDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "inputDialog", "Input") {
        setWindowTitle(QStringLiteral("Input"));
        addTexts();
        addLength();
        addRest();
        addButtons();
    }

    void load() override {
        title_->setBytes(textOf(fields()));
        prompt_->setBytes(promptOf(fields()));
        const std::uint8_t length = fields().maxLength;
        (length == singleCharacter ? character_ : string_)->setChecked(true);
        length_->setNumber(length < inputLengthRange.smallest ? inputLengthRange.largest : length);
        enableLength();
        hide_->setChecked(fields().hidden != 0);
        // A damaged file may hold another kind: then none is shown, and none is stored.
        variable_->setCurrentIndex(
            fields().inputVariable < inputVariableNames.size() ? fields().inputVariable : -1);
    }

    [[nodiscard]] std::optional<Refusal> check() const override {
        const QString caption =
            target().slot == Slot::Else ? QStringLiteral("Input") : text(textid::inputRefusalTitle);
        if (title_->text().isEmpty()) return required(title_, caption);
        if (string_->isChecked() && !length_->number()) {
            return outOfRange(length_, text(textid::inputLength), caption);
        }
        return std::nullopt;
    }

    void store() override {
        storeText(*title_);
        fields().maxLength = string_->isChecked()
                                 ? static_cast<std::uint8_t>(length_->number().value_or(0))
                                 : singleCharacter;
        setPrompt(fields(), prompt_->bytes());
        fields().hidden = hide_->isChecked() ? 1 : 0;
        const int variable = variable_->currentIndex();
        if (variable >= 0) fields().inputVariable = static_cast<std::uint8_t>(variable);
    }

  private:
    void addTexts() {
        title_ = named(new TextEdit, "title");
        addLabelled("titleLabel", text(textid::inputTitle), title_);
        prompt_ = named(new PromptEdit, "prompt");
        prompt_->setFixedHeight(promptLines * prompt_->fontMetrics().lineSpacing() +
                                2 * prompt_->frameWidth() + 8);
        addLabelled("promptLabel", text(textid::inputPrompt), prompt_);
    }

    void addLength() {
        character_ = named(new QRadioButton(text(textid::inputCharacter).trimmed()), "character");
        string_ = named(new QRadioButton(text(textid::inputString).trimmed()), "string");
        length_ = named(new SpinEdit(inputLengthRange), "maximumLength");
        lengthLabel_ = makeLabel("maximumLengthLabel", text(textid::inputLength), length_);
        body().addSpacing(4);
        body().addWidget(character_);
        body().addWidget(string_);
        QGridLayout& grid = *addGrid();
        // The length belongs to the radio button above it.
        grid.setColumnMinimumWidth(0, 16);
        grid.addWidget(lengthLabel_, 0, 1);
        grid.addWidget(length_, 0, 2);
        connect(string_, &QRadioButton::toggled, this, &InputDialog::enableLength);
        // This choice counts at once; only the dialog of the command itself takes it back.
        connect(character_, &QRadioButton::clicked, this,
                [this] { fields().maxLength = singleCharacter; });
        connect(string_, &QRadioButton::clicked, this, [this] {
            if (fields().maxLength == singleCharacter) fields().maxLength = stringOfAnyLength;
        });
    }

    void addRest() {
        hide_ = named(new QCheckBox(text(textid::inputHide)), "hideInput");
        body().addWidget(hide_);
        variable_ = named(new QComboBox, "variable");
        for (const std::string_view name : inputVariableNames)
            variable_->addItem(qtText(name));
        QGridLayout& grid = *addGrid();
        grid.addWidget(makeLabel("variableLabel", text(textid::inputStoreAs), variable_), 0, 0);
        grid.addWidget(variable_, 0, 1);
    }

    void enableLength() {
        length_->setEnabled(string_->isChecked());
        lengthLabel_->setEnabled(string_->isChecked());
    }

    TextEdit* title_ = nullptr;
    PromptEdit* prompt_ = nullptr;
    QRadioButton* character_ = nullptr;
    QRadioButton* string_ = nullptr;
    SpinEdit* length_ = nullptr;
    QLabel* lengthLabel_ = nullptr;
    QCheckBox* hide_ = nullptr;
    QComboBox* variable_ = nullptr;
};

}  // namespace

std::unique_ptr<ParameterDialog> makeInputDialog(const DialogContext& context,
                                                 const EditTarget& target) {
    return std::make_unique<InputDialog>(context, target);
}

}  // namespace quendra
