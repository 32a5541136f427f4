// The fields of every parameter that is a number. They take as many digits as the largest number of
// their range has; a number beyond the range stays as it was typed, so that the dialog refuses it
// where a field that drops a digit would make another number of it.
#pragma once

#include "model/number_range.h"
#include "widgets/input_fault.h"

#include <QLineEdit>
#include <QSpinBox>

#include <cstdint>
#include <optional>

namespace quendra {

/// A plain edit for a number.
class NumberEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumberEdit(NumberRange range, QWidget* parent = nullptr);

    void setNumber(std::uint32_t number) { setText(QString::number(number)); }
    /// None when the field is empty or its number is outside of the range.
    [[nodiscard]] std::optional<std::uint32_t> number() const;
    [[nodiscard]] const NumberRange& range() const { return range_; }

    /// As wide as the largest number.
    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    void refused(const quendra::InputFault& fault);

  private:
    NumberRange range_;
};

/// An edit with a spin control, which stays within the range, for numbers that fit an int.
class SpinEdit : public QSpinBox {
    Q_OBJECT

  public:
    explicit SpinEdit(NumberRange range, QWidget* parent = nullptr);

    void setNumber(std::uint32_t number) { setValue(static_cast<int>(number)); }
    /// None when the field is empty or its number is outside of the range.
    [[nodiscard]] std::optional<std::uint32_t> number() const;
    [[nodiscard]] const NumberRange& range() const { return range_; }

    void stepBy(int steps) override;

  Q_SIGNALS:
    void refused(const quendra::InputFault& fault);

  protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& input, int& cursor) const override;
    StepEnabled stepEnabled() const override;

  private:
    NumberRange range_;
};

}  // namespace quendra
