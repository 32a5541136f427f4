#include "widgets/number_edit.h"

#include <QValidator>

#include <algorithm>

namespace quendra {

namespace {

// The value of an empty spin field.
constexpr int noValue = -1;

qsizetype digitsOf(const NumberRange& range) {
    return QString::number(range.largest).size();
}

// Blanks around a pasted number are dropped.
bool fits(QString& input, int& cursor, qsizetype digits) {
    const QString trimmed = input.trimmed();
    if (trimmed != input) {
        input = trimmed;
        cursor = static_cast<int>(input.size());
    }
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return input.size() <= digits && std::all_of(input.begin(), input.end(), isDigit);
}

std::optional<std::uint32_t> numberWithin(const NumberRange& range, const QString& text) {
    bool isNumber = false;
    const qulonglong number = text.toULongLong(&isNumber);
    if (!isNumber || number < range.smallest || number > range.largest) return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

class NumberValidator : public QValidator {
  public:
    NumberValidator(qsizetype digits, QObject* parent) : QValidator(parent), digits_(digits) {}

    State validate(QString& input, int& cursor) const override {
        return fits(input, cursor, digits_) ? Acceptable : Invalid;
    }

  private:
    qsizetype digits_;
};

}  // namespace

NumberEdit::NumberEdit(NumberRange range, QWidget* parent) : QLineEdit(parent), range_(range) {
    setValidator(new NumberValidator(digitsOf(range), this));
    setInputMethodHints(Qt::ImhDigitsOnly);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::inputRejected, this,
            [this] { Q_EMIT refused({InputFault::Kind::Number}); });
}

QSize NumberEdit::sizeHint() const {
    constexpr int digitsToSpare = 3;
    const int digits = static_cast<int>(digitsOf(range_)) + digitsToSpare;
    return {fontMetrics().horizontalAdvance(u'0') * digits, QLineEdit::sizeHint().height()};
}

std::optional<std::uint32_t> NumberEdit::number() const {
    return numberWithin(range_, text());
}

SpinEdit::SpinEdit(NumberRange range, QWidget* parent) : QSpinBox(parent), range_(range) {
    setRange(noValue, QString(digitsOf(range), u'9').toInt());
    setValue(static_cast<int>(range.smallest));
    connect(lineEdit(), &QLineEdit::inputRejected, this,
            [this] { Q_EMIT refused({InputFault::Kind::Number}); });
}

std::optional<std::uint32_t> SpinEdit::number() const {
    return numberWithin(range_, textFromValue(value()));
}

void SpinEdit::stepBy(int steps) {
    const int next = value() == noValue ? static_cast<int>(range_.smallest) : value() + steps;
    setValue(std::clamp(next, static_cast<int>(range_.smallest), static_cast<int>(range_.largest)));
    selectAll();
}

QString SpinEdit::textFromValue(int value) const {
    return value == noValue ? QString() : QString::number(value);
}

int SpinEdit::valueFromText(const QString& text) const {
    return text.isEmpty() ? noValue : text.toInt();
}

QValidator::State SpinEdit::validate(QString& input, int& cursor) const {
    return fits(input, cursor, digitsOf(range_)) ? QValidator::Acceptable : QValidator::Invalid;
}

QAbstractSpinBox::StepEnabled SpinEdit::stepEnabled() const {
    StepEnabled enabled = StepNone;
    if (value() < static_cast<int>(range_.largest)) enabled |= StepUpEnabled;
    if (value() > static_cast<int>(range_.smallest)) enabled |= StepDownEnabled;
    return enabled;
}

}  // namespace quendra
