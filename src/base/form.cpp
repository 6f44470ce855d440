#include "base/form.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

FormField FieldOf(std::string name, std::string label, FormField::Kind kind, std::string value) {
  FormField field;
  field.name = std::move(name);
  field.label = std::move(label);
  field.kind = kind;
  field.value = std::move(value);
  return field;
}

FormField NumberOf(FormField field, NumberRange range) {
  field.range = std::move(range);
  return field;
}

FormField ChosenOf(FormField field, std::vector<std::string> choices) {
  field.choices = std::move(choices);
  return field;
}

}  // namespace

std::string NumberRange::text() const {
  const bool below = low > -kLargest;
  const bool above = high < kLargest;
  std::string limits;
  if (below && above) {
    limits = NumberText(low) + " to " + NumberText(high);
  } else if (below || above) {
    limits = below ? "at least " + NumberText(low) : "at most " + NumberText(high);
  }
  return limits.empty() || unit.empty() ? limits : limits + ' ' + unit;
}

FormField* Form::find(std::string_view name) {
  const auto field = std::find_if(fields.begin(), fields.end(),
                                  [&](const FormField& one) { return EqualNoCase(one.name, name); });
  return field == fields.end() ? nullptr : &*field;
}

const FormField* Form::find(std::string_view name) const { return const_cast<Form*>(this)->find(name); }

const std::string& Form::text(std::string_view name) const {
  const FormField* field = find(name);
  if (!field) Error("%s has no field %s", title.c_str(), std::string(name).c_str());
  return field->value;
}

int Form::whole(std::string_view name) const { return TextToInt(text(name)); }
double Form::real(std::string_view name) const { return TextToDouble(text(name)); }
bool Form::flag(std::string_view name) const { return whole(name) != 0; }

FormField TextField(std::string name, std::string label, std::string value) {
  return FieldOf(std::move(name), std::move(label), FormField::Kind::Text, std::move(value));
}

FormField WholeField(std::string name, std::string label, int value, NumberRange range) {
  return NumberOf(FieldOf(std::move(name), std::move(label), FormField::Kind::Whole, NumberText(value)),
                  std::move(range));
}

FormField RealField(std::string name, std::string label, double value, NumberRange range) {
  return NumberOf(FieldOf(std::move(name), std::move(label), FormField::Kind::Real, NumberText(value)),
                  std::move(range));
}

FormField FlagField(std::string name, std::string label, bool value) {
  return FieldOf(std::move(name), std::move(label), FormField::Kind::Flag, value ? "1" : "0");
}

FormField ChoiceField(std::string name, std::string label, int index, std::vector<std::string> choices) {
  return ChosenOf(FieldOf(std::move(name), std::move(label), FormField::Kind::Choice, NumberText(index)),
                  std::move(choices));
}

FormField RadioField(std::string name, std::string label, int index, std::vector<std::string> choices) {
  return ChosenOf(FieldOf(std::move(name), std::move(label), FormField::Kind::Radio, NumberText(index)),
                  std::move(choices));
}

std::string NumberText(double value) {
  char text[400];
  const auto end = std::to_chars(std::begin(text), std::end(text), value + 0.0, std::chars_format::fixed).ptr;
  return {text, end};
}

}  // namespace velk
