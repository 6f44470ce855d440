// The 256 colours that the pixels of textures are numbers of.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/colour.h"

namespace velk {

inline constexpr int PALETTE_COLOURS = 256;

// Red, green, blue of each colour.
using Palette = std::array<unsigned char, 3 * PALETTE_COLOURS>;

// The palette as pictures take it: 0x00RRGGBB, in memory blue, green, red, 0.
using ColourTable = std::array<std::uint32_t, PALETTE_COLOURS>;

ColourTable MakeColourTable(const Palette& palette);

// The palette entry among the first `count` that looks most like the colour; the highest of equals, 0
// when count is 0.
int nearestPaletteIndex(const unsigned char* palette, int count, int red, int green, int blue);
inline int nearestPaletteIndex(const Palette& palette, Colour colour) {
  return nearestPaletteIndex(palette.data(), PALETTE_COLOURS, colour.red, colour.green, colour.blue);
}

// Brightens every channel by gamma / 256 of what it lacks to white. Above 256 channels wrap round.
void BrightenPalette(Palette& palette, int gamma);

// A light colour (channels 127..254) that stands for a texture where it is drawn flat: the mean of its
// first 1024 pixels, halved and lifted. There must be a pixel.
Colour averageColour(const Palette& palette, std::span<const unsigned char> pixels);

// The text form, 256 lines of three numbers (decimal, 0 octal, 0x hexadecimal). Anything less is fatal
// "Current wad had no palette and Quake.pal file is corrupt...".
Palette ParsePaletteText(std::string_view text);

}  // namespace velk
