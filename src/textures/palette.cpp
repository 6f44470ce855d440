#include "textures/palette.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/error.h"
#include "base/numbers.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr size_t kAveragedPixels = 1024;

// Takes the next whitespace-separated integer off `text`; false when there is none.
bool TakeChannel(std::string_view& text, unsigned char& channel) {
  const std::optional<int> value = TakeWhole(text);
  if (value) channel = static_cast<unsigned char>(*value);
  return value.has_value();
}

}  // namespace

ColourTable MakeColourTable(const Palette& palette) {
  ColourTable table{};
  for (size_t i = 0; i < table.size(); ++i) {
    const unsigned char* c = &palette[3 * i];
    table[i] = (static_cast<std::uint32_t>(c[0]) << 16) | (static_cast<std::uint32_t>(c[1]) << 8) | c[2];
  }
  return table;
}

int nearestPaletteIndex(const unsigned char* palette, int count, int red, int green, int blue) {
  int nearest = 0;
  float best = 1e8f;
  for (int i = 0; i < count; ++i, palette += 3) {
    const double r = palette[0] - red;
    const double g = palette[1] - green;
    const double b = palette[2] - blue;
    const float distance = static_cast<float>(std::sqrt(0.299 * r * r + 0.587 * g * g + 0.114 * b * b));
    if (distance <= best) {
      best = distance;
      nearest = i;
    }
  }
  return nearest;
}

void BrightenPalette(Palette& palette, int gamma) {
  if (gamma == 0) return;
  for (unsigned char& channel : palette) {
    const double added = static_cast<double>(gamma) * (255 - channel) * (1.0 / 256);
    channel = static_cast<unsigned char>(channel + Truncate(added) % 256);
  }
}

Colour averageColour(const Palette& palette, std::span<const unsigned char> pixels) {
  const size_t count = std::min(pixels.size(), kAveragedPixels);
  int sums[3] = {0, 0, 0};
  for (const unsigned char pixel : pixels.first(count)) {
    for (size_t c = 0; c < 3; ++c) sums[c] += palette[3 * size_t{pixel} + c];
  }
  auto lifted = [count](int sum) {
    return Truncate(static_cast<double>(sum) / static_cast<double>(count) / 2 + 127);
  };
  return {lifted(sums[0]), lifted(sums[1]), lifted(sums[2])};
}

Palette ParsePaletteText(std::string_view text) {
  Palette palette{};
  for (size_t i = 0; i < palette.size(); i += 3) {
    const size_t end = std::min(text.find('\n'), text.size());
    std::string_view rest = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!TakeChannel(rest, palette[i]) || !TakeChannel(rest, palette[i + 1]) ||
        !TakeChannel(rest, palette[i + 2])) {
      Error("Current wad had no palette and Quake.pal file is corrupt...");
    }
  }
  return palette;
}

}  // namespace velk
