#include "panels/textures/texture_fields.h"

#include <cmath>

#include "base/text.h"

namespace velk {
namespace {

constexpr double kScaleStep = 0.1;
constexpr double kFullTurn = 360;

float SteppedRotation(float degrees, int direction) {
  double turned = std::fmod(degrees + 5.0 * direction, kFullTurn);
  if (turned < 0) turned += kFullTurn;
  const auto stored = static_cast<float>(turned);
  return stored < kFullTurn ? stored : 0;
}

// Scales pass from one sign to the other without stopping at 0.
float SteppedScale(float scale, int direction) {
  const double stepped = scale + kScaleStep * direction;
  return static_cast<float>(std::fabs(stepped) <= kScaleStep / 2 ? kScaleStep * direction : stepped);
}

}  // namespace

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
      stepped.rotate = SteppedRotation(stepped.rotate, direction);
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
