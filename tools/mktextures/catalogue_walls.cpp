// Walls and floors of brick, stone and earth.
#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "materials.h"
#include "noise.h"

namespace velk::kit {
namespace {

// Green growth, thickest at the bottom or in patches all over.
void GrowMoss(Surface& surface, bool fromBelow, uint32_t seed) {
  surface.eachPart([&](double u, double v, Texel& t) {
    const double cover = CloudNoise(u, v, 4, 4, 3, seed) + (fromBelow ? 0.5 * (v - 0.75) : 0.0);
    const double ragged =
        cover + 0.05 * (Hash(static_cast<int>(u * 97), static_cast<int>(v * 97), seed + 3) - 0.5);
    if (ragged > 0.53) t.ramp = ramp::kMoss, t.level = t.level * 0.85 + 0.12 * (cover - 0.5);
  });
}

Masonry Brick(Ramp stone, double level, uint32_t seed) {
  return {.stone = stone, .level = level, .seed = seed};
}

Masonry Block(int size, int stoneWidth, int stoneHeight, Ramp stone, double level, uint32_t seed) {
  Masonry style = Brick(stone, level, seed);
  style.width = style.height = size;
  style.stoneWidth = stoneWidth;
  style.stoneHeight = stoneHeight;
  style.joint = stone;
  style.jointLevel = 0.14;
  style.variety = 0.07;
  style.rough = 2.2;
  style.rise = 3;
  style.gap = 2;
  return style;
}

Surface Plaster(Ramp ramp, double level, uint32_t seed) {
  Surface surface(64, 64, ramp, level);
  surface.roughen(2.2, 10, seed);
  surface.mottle(0.22, 2, seed + 1);
  surface.grain(0.08, seed + 2);
  surface.eachPart([&](double u, double v, Texel& t) {
    const double crack = std::abs(CloudNoise(u, v, 3, 3, 3, seed + 3) - 0.5);
    if (crack < 0.008) t.level -= 0.16;
  });
  surface.light();
  return surface;
}

Surface Marble(Ramp ramp, double level, uint32_t seed) {
  Surface surface(64, 64, ramp, level);
  surface.eachPart([&](double u, double v, Texel& t) {
    const double vein = std::abs(std::sin((u + v + 0.7 * CloudNoise(u, v, 3, 3, 4, seed)) * 6.2832));
    t.level += 0.14 * (std::pow(vein, 0.4) - 0.8) + 0.12 * (CloudNoise(u, v, 4, 4, 3, seed + 1) - 0.5);
  });
  surface.raise(surface.all(), 1.5, 2);
  surface.light();
  return surface;
}

// Square tiles in two tones.
Surface Tiles(int size, int tile, Ramp first, Ramp second, double level, uint32_t seed) {
  Surface surface(size, size, ramp::kGrey, 0.15);
  for (int y = 0; y < size; y += tile) {
    for (int x = 0; x < size; x += tile) {
      const bool odd = (x / tile + y / tile) % 2 == 1;
      surface.fill({x, y, tile - 1, tile - 1}, odd ? second : first, level + 0.1 * (Hash(x, y, seed) - 0.5));
      surface.raise({x, y, tile - 1, tile - 1}, 1.6, 2);
    }
  }
  surface.roughen(0.8, 12, seed + 1);
  surface.finish(0.2, 0.06, seed + 2);
  return surface;
}

Surface Grass() {
  Surface surface(64, 64, ramp::kMoss, 0.38);
  surface.eachPart([&](double u, double v, Texel& t) {
    t.level += 0.35 * (CloudNoise(u, v, 4, 4, 3, 21) - 0.5) + 0.3 * (SmoothNoise(u, v, 32, 16, 22) - 0.5);
    if (CloudNoise(u, v, 5, 5, 3, 23) > 0.62) t.ramp = ramp::kWood;
  });
  surface.grain(0.16, 24);
  return surface;
}

Surface Runes() {
  Surface surface =
      MakeMasonry({.stoneWidth = 64, .stoneHeight = 64, .stone = ramp::kStone, .level = 0.36, .rough = 1.5});
  Surface carved(64, 64, ramp::kStone, 0);
  carved.frame({8, 8, 48, 48}, 3, 2);
  const double middle = 32;
  carved.each(carved.all(), [&](int x, int y, Texel& t) {
    const double d = std::hypot(x + 0.5 - middle, y + 0.5 - middle);
    const bool spoke = std::abs(x - y) < 2 || std::abs(x + y - 63) < 2 || std::abs(x - 31.5) < 1;
    if (std::abs(d - 17) < 1.5 || (spoke && d < 16) || d < 4) t.height -= 2, t.level -= 0.12;
  });
  carved.light(0.09, 0);
  surface.each(surface.all(), [&](int x, int y, Texel& t) { t.level += carved.at(x, y).level; });
  return surface;
}

}  // namespace

void AddWalls(Catalogue& out) {
  const Masonry greyBrick = Brick(ramp::kGrey, 0.4, 13),
                largeBlock = Block(128, 64, 32, ramp::kStone, 0.42, 31);
  Surface mossy = MakeMasonry(greyBrick), overgrown = MakeMasonry(largeBlock);
  GrowMoss(mossy, true, 15);
  GrowMoss(overgrown, false, 36);
  out.push_back({"BRICK_RED", MakeMasonry(Brick(ramp::kRust, 0.36, 1)).image()});
  out.push_back({"BRICK_BROWN", MakeMasonry(Brick(ramp::kWood, 0.46, 12)).image()});
  out.push_back({"BRICK_GREY", MakeMasonry(greyBrick).image()});
  out.push_back({"BRICK_MOSS", mossy.image()});
  out.push_back(
      {"BRICK_SMALL", MakeMasonry({.stoneWidth = 8, .stoneHeight = 4, .stone = ramp::kSand}).image()});
  out.push_back({"STONE_BLOCK", MakeMasonry(largeBlock).image()});
  out.push_back({"STONE_MOSS", overgrown.image()});
  out.push_back({"STONE_CUT", MakeMasonry(Block(64, 32, 16, ramp::kStone, 0.42, 32)).image()});
  out.push_back({"STONE_CASTLE", MakeMasonry(Block(128, 32, 32, ramp::kGrey, 0.38, 33)).image()});
  out.push_back({"STONE_BLUE", MakeMasonry(Block(64, 32, 16, ramp::kSteel, 0.42, 35)).image()});
  out.push_back({"STONE_RUNE", Runes().image()});
  out.push_back({"SAND_BLOCK", MakeMasonry(Block(64, 32, 32, ramp::kSand, 0.44, 34)).image()});
  out.push_back({"ROCK_GREY", MakeRock(128, ramp::kGrey, 0.36, 1.3, 41).image()});
  out.push_back({"ROCK_BROWN", MakeRock(128, ramp::kStone, 0.36, 1.4, 42).image()});
  out.push_back({"ROCK_RED", MakeRock(64, ramp::kRust, 0.36, 1.2, 43).image()});
  out.push_back({"PLASTER_SAND", Plaster(ramp::kSand, 0.48, 51).image()});
  out.push_back({"PLASTER_GREY", Plaster(ramp::kStone, 0.46, 52).image()});
  out.push_back({"MARBLE_GREEN", Marble(ramp::kTeal, 0.36, 53).image()});
  out.push_back({"MARBLE_RED", Marble(ramp::kFlesh, 0.36, 54).image()});
}

void AddFloors(Catalogue& out) {
  out.push_back({"FLOOR_COBBLE", MakeCobbles(64, 5, ramp::kStone, ramp::kStone, 0.44, 61).image()});
  out.push_back({"FLOOR_PEBBLE", MakeCobbles(64, 9, ramp::kGrey, ramp::kStone, 0.4, 62).image()});
  out.push_back({"FLOOR_FLAGS", MakeCobbles(128, 4, ramp::kSteel, ramp::kStone, 0.42, 63).image()});
  out.push_back({"FLOOR_TILE", Tiles(64, 32, ramp::kStone, ramp::kStone, 0.42, 64).image()});
  out.push_back({"FLOOR_CHECK", Tiles(64, 16, ramp::kStone, ramp::kRust, 0.38, 65).image()});
  out.push_back({"FLOOR_SLAB", Tiles(128, 64, ramp::kGrey, ramp::kGrey, 0.36, 66).image()});
  out.push_back({"DIRT", MakeRock(64, ramp::kWood, 0.36, 0.6, 67).image()});
  out.push_back({"GRASS", Grass().image()});
}

}  // namespace velk::kit
