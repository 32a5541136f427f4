#include "widgets/number_edit.h"

#include <QValidator>

#include <algorithm>

namespace quendra {

namespace {

// The value of an empty spin field.
constexpr int noValue = -1;

// Blanks around a pasted number are dropped. Leading zeros are allowed up to the width of the
// largest number.
bool fits(QString& input, int& cursor, std::uint32_t largest) {
    const QString trimmed = input.trimmed();
    if (trimmed != input) {
        input = trimmed;
        cursor = static_cast<int>(input.size());
    }
    if (input.isEmpty()) return true;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return std::all_of(input.begin(), input.end(), isDigit) &&
           input.size() <= QString::number(largest).size() && input.toULongLong() <= largest;
}

class NumberValidator : public QValidator {
  public:
    NumberValidator(std::uint32_t largest, QObject* parent)
        : QValidator(parent), largest_(largest) {}

    State validate(QString& input, int& cursor) const override {
        return fits(input, cursor, largest_) ? Acceptable : Invalid;
    }

  private:
    std::uint32_t largest_;
};

}  // namespace

NumberEdit::NumberEdit(std::uint32_t largest, QWidget* parent)
    : QLineEdit(parent), range_{0, largest} {
    setValidator(new NumberValidator(largest, this));
    setInputMethodHints(Qt::ImhDigitsOnly);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::inputRejected, this,
            [this] { Q_EMIT refused({InputFault::Kind::Number}); });
}

QSize NumberEdit::sizeHint() const {
    constexpr int digitsToSpare = 3;
    const int digits = static_cast<int>(QString::number(range_.largest).size()) + digitsToSpare;
    return {fontMetrics().horizontalAdvance(u'0') * digits, QLineEdit::sizeHint().height()};
}

std::optional<std::uint32_t> NumberEdit::number() const {
    if (text().isEmpty()) return std::nullopt;
    return text().toUInt();
}

SpinEdit::SpinEdit(NumberRange range, QWidget* parent) : QSpinBox(parent), range_(range) {
    setRange(noValue, static_cast<int>(range.largest));
    setValue(static_cast<int>(range.smallest));
    connect(lineEdit(), &QLineEdit::inputRejected, this,
            [this] { Q_EMIT refused({InputFault::Kind::Number}); });
}

std::optional<std::uint32_t> SpinEdit::number() const {
    const int number = value();
    if (number < static_cast<int>(range_.smallest)) return std::nullopt;
    return static_cast<std::uint32_t>(number);
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
    return fits(input, cursor, range_.largest) ? QValidator::Acceptable : QValidator::Invalid;
}

QAbstractSpinBox::StepEnabled SpinEdit::stepEnabled() const {
    StepEnabled enabled = StepNone;
    if (value() < static_cast<int>(range_.largest)) enabled |= StepUpEnabled;
    if (value() > static_cast<int>(range_.smallest)) enabled |= StepDownEnabled;
    return enabled;
}

}  // namespace quendra
