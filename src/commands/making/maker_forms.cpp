#include "commands/making/maker_forms.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"

namespace velk {
namespace {

constexpr int kDecimals = 6;  // of real numbers

NumberRange RangeOf(const MakerField& field) {
  return {.low = std::max(field.least, -NumberRange::kLargest),
          .high = std::min(field.most, NumberRange::kLargest)};
}

FormField Whole(const MakerField& field, int value) {
  return WholeField(field.name, field.label, value, RangeOf(field));
}

FormField Real(const MakerField& field, double value) {
  NumberRange range = RangeOf(field);
  range.decimals = kDecimals;
  return RealField(field.name, field.label, value, range);
}

FormField Flag(const MakerField& field, bool value) { return FlagField(field.name, field.label, value); }

// A form of whole numbers only.
template <size_t count>
Form WholeForm(const MakerTexts& texts, const MakerField (&fields)[count], const int (&values)[count]) {
  Form form;
  form.title = texts.title;
  for (size_t i = 0; i < count; ++i) form.fields.push_back(Whole(fields[i], values[i]));
  return form;
}

// The least outer radius goes with the inner one.
Form WithRadii(Form form) {
  form.changed = [](Form& now) { now.find("outer")->range.low = std::max(now.whole("inner"), 1) + 1.0; };
  return form;
}

int PlaceOf(const std::vector<std::string>& names, const std::string& name) {
  const auto same = [&name](const std::string& other) { return EqualNoCase(other, name); };
  const auto place = std::find_if(names.begin(), names.end(), same);
  return place == names.end() ? 0 : static_cast<int>(place - names.begin());
}

}  // namespace

Form FormOf(const PrismParams& params) {
  return WholeForm(kPrismTexts, kPrismFields, {params.sides, params.radius});
}

Form FormOf(const PyramidParams& params) {
  return WholeForm(kPyramidTexts, kPyramidFields, {params.sides, params.radius, params.height});
}

Form FormOf(const CylinderParams& params) {
  return WithRadii(
      WholeForm(kCylinderTexts, kCylinderFields, {params.sides, params.strips, params.inner, params.outer}));
}

Form FormOf(const SphereParams& params) {
  return WithRadii(WholeForm(kSphereTexts, kSphereFields,
                             {params.horizontal, params.vertical, params.inner, params.outer}));
}

Form FormOf(const RevolveParams& params) {
  return WithRadii(WholeForm(kRevolveTexts, kRevolveFields, {params.strips, params.inner, params.outer}));
}

Form FormOf(const BoxParams& params) {
  Form form;
  form.title = kBoxTexts.title;
  for (int axis = 0; axis < 3; ++axis) form.fields.push_back(Real(kBoxFields[axis], params.at[axis]));
  for (int axis = 0; axis < 3; ++axis) form.fields.push_back(Real(kBoxFields[3 + axis], params.widths[axis]));
  return form;
}

Form FormOf(const ArchParams& params) {
  Form form;
  form.title = kArchTexts.title;
  form.fields = {Whole(kArchFields[0], params.stones), Whole(kArchFields[1], params.post),
                 Flag(kArchFields[2], params.onX)};
  return form;
}

Form FormOf(const StairParams& params) {
  const MakerField& type = kStairFields[5];
  Form form;
  form.title = kStairsTitle;
  form.fields = {Whole(kStairFields[0], params.steps),
                 Whole(kStairFields[1], params.width),
                 Whole(kStairFields[2], params.gap),
                 Real(kStairFields[3], params.turns),
                 Whole(kStairFields[4], params.distance),
                 RadioField(type.name, type.label, static_cast<int>(params.type),
                            {std::begin(kStairTypes), std::end(kStairTypes)}),
                 Flag(kStairFields[6], params.onX),
                 Flag(kStairFields[7], params.down)};
  return form;
}

Form FormOf(const LightParams& params, std::vector<std::string> types) {
  const MakerField& type = kLightFields[4];
  Form form;
  form.title = kLightsTexts.title;
  for (int axis = 0; axis < 3; ++axis) {
    form.fields.push_back(Whole(kLightFields[axis], params.counts[axis]));
  }
  form.fields.push_back(Whole(kLightFields[3], params.value));
  const int chosen = PlaceOf(types, params.type);
  form.fields.push_back(ChoiceField(type.name, type.label, chosen, std::move(types)));
  return form;
}

void Read(const Form& form, PrismParams& params) {
  params = Limited(PrismParams{form.whole("sides"), form.whole("radius")});
}

void Read(const Form& form, PyramidParams& params) {
  params = Limited(PyramidParams{form.whole("sides"), form.whole("radius"), form.whole("height")});
}

void Read(const Form& form, CylinderParams& params) {
  params = Limited(
      CylinderParams{form.whole("sides"), form.whole("strips"), form.whole("inner"), form.whole("outer")});
}

void Read(const Form& form, SphereParams& params) {
  params = Limited(SphereParams{form.whole("horizontal"), form.whole("vertical"), form.whole("inner"),
                                form.whole("outer")});
}

void Read(const Form& form, RevolveParams& params) {
  params = Limited(RevolveParams{form.whole("strips"), form.whole("inner"), form.whole("outer")});
}

void Read(const Form& form, BoxParams& params) {
  for (int axis = 0; axis < 3; ++axis) {
    params.at[axis] = static_cast<float>(form.real(kBoxFields[axis].name));
    params.widths[axis] = static_cast<float>(std::max(form.real(kBoxFields[3 + axis].name), kLeastBoxWidth));
  }
}

void Read(const Form& form, ArchParams& params) {
  params = Limited(ArchParams{form.whole("stones"), form.whole("post"), form.flag("on_x")});
}

void Read(const Form& form, StairParams& params) {
  params = Limited(StairParams{
      form.whole("steps"), form.whole("width"), form.whole("gap"), form.real("turns"), form.whole("distance"),
      static_cast<StairType>(form.whole("type")), form.flag("on_x"), form.flag("down")});
}

void Read(const Form& form, LightParams& params) {
  for (int axis = 0; axis < 3; ++axis) params.counts[axis] = form.whole(kLightFields[axis].name);
  params.value = form.whole("value");
  const std::vector<std::string>& types = form.find("type")->choices;
  const auto chosen = static_cast<size_t>(form.whole("type"));
  params.type = chosen < types.size() ? types[chosen] : "";
}

}  // namespace velk
