#include "panels/texture_browser.h"

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

void TextureBrowser::reset() {
  current_.shift[0] = current_.shift[1] = 0;
  current_.rotate = 0;
  current_.scale[0] = current_.scale[1] = 1;
}

void TextureBrowser::step(TextureField field, int direction) {
  switch (field) {
    case TextureField::ShiftS:
      current_.shift[0] += static_cast<float>(direction);
      break;
    case TextureField::ShiftT:
      current_.shift[1] += static_cast<float>(direction);
      break;
    case TextureField::Rotate:
      current_.rotate = SteppedRotation(current_.rotate, direction);
      break;
    case TextureField::ScaleS:
      current_.scale[0] = SteppedScale(current_.scale[0], direction);
      break;
    case TextureField::ScaleT:
      current_.scale[1] = SteppedScale(current_.scale[1], direction);
      break;
  }
}

std::string TextureBrowser::fieldText(TextureField field) const {
  auto whole = [](float value) { return Format("%i", Truncate(RoundHalfAway(value))); };
  auto tenths = [](float value) { return Format("%2.1f", static_cast<double>(value)); };
  switch (field) {
    case TextureField::ShiftS:
      return whole(current_.shift[0]);
    case TextureField::ShiftT:
      return whole(current_.shift[1]);
    case TextureField::Rotate:
      return whole(current_.rotate);
    case TextureField::ScaleS:
      return tenths(current_.scale[0]);
    case TextureField::ScaleT:
      return tenths(current_.scale[1]);
  }
  return "";
}

void TextureBrowser::wadLoaded() {
  currentIndex_ = 0;
  reset();
}

void TextureBrowser::takeFirstTexture(const TextureSet& set) {
  if (set.count() > 0) current_.name = set.at(0).texture->name;
}

bool TextureBrowser::selectTexture(TextureSet& set, int index) {
  if (index < 0 || index >= set.count()) return false;
  currentIndex_ = index;
  current_.name = set.currentName = set.at(index).texture->name;
  return true;
}

bool TextureBrowser::liftTexture(const texturedef& definition, TextureSet* set) {
  if (EqualNoCase(definition.name, "ENTITY")) return false;
  if (set) selectTexture(*set, set->indexOf(definition.name));
  current_ = definition;
  return true;
}

}  // namespace velk
