#pragma once

#include <QDoubleSpinBox>

#include "base/form.h"

namespace velk {

// A number of a form. Its arrows stay within the field's range, but anything may be typed.
class NumberBox : public QDoubleSpinBox {
  Q_OBJECT
 public:
  explicit NumberBox(const FormField& field);

  void setNumberRange(const NumberRange& range);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void stepBy(int steps) override;
  QString textFromValue(double value) const override;
  QValidator::State validate(QString& text, int& cursor) const override;

 protected:
  StepEnabled stepEnabled() const override;

 private:
  NumberRange range_;
};

}  // namespace velk
