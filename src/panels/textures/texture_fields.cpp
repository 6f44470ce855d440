#include "panels/textures/texture_fields.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace velk {
namespace {

constexpr double kScaleStep = 0.1;
constexpr double kFullTurn = 360;

// As a definition holds it, where what is next to a whole turn is one.
float StoredTurn(double degrees) {
  const auto stored = static_cast<float>(WithinTurn(degrees));
  return stored < kFullTurn ? stored : 0;
}

// Scales pass from one sign to the other without stopping at 0.
float SteppedScale(float scale, int direction) {
  const double stepped = scale + kScaleStep * direction;
  return static_cast<float>(std::fabs(stepped) <= kScaleStep / 2 ? kScaleStep * direction : stepped);
}

}  // namespace

std::optional<TextureField> TextureFieldNamed(std::string_view label) {
  for (int i = 0; i < kTextureFields; ++i) {
    if (EqualNoCase(label, kTextureFieldLabels[i])) return static_cast<TextureField>(i);
  }
  return std::nullopt;
}

void StepTextureField(TextureChoice& choice, TextureField field, int direction) {
  texturedef stepped = choice.current();
  switch (field) {
    case TextureField::ShiftS:
      stepped.shift[0] += static_cast<float>(direction);
      break;
    case TextureField::ShiftT:
      stepped.shift[1] += static_cast<float>(direction);
      break;
    case TextureField::Rotate:
      stepped.rotate = StoredTurn(stepped.rotate + 5.0 * direction);
      break;
    case TextureField::ScaleS:
      stepped.scale[0] = SteppedScale(stepped.scale[0], direction);
      break;
    case TextureField::ScaleT:
      stepped.scale[1] = SteppedScale(stepped.scale[1], direction);
      break;
  }
  choice.setCurrent(stepped);
}

void SetTextureField(TextureChoice& choice, TextureField field, double value) {
  texturedef typed = choice.current();
  constexpr double kMost = 1e6;  // a file holds them
  const auto number = static_cast<float>(std::clamp(value, -kMost, kMost));
  switch (field) {
    case TextureField::ShiftS:
      typed.shift[0] = number;
      break;
    case TextureField::ShiftT:
      typed.shift[1] = number;
      break;
    case TextureField::Rotate:
      typed.rotate = StoredTurn(value);
      break;
    case TextureField::ScaleS:
      typed.scale[0] = number == 0 ? 1 : number;
      break;
    case TextureField::ScaleT:
      typed.scale[1] = number == 0 ? 1 : number;
      break;
  }
  choice.setCurrent(typed);
}

double TextureFieldValue(const TextureChoice& choice, TextureField field) {
  const texturedef& t = choice.current();
  const float values[] = {t.shift[0], t.shift[1], t.rotate, t.scale[0], t.scale[1]};
  return static_cast<double>(values[static_cast<size_t>(field)]);
}

void HeldTextureButton::press(TextureField field, int direction) {
  field_ = field;
  direction_ = direction;
  elapsed_ = 0;
}

bool HeldTextureButton::tick() {
  elapsed_ += kHeldButtonTick;
  return runs() && elapsed_ >= kHeldButtonDelay;
}

std::string TextureFieldText(const TextureChoice& choice, TextureField field) {
  const texturedef& shown = choice.current();
  const auto whole = [](float value) { return Format("%i", Truncate(RoundHalfAway(value))); };
  const auto tenths = [](float value) { return Format("%2.1f", static_cast<double>(value)); };
  switch (field) {
    case TextureField::ShiftS:
      return whole(shown.shift[0]);
    case TextureField::ShiftT:
      return whole(shown.shift[1]);
    case TextureField::Rotate:
      return whole(shown.rotate);
    case TextureField::ScaleS:
      return tenths(shown.scale[0]);
    case TextureField::ScaleT:
      return tenths(shown.scale[1]);
  }
  return "";
}

}  // namespace velk
