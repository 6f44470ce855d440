// The kit's 256 colours, in ramps from dark to light, and its light table.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace velk::kit {

struct Rgb {
  int r = 0, g = 0, b = 0;
};

// A run of palette entries from dark to light: one material's shades.
struct Ramp {
  int first = 0;
  int length = 16;

  // The palette index of a level, 0 darkest to 1 lightest; levels outside are cut.
  uint8_t index(double level) const;
};

namespace ramp {
inline constexpr Ramp kGrey{0}, kStone{16}, kWood{32}, kSteel{48}, kRust{64}, kMoss{80}, kBlue{96},
    kSand{112}, kSlime{128}, kRed{144}, kFlesh{160}, kGold{176}, kViolet{192}, kTeal{208};
// Colours that no light changes.
inline constexpr Ramp kFire{224}, kGlowBlue{240, 6}, kGlowGreen{246, 4}, kGlowRed{250, 3}, kGlowWhite{253, 2};
}  // namespace ramp

inline constexpr int kFirstFullBright = 224;

using Palette = std::array<Rgb, 256>;

Palette MakePalette();

// The nearest colour for a mix of colours; full-bright entries only for mixes of full-bright ones.
uint8_t NearestColour(const Palette& palette, const Rgb& wanted, bool fullBright);

// 64 rows of 256 palette indices, row 0 brightest, row 32 the colours as they are, row 63 black.
std::vector<uint8_t> MakeLightTable(const Palette& palette);

}  // namespace velk::kit
