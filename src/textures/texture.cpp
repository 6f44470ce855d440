#include "textures/texture.h"

#include "base/text.h"

namespace velk {
namespace {

constexpr size_t kLeadingLimit = 16;

std::string_view SortKey(std::string_view name) {
  if (name.size() > 2 && StartsWithNoCase(name, "+A")) return name.substr(2);
  for (size_t i = 0; i < name.size() && i < kLeadingLimit; ++i) {
    if (name[i] >= 'A' && name[i] <= 'Z') return name.substr(i);
  }
  return {};
}

int MovedOn(int offset, int speed, int size) {
  const long moved = (static_cast<long>(offset) + speed) % size;
  return static_cast<int>(moved < 0 ? moved + size : moved);
}

}  // namespace

int compareTextureNames(std::string_view a, std::string_view b) {
  const int byKey = CompareNoCase(SortKey(a), SortKey(b));
  return byKey != 0 ? byKey : CompareNoCase(a, b);
}

void composeSky(int halfWidth, int height, SkyRecord& sky, int speed, unsigned char* pixels) {
  auto rowAt = [&](int row) {
    return pixels + static_cast<size_t>(row % height) * static_cast<size_t>(halfWidth);
  };
  auto layersAt = [&sky](int row) {
    return &sky.pixels[static_cast<size_t>(row) * static_cast<size_t>(sky.width)];
  };
  for (int y = 0; y < height; ++y) {
    const unsigned char* back = layersAt(y) + halfWidth;
    unsigned char* out = rowAt(sky.rowOffset + y);
    for (int x = 0; x < halfWidth; ++x) out[(sky.columnOffset + x) % halfWidth] = back[x];
  }
  for (int y = 0; y < height; ++y) {
    const unsigned char* front = layersAt(y);
    unsigned char* out = rowAt(2 * height - sky.rowOffset + y - 1);
    for (int x = 0; x < halfWidth; ++x) {
      if (front[x] != 0) out[(sky.columnOffset + x) % halfWidth] = front[x];
    }
  }
  sky.rowOffset = MovedOn(sky.rowOffset, speed, height);
  sky.columnOffset = MovedOn(sky.columnOffset, speed, halfWidth);
}

}  // namespace velk
