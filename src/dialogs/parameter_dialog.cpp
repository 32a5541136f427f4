#include "dialogs/parameter_dialog.h"

#include "text/text_ids.h"
#include "widgets/input_note.h"
#include "widgets/scrolling_content.h"
#include "widgets/symbol_icon.h"
#include "widgets/ui_text.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace quendra {

namespace {

constexpr int pictureSide = 32;
/// Wide enough for most texts.
constexpr int bodyCharacters = 52;

// Painted when it is shown, so that it follows the palette and every scale.
class CommandPicture : public QWidget {
  public:
    explicit CommandPicture(int bitmapId) : icon_(bitmapIcon(bitmapId)) {
        setFixedSize(pictureSide, pictureSide);
    }

    void setBitmap(int bitmapId) {
        icon_ = bitmapIcon(bitmapId);
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        icon_.paint(&painter, rect());
    }

  private:
    QIcon icon_;
};

}  // namespace

QString plainLabel(QString label) {
    label.remove(u'&');
    label = label.trimmed();
    if (label.endsWith(u':')) label.chop(1);
    return label;
}

void selectAllText(QWidget* field) {
    if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(field)) spin->selectAll();
}

ParameterDialog::ParameterDialog(const DialogContext& context, const EditTarget& target,
                                 const char* name, std::string_view helpPage)
    : DialogFrame(context.state.language, context.window, name, helpPage),
      context_(context),
      target_(target) {
    picture_ = new CommandPicture(bitmapIdOf(fields().code, fields().commandId));
    picture_->setObjectName(QStringLiteral("commandPicture"));
    body_ = new QVBoxLayout;
    body_->setSpacing(6);
    body_->addStrut(std::max(fontMetrics().averageCharWidth() * bodyCharacters, widestNote()));

    auto* content = new QWidget;
    auto* top = new QHBoxLayout(content);
    top->setContentsMargins({});
    top->setSpacing(16);
    top->addWidget(picture_, 0, Qt::AlignTop);
    top->addLayout(body_, 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(16, 16, 16, 12);
    all->setSpacing(8);
    all->addWidget(new ScrollingContent(content), 1);
}

// The notes that come up most often take one line.
int ParameterDialog::widestNote() const {
    int widest = 0;
    for (const InputFault& fault :
         {InputFault{InputFault::Kind::Character, QStringLiteral("W")},
          InputFault{InputFault::Kind::Length, {}, maxPromptLength},
          InputFault{InputFault::Kind::HiddenLength, {}, maxHiddenTextLength}}) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(faultNote(language(), fault)));
    }
    return widest;
}

QGridLayout* ParameterDialog::addGrid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    auto* row = new QHBoxLayout;
    row->addLayout(grid);
    row->addStretch(1);
    body_->addLayout(row);
    return grid;
}

QLabel* ParameterDialog::makeLabel(const char* name, const QString& text, QWidget* buddy) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    if (buddy != nullptr) label->setBuddy(buddy);
    return label;
}

void ParameterDialog::addLabelled(const char* labelName, const QString& label, QWidget* field) {
    body_->addWidget(makeLabel(labelName, label, field));
    body_->addWidget(field);
}

void ParameterDialog::setPicture(int bitmapId) {
    static_cast<CommandPicture*>(picture_)->setBitmap(bitmapId);
}

void ParameterDialog::addButtons(const QString& okText, QPushButton* other) {
    auto& all = static_cast<QVBoxLayout&>(*layout());
    if (hasTypedFields()) addNoteLine(all);
    all.addWidget(makeButtons(okText, other));
    finish();
}

bool ParameterDialog::hasTypedFields() const {
    return std::any_of(fields_.begin(), fields_.end(), [](const QWidget* field) {
        return qobject_cast<const QLineEdit*>(field) != nullptr ||
               qobject_cast<const QSpinBox*>(field) != nullptr;
    });
}

void ParameterDialog::addNoteLine(QBoxLayout& all) {
    QLabel* note = makeNote();
    // One line always stays free for it, so that the fields do not move while something is typed.
    note->setMinimumHeight(fontMetrics().lineSpacing());
    auto* row = new QHBoxLayout;
    row->addSpacing(pictureSide + 16);
    row->addWidget(note, 1);
    all.addLayout(row);
}

void ParameterDialog::registerField(QWidget* field, const char* name) {
    field->setObjectName(QLatin1String(name));
    field->installEventFilter(this);
    fields_.push_back(field);
}

TextEdit* ParameterDialog::named(TextEdit* field, const char* name) {
    registerField(field, name);
    connect(field, &TextEdit::refused, this,
            [this, field](const InputFault& fault) { showFault(field, fault); });
    // A paste that was cut to the field's length is an edit too: its note stays.
    connect(field, &QLineEdit::textEdited, this, [this, field] {
        if (field->text().size() < field->maxLength()) showRange();
    });
    return field;
}

PromptEdit* ParameterDialog::named(PromptEdit* field, const char* name) {
    registerField(field, name);
    connect(field, &PromptEdit::refused, this,
            [this, field](const InputFault& fault) { showFault(field, fault); });
    connect(field, &QPlainTextEdit::textChanged, this, &ParameterDialog::showRange);
    return field;
}

NumberEdit* ParameterDialog::named(NumberEdit* field, const char* name) {
    registerField(field, name);
    field->setToolTip(rangeText(field));
    connect(field, &NumberEdit::refused, this,
            [this, field](const InputFault& fault) { showFault(field, fault); });
    connect(field, &QLineEdit::textEdited, this, &ParameterDialog::showRange);
    return field;
}

SpinEdit* ParameterDialog::named(SpinEdit* field, const char* name) {
    registerField(field, name);
    field->setToolTip(rangeText(field));
    connect(field, &SpinEdit::refused, this,
            [this, field](const InputFault& fault) { showFault(field, fault); });
    connect(field, &QSpinBox::textChanged, this, &ParameterDialog::showRange);
    return field;
}

QString ParameterDialog::rangeText(const QWidget* field) const {
    const NumberRange* range = nullptr;
    if (const auto* number = qobject_cast<const NumberEdit*>(field)) range = &number->range();
    if (const auto* spin = qobject_cast<const SpinEdit*>(field)) range = &spin->range();
    return range == nullptr ? QString() : rangeNote(language(), *range);
}

void ParameterDialog::showRange() {
    showNote(rangeText(focusWidget()));
}

void ParameterDialog::showFault(const QWidget* field, const InputFault& fault) {
    const bool isNumber = fault.kind == InputFault::Kind::Number;
    showNote(isNumber ? rangeText(field) : faultNote(language(), fault));
    QApplication::beep();
}

bool ParameterDialog::eventFilter(QObject* watched, QEvent* event) {
    // When the focus only comes back with the window, what was said before is still true: that a
    // chosen file cannot be taken, for instance.
    const bool focused =
        event->type() == QEvent::FocusIn &&
        static_cast<const QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
    if (focused) showNote(rangeText(qobject_cast<QWidget*>(watched)));
    return DialogFrame::eventFilter(watched, event);
}

void ParameterDialog::focusFirst() {
    const auto first = std::find_if(fields_.begin(), fields_.end(), [this](const QWidget* field) {
        return field->isVisibleTo(this) && field->isEnabledTo(this);
    });
    if (first == fields_.end()) return;
    (*first)->setFocus();
    selectAllText(*first);
}

bool ParameterDialog::run() {
    load();
    const bool accepted = exec() == Accepted;
    // When this and the dialog above it close at once, a window manager may give the focus to the
    // one that is just going, and then nothing has it.
    if (parentWidget() != nullptr) parentWidget()->window()->activateWindow();
    return accepted;
}

void ParameterDialog::accept() {
    if (const auto found = check()) {
        refuse(*found);
        return;
    }
    store();
    DialogFrame::accept();
}

Refusal ParameterDialog::refusal(QWidget* field, const QString& text, const QString& caption) {
    return {{text.toStdString(), caption.toStdString(), MessageIcon::Information,
             MessageButtons::Ok, false},
            field};
}

Refusal ParameterDialog::required(QWidget* field, const QString& caption) const {
    return refusal(field, text(textid::valueRequired), caption);
}

Refusal ParameterDialog::outOfRange(QWidget* field, const NumberRange& range, const QString& label,
                                    const QString& caption) const {
    const std::string text =
        libraryText(language(), textid::numberOutOfRange,
                    {plainLabel(label).toStdString(), std::to_string(range.smallest),
                     std::to_string(range.largest)});
    return refusal(field, qtText(text), caption);
}

Refusal ParameterDialog::outOfRange(SpinEdit* field, const QString& label,
                                    const QString& caption) const {
    return outOfRange(field, field->range(), label, caption);
}

std::optional<Refusal> ParameterDialog::numberRefusal(NumberEdit* field, const QString& label,
                                                      const QString& caption) const {
    if (field->number()) return std::nullopt;
    if (field->text().isEmpty()) return required(field, caption);
    return outOfRange(field, field->range(), label, caption);
}

void ParameterDialog::storeText(const TextEdit& field) const {
    const SecretText text = field.bytes();
    if (text.view() != textOf(fields())) setText(fields(), text.view());
}

void ParameterDialog::refuse(const Refusal& refusal) {
    showMessage(this, refusal.message);
    if (refusal.field == nullptr) return;
    refusal.field->setFocus();
    selectAllText(refusal.field);
}

}  // namespace quendra
