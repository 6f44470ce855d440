#include "textures/palette.h"

#include <vector>

#include <gtest/gtest.h>

#include "support/fatal.h"

namespace velk {
namespace {

TEST(Palette, NearestColourWeighsChannelsAndPrefersTheHighestOfEquals) {
  Palette palette{};  // all black but these
  palette[3 * 10] = 255;
  palette[3 * 20 + 1] = 255;
  palette[3 * 30 + 2] = 255;
  palette[3 * 31 + 2] = 255;
  struct Case {
    Colour colour;
    int index;
  };
  for (const Case& c :
       {Case{{255, 0, 0}, 10}, {{0, 250, 0}, 20}, {{0, 0, 255}, 31}, {{0, 0, 0}, 255}, {{100, 130, 0}, 20}}) {
    EXPECT_EQ(nearestPaletteIndex(palette, c.colour), c.index);
  }
  EXPECT_EQ(nearestPaletteIndex(palette.data(), 31, 0, 0, 255), 30);
  EXPECT_EQ(nearestPaletteIndex(palette.data(), 0, 0, 0, 255), 0);
}

TEST(Palette, BrighteningAddsAPartOfWhatLacksToWhite) {
  struct Case {
    int gamma;
    int before;
    int after;
  };
  for (const Case& c :
       {Case{0, 40, 40}, {128, 0, 127}, {128, 255, 255}, {10, 55, 62}, {256, 7, 255}, {512, 0, 254}}) {
    Palette palette{};
    palette.fill(static_cast<unsigned char>(c.before));
    BrightenPalette(palette, c.gamma);
    EXPECT_EQ(palette[5], c.after) << c.gamma << " on " << c.before;
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

}  // namespace
}  // namespace velk
