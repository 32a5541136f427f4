#include "dialogs/rename_label_dialog.h"

#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/dialog_frame.h"
#include "widgets/input_note.h"
#include "widgets/message_box.h"
#include "widgets/scrolling_content.h"
#include "widgets/text_edit.h"
#include "widgets/ui_text.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace quendra {

namespace {

constexpr int nameCharacters = 40;

const LabelOutline* labelNamed(const ScriptOutline& outline, std::string_view name) {
    const auto label = std::ranges::find(outline.labels, name, &LabelOutline::name);
    return label == outline.labels.end() ? nullptr : &*label;
}

std::size_t entriesThatName(const LabelOutline& label) {
    std::set<std::size_t> steps;
    for (const StepPlace& place : label.definitions) {
        steps.insert(place.step);
    }
    for (const StepPlace& place : label.uses) {
        steps.insert(place.step);
    }
    return steps.size();
}

class RenameLabelDialog : public DialogFrame {
  public:
    RenameLabelDialog(LanguageLibrary& language, QWidget* window, const ScriptOutline& outline,
                      const std::vector<std::string>& names);

    void accept() override;

    [[nodiscard]] LabelRenaming renaming() const {
        return {before(), std::string(name_->bytes().view())};
    }

  private:
    void addChoice(QVBoxLayout& body);
    void addName(QVBoxLayout& body);
    void chosen();
    void showCount();
    [[nodiscard]] const std::string& before() const {
        return names_[choice_ == nullptr ? 0 : static_cast<std::size_t>(choice_->currentIndex())];
    }
    /// Why the name cannot be taken; empty when it can.
    [[nodiscard]] QString refusal() const;
    void focusFirst() override {
        name_->setFocus();
        name_->selectAll();
    }

    const ScriptOutline& outline_;
    const std::vector<std::string>& names_;
    /// Only where there are several.
    QComboBox* choice_ = nullptr;
    TextEdit* name_ = nullptr;
    QLabel* count_ = nullptr;
};

RenameLabelDialog::RenameLabelDialog(LanguageLibrary& language, QWidget* window,
                                     const ScriptOutline& outline,
                                     const std::vector<std::string>& names)
    : DialogFrame(language, window, "renameLabelDialog", "Label"),
      outline_(outline),
      names_(names) {
    setWindowTitle(text(textid::renameLabelToolTip));
    auto* content = new QWidget;
    auto* body = new QVBoxLayout(content);
    body->setContentsMargins({});
    body->setSpacing(6);
    if (names.size() > 1) addChoice(*body);
    addName(*body);
    count_ = new QLabel;
    count_->setObjectName(QStringLiteral("changes"));
    count_->setTextFormat(Qt::PlainText);
    body->addWidget(count_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(16, 16, 16, 12);
    all->setSpacing(8);
    all->addWidget(new ScrollingContent(content), 1);
    QLabel* note = makeNote();
    note->setMinimumHeight(2 * fontMetrics().lineSpacing());
    note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    all->addWidget(note);
    all->addWidget(makeButtons(text(textid::okButton)));
    finish();
    chosen();
}

void RenameLabelDialog::addChoice(QVBoxLayout& body) {
    choice_ = new QComboBox;
    choice_->setObjectName(QStringLiteral("label"));
    choice_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice_->setMinimumContentsLength(nameCharacters / 2);
    for (const std::string& name : names_) {
        choice_->addItem(qtText(escapeControlCharacters(utf8FromWindows1252(name))));
    }
    auto* label = new QLabel(text(textid::renameLabelChoice));
    label->setObjectName(QStringLiteral("labelLabel"));
    label->setBuddy(choice_);
    body.addWidget(label);
    body.addWidget(choice_);
    connect(choice_, &QComboBox::currentIndexChanged, this, &RenameLabelDialog::chosen);
}

void RenameLabelDialog::addName(QVBoxLayout& body) {
    name_ = new TextEdit;
    name_->setObjectName(QStringLiteral("name"));
    name_->setMinimumWidth(fontMetrics().averageCharWidth() * nameCharacters);
    auto* label = new QLabel(text(textid::renameLabelField));
    label->setObjectName(QStringLiteral("nameLabel"));
    label->setBuddy(name_);
    body.addWidget(label);
    body.addWidget(name_);
    connect(name_, &TextEdit::refused, this, [this](const InputFault& fault) {
        showNote(faultNote(this->language(), fault));
        QApplication::beep();
    });
    connect(name_, &QLineEdit::textEdited, this, &RenameLabelDialog::showCount);
}

void RenameLabelDialog::chosen() {
    name_->setBytes(before());
    name_->selectAll();
    showCount();
}

void RenameLabelDialog::showCount() {
    const LabelOutline* label = labelNamed(outline_, before());
    const bool changes = label != nullptr && name_->bytes().view() != before();
    const std::size_t count = changes && refusal().isEmpty() ? entriesThatName(*label) : 0;
    count_->setText(
        qtText(libraryText(language(), textid::renameLabelChanges, {std::to_string(count)})));
    // An empty field says itself what it lacks.
    showNote(name_->text().isEmpty() ? QString() : refusal());
}

QString RenameLabelDialog::refusal() const {
    const SecretText name = name_->bytes();
    if (name.view().empty()) return text(textid::valueRequired);
    if (name.view() == before()) return {};
    const LabelOutline* existing = labelNamed(outline_, name.view());
    if (existing == nullptr || existing->definitions.empty()) return {};
    const std::size_t step = existing->definitions.front().step;
    return qtText(libraryText(language(), textid::renameLabelExists, {std::to_string(step + 1)}));
}

void RenameLabelDialog::accept() {
    const QString found = refusal();
    if (found.isEmpty()) return DialogFrame::accept();
    showMessage(this, {found.toStdString(), windowTitle().toStdString(), MessageIcon::Information,
                       MessageButtons::Ok, false});
    focusFirst();
}

}  // namespace

std::optional<LabelRenaming> askForLabelName(LanguageLibrary& language, QWidget* window,
                                             const ScriptOutline& outline,
                                             const std::vector<std::string>& names) {
    RenameLabelDialog dialog(language, window, outline, names);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    LabelRenaming renaming = dialog.renaming();
    if (renaming.before == renaming.after) return std::nullopt;
    return renaming;
}

}  // namespace quendra
