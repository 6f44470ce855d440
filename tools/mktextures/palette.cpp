#include "palette.h"

#include <algorithm>
#include <cmath>

namespace velk::kit {
namespace {

constexpr int kLightRows = 64;
constexpr int kNeutralRow = 32;
constexpr double kBrightest = 1.6;  // how far row 0 raises a colour

// Colours that a ramp passes through, evenly spaced from its dark to its light end.
struct RampColours {
  Ramp ramp;
  std::array<Rgb, 4> stops;
};

constexpr RampColours kRamps[] = {
    {ramp::kGrey, {{{0, 0, 0}, {66, 66, 66}, {138, 138, 138}, {240, 240, 240}}}},
    {ramp::kStone, {{{10, 8, 7}, {68, 60, 51}, {128, 115, 98}, {208, 194, 170}}}},
    {ramp::kWood, {{{12, 7, 3}, {68, 41, 20}, {122, 79, 43}, {194, 143, 92}}}},
    {ramp::kSteel, {{{7, 9, 13}, {48, 56, 67}, {98, 110, 126}, {186, 200, 214}}}},
    {ramp::kRust, {{{14, 5, 3}, {84, 37, 22}, {148, 76, 46}, {218, 146, 102}}}},
    {ramp::kMoss, {{{7, 9, 3}, {44, 54, 26}, {88, 101, 54}, {160, 168, 112}}}},
    {ramp::kBlue, {{{4, 6, 15}, {27, 40, 76}, {62, 88, 142}, {156, 186, 226}}}},
    {ramp::kSand, {{{18, 13, 7}, {94, 75, 50}, {160, 133, 94}, {234, 214, 172}}}},
    {ramp::kSlime, {{{2, 11, 4}, {20, 64, 24}, {50, 122, 42}, {144, 208, 104}}}},
    {ramp::kRed, {{{16, 2, 2}, {90, 15, 12}, {164, 36, 28}, {236, 116, 94}}}},
    {ramp::kFlesh, {{{22, 10, 10}, {108, 62, 54}, {176, 118, 100}, {244, 204, 182}}}},
    {ramp::kGold, {{{18, 12, 2}, {98, 70, 17}, {170, 129, 40}, {248, 222, 128}}}},
    {ramp::kViolet, {{{10, 4, 15}, {54, 31, 74}, {102, 66, 132}, {184, 152, 208}}}},
    {ramp::kTeal, {{{2, 11, 13}, {18, 58, 62}, {46, 108, 110}, {138, 196, 190}}}},
    {ramp::kFire, {{{64, 8, 0}, {206, 54, 4}, {255, 164, 24}, {255, 252, 190}}}},
    {ramp::kGlowBlue, {{{12, 30, 96}, {30, 88, 206}, {84, 164, 255}, {206, 238, 255}}}},
    {ramp::kGlowGreen, {{{14, 84, 18}, {40, 150, 36}, {90, 224, 70}, {190, 255, 160}}}},
    {ramp::kGlowRed, {{{130, 0, 0}, {180, 0, 0}, {230, 10, 8}, {255, 90, 80}}}},
    {ramp::kGlowWhite, {{{255, 255, 0}, {255, 255, 0}, {255, 255, 255}, {255, 255, 255}}}},
};

int Mix(int a, int b, double t) { return static_cast<int>(std::lround(a + (b - a) * t)); }

Rgb Between(const std::array<Rgb, 4>& stops, double level) {
  const int i = std::min(static_cast<int>(level * 3), 2);
  const double t = level * 3 - i;
  const Rgb& a = stops[static_cast<size_t>(i)];
  const Rgb& b = stops[static_cast<size_t>(i) + 1];
  return {Mix(a.r, b.r, t), Mix(a.g, b.g, t), Mix(a.b, b.b, t)};
}

double Distance(const Rgb& a, const Rgb& b) {
  const double r = a.r - b.r, g = a.g - b.g, blue = a.b - b.b;
  return 0.299 * r * r + 0.587 * g * g + 0.114 * blue * blue;
}

double LightFactor(int row) {
  if (row >= kNeutralRow) return double(kLightRows - 1 - row) / (kLightRows - 1 - kNeutralRow);
  return 1 + (kBrightest - 1) * (kNeutralRow - row) / kNeutralRow;
}

// The nearest entry of begin..end-1; entries outside the ramp of `own` count as `foreign` times as far.
int Nearest(const Palette& palette, const Rgb& wanted, int begin, int end, int own, double foreign) {
  int best = begin;
  double bestDistance = 1e9;
  for (int i = begin; i < end; ++i) {
    const double factor = i / 16 == own / 16 ? 1 : foreign;
    const double d = (Distance(palette[static_cast<size_t>(i)], wanted) + 1) * factor;
    if (d < bestDistance) bestDistance = d, best = i;
  }
  return best;
}

// A shade stays in its own ramp unless another colour is far nearer, so that light never speckles a
// surface with foreign hues.
int NearestShade(const Palette& palette, const Rgb& wanted, int own) {
  return Nearest(palette, wanted, 0, kFirstFullBright, own, 5);
}

}  // namespace

uint8_t Ramp::index(double level) const {
  const long step = std::lround(level * (length - 1));
  return static_cast<uint8_t>(first + std::clamp(step, 0L, long{length - 1}));
}

Palette MakePalette() {
  Palette palette{};
  for (const RampColours& colours : kRamps) {
    for (int i = 0; i < colours.ramp.length; ++i) {
      palette[static_cast<size_t>(colours.ramp.first + i)] =
          Between(colours.stops, double(i) / (colours.ramp.length - 1));
    }
  }
  palette[255] = {255, 0, 255};  // no texture uses it
  return palette;
}

uint8_t NearestColour(const Palette& palette, const Rgb& wanted, bool fullBright) {
  const int begin = fullBright ? kFirstFullBright : 0;
  const int end = fullBright ? 255 : kFirstFullBright;
  return static_cast<uint8_t>(Nearest(palette, wanted, begin, end, begin, 1));
}

std::vector<uint8_t> MakeLightTable(const Palette& palette) {
  std::vector<uint8_t> table;
  for (int row = 0; row < kLightRows; ++row) {
    const double factor = LightFactor(row);
    for (int i = 0; i < 256; ++i) {
      const Rgb& c = palette[static_cast<size_t>(i)];
      const auto lit = [&](int channel) {
        return std::min(255, static_cast<int>(std::lround(channel * factor)));
      };
      const bool keeps = i >= kFirstFullBright || row == kNeutralRow;
      table.push_back(
          static_cast<uint8_t>(keeps ? i : NearestShade(palette, {lit(c.r), lit(c.g), lit(c.b)}, i)));
    }
  }
  return table;
}

}  // namespace velk::kit
