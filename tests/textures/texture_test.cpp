#include "textures/texture.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace velk {
namespace {

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
  struct Case {
    int row;
    int column;
    std::vector<unsigned char> picture;
  };
  const Case cases[] = {
      {0, 0, {3, 12, 1, 2}},  // front rows one up, index 0 lets the back row through
      {1, 0, {1, 2, 3, 12}},
      {0, 1, {12, 3, 2, 1}},
      {1, 1, {2, 1, 12, 3}},
  };
  for (const Case& c : cases) {
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
