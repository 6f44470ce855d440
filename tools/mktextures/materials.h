// The materials that several textures are made of.
#pragma once

#include <string_view>

#include "surface.h"

namespace velk::kit {

// Courses of bricks or cut stones, every other course shifted by half a stone.
struct Masonry {
  int width = 64, height = 64;
  int stoneWidth = 16, stoneHeight = 8;
  Ramp stone = ramp::kRust, joint = ramp::kStone;
  double level = 0.36, jointLevel = 0.3;
  double variety = 0.12;  // how much the stones differ in brightness
  double rough = 1.0;     // height of the unevenness on the stones, texels
  double rise = 2.0;      // how far the stones stand out of the joints
  int gap = 1;            // width of a joint
  bool shifted = true;
  uint32_t seed = 1;
};
Surface MakeMasonry(const Masonry& style);

// Irregular stones fitted together, `cells` across.
Surface MakeCobbles(int size, int cells, Ramp stone, Ramp joint, double level, uint32_t seed);

// Bare rock or earth.
Surface MakeRock(int size, Ramp ramp, double level, double rough, uint32_t seed);

// Upright boards with grain and nails.
Surface MakePlanks(int width, int height, int boardWidth, Ramp ramp, double level, uint32_t seed);

// Sheet metal in square plates, riveted at the corners.
Surface MakePlates(int width, int height, int plateWidth, int plateHeight, Ramp ramp, double level,
                   uint32_t seed);

// Turns the texture a quarter, so that upright boards lie.
Surface Quarter(const Surface& surface);

// Writes capital letters, 5 by 7 texels each and 6 apart, from the left top corner given. Only the letters
// of the kit's signs exist; others are left blank.
void Write(Surface& surface, int x, int y, std::string_view text, Ramp ramp, double level);

// Diagonal stripes, `width` texels wide, of the second material over what is there.
void Stripes(Surface& surface, const Box& box, int width, Ramp ramp, double level);

}  // namespace velk::kit
