#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "support/fatal.h"
#include "textures/palette.h"
#include "textures/texture.h"

namespace velk {
namespace {

TEST(Palette, NearestColourWeighsChannelsAndPrefersTheHighestOfEquals) {
  Palette palette{};  // all black but these
  palette[3 * 10] = palette[3 * 20 + 1] = palette[3 * 30 + 2] = palette[3 * 31 + 2] = 255;
  const std::pair<Colour, int> cases[] = {
      {{255, 0, 0}, 10}, {{0, 250, 0}, 20}, {{0, 0, 255}, 31}, {{0, 0, 0}, 255}, {{100, 130, 0}, 20}};
  for (const auto& [colour, index] : cases) EXPECT_EQ(nearestPaletteIndex(palette, colour), index);
  EXPECT_EQ(nearestPaletteIndex(palette.data(), 31, 0, 0, 255), 30);
  EXPECT_EQ(nearestPaletteIndex(palette.data(), 0, 0, 0, 255), 0);
}

TEST(Palette, BrighteningAddsAPartOfWhatLacksToWhite) {
  const int cases[][3] = {{0, 40, 40},  {128, 0, 127}, {128, 255, 255},
                          {10, 55, 62}, {256, 7, 255}, {512, 0, 254}};
  for (const auto& [gamma, before, after] : cases) {
    Palette palette{};
    palette.fill(static_cast<unsigned char>(before));
    BrightenPalette(palette, gamma);
    EXPECT_EQ(palette[5], after) << gamma << " on " << before;
  }
}

TEST(Palette, AverageIsLightAndTakesTheFirst1024Pixels) {
  Palette palette{};
  palette[3] = 255;
  palette[4] = 100;
  std::vector<unsigned char> pixels(2000, 0);
  std::fill(pixels.begin(), pixels.begin() + 1024, static_cast<unsigned char>(1));
  EXPECT_EQ(averageColour(palette, pixels), (Colour{254, 177, 127}));
  EXPECT_EQ(averageColour(palette, std::vector<unsigned char>{0, 1}), (Colour{190, 152, 127}));
}

TEST(Palette, TextFormTakesThreeKindsOfNumbersAndRefusesLess) {
  std::string text = "0x10 010\t10 \r\n 1 2 3 4 five\n";
  for (int i = 2; i < 256; ++i) text += "255 254 253\n";
  const Palette palette = ParsePaletteText(text);
  EXPECT_EQ(std::vector<int>(palette.begin(), palette.begin() + 6), (std::vector{16, 8, 10, 1, 2, 3}));
  EXPECT_EQ(palette.back(), 253);

  const char* corrupt = "Current wad had no palette and Quake.pal file is corrupt...";
  EXPECT_FATAL(ParsePaletteText(""), corrupt);
  EXPECT_FATAL(ParsePaletteText(text.substr(0, text.size() - 4)), corrupt);
  EXPECT_FATAL(ParsePaletteText("1 2\n3 4 5\n" + text), corrupt);
}

TEST(TextureNames, RelatedNamesAreNeighbours) {
  const std::vector<std::string> ordered = {"+0",       "+1",       "ABC",    "+0BUTTON",
                                            "+1BUTTON", "+ABUTTON", "*SLIME", "+0SLIME",
                                            "+1SLIME",  "+ASLIME",  "SLIME",  "SLIME2"};
  std::vector<std::string> shuffled(ordered.rbegin(), ordered.rend());
  std::ranges::sort(shuffled, [](const auto& a, const auto& b) { return compareTextureNames(a, b) < 0; });
  EXPECT_EQ(shuffled, ordered);
}

// Two rows of "front back": the upper "12 ab", the lower "30 cd" (written as numbers).
SkyRecord SmallSky(int rowOffset, int columnOffset) {
  return {rowOffset, columnOffset, 4, {1, 2, 11, 12, 3, 0, 13, 14}};
}

TEST(Sky, FrontLayerLiesOverTheBackLayerOneRowUp) {
  const struct {
    int row, column;
    std::vector<unsigned char> picture;
  } cases[] = {{0, 0, {3, 12, 1, 2}},  // front rows one up, index 0 lets the back row through
               {1, 0, {1, 2, 3, 12}},
               {0, 1, {12, 3, 2, 1}},
               {1, 1, {2, 1, 12, 3}}};
  for (const auto& c : cases) {
    SkyRecord sky = SmallSky(c.row, c.column);
    std::vector<unsigned char> picture(4);
    composeSky(2, 2, sky, 3, picture.data());
    EXPECT_EQ(picture, c.picture) << c.row << ' ' << c.column;
    EXPECT_EQ(sky.rowOffset, (c.row + 3) % 2);
    EXPECT_EQ(sky.columnOffset, (c.column + 3) % 2);
  }
}

}  // namespace
}  // namespace velk
