#include "desktop/dialogs/number_box.h"

#include <QLineEdit>
#include <algorithm>

#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kArrows = 44;  // pixels beside the text
constexpr int kFewestDigits = 6;

}  // namespace

NumberBox::NumberBox(const FormField& field) {
  setLocale(QLocale::c());  // the editor's files have decimal points everywhere
  setRange(-NumberRange::kLargest, NumberRange::kLargest);
  setDecimals(field.kind == FormField::Kind::Real ? std::max(1, field.range.decimals) : 0);
  setNumberRange(field.range);
}

void NumberBox::setNumberRange(const NumberRange& range) {
  if (range_ == range) return;  // a number that is half typed would be completed
  range_ = range;
  setSingleStep(range.step);
  setSuffix(range.unit.empty() ? QString() : ' ' + ShownText(range.unit));
  setToolTip(ShownText(range.text()));
}

// Wide enough for the range's numbers; that of all numbers would be too much.
QSize NumberBox::sizeHint() const {
  const auto widthOf = [this](const QString& text) { return fontMetrics().horizontalAdvance(text); };
  int width = widthOf(QString(kFewestDigits, '0') + suffix());
  for (const double limit : {range_.low, range_.high}) {
    if (std::abs(limit) < NumberRange::kLargest)
      width = std::max(width, widthOf(textFromValue(limit) + suffix()));
  }
  return {width + kArrows, QDoubleSpinBox::sizeHint().height()};
}

void NumberBox::stepBy(int steps) {
  setValue(std::clamp(value() + steps * singleStep(), range_.low, range_.high));
  selectAll();
}

// Without the zeros that a number does not need.
QString NumberBox::textFromValue(double value) const {
  QString text = QDoubleSpinBox::textFromValue(value);
  if (!text.contains('.')) return text;
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text;
}

// A comma is a decimal point, too.
QValidator::State NumberBox::validate(QString& text, int& cursor) const {
  text.replace(',', '.');
  return QDoubleSpinBox::validate(text, cursor);
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const {
  StepEnabled enabled = StepNone;
  if (value() < range_.high) enabled |= StepUpEnabled;
  if (value() > range_.low) enabled |= StepDownEnabled;
  return enabled;
}

}  // namespace velk
