// The fields of every parameter that is a number: they take only what fits.
#pragma once

#include "model/number_range.h"
#include "widgets/input_fault.h"

#include <QLineEdit>
#include <QSpinBox>

#include <cstdint>
#include <optional>

namespace quendra {

/// A plain edit for a number from 0 to a greatest value. It can be left empty, and what would not
/// be such a number cannot be typed.
class NumberEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumberEdit(std::uint32_t largest, QWidget* parent = nullptr);

    void setNumber(std::uint32_t number) { setText(QString::number(number)); }
    /// None when the field is empty.
    [[nodiscard]] std::optional<std::uint32_t> number() const;
    [[nodiscard]] const NumberRange& range() const { return range_; }

    /// As wide as the largest number.
    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    void refused(const quendra::InputFault& fault);

  private:
    NumberRange range_;
};

/// An edit with a spin control for a number within a range that fits an int. What is above the
/// range cannot be typed; what is below, or nothing at all, stays as it was typed, so that the
/// dialog can refuse it where a plain spin box would silently take another number.
class SpinEdit : public QSpinBox {
    Q_OBJECT

  public:
    explicit SpinEdit(NumberRange range, QWidget* parent = nullptr);

    void setNumber(std::uint32_t number) { setValue(static_cast<int>(number)); }
    /// None when the field is empty or its number is below the range.
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
