// Liquids, skies and the textures that have a meaning for tools rather than a look.
#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "materials.h"
#include "noise.h"

namespace velk::kit {
namespace {

// Bent clouds: each position is looked up where a second noise pushes it.
double Swirl(double u, double v, int cells, uint32_t seed) {
  const double bendU = CloudNoise(u, v, cells, cells, 2, seed),
               bendV = CloudNoise(u, v, cells, cells, 2, seed + 1);
  return CloudNoise(u + 0.35 * bendU, v + 0.35 * bendV, cells, cells, 3, seed + 2);
}

Surface Liquid(Ramp ramp, double level, double contrast, uint32_t seed) {
  Surface surface(64, 64, ramp, level);
  surface.eachPart([&](double u, double v, Texel& t) {
    const double ridge = 1 - std::abs(2 * Swirl(u, v, 4, seed) - 1);
    t.level += contrast * (ridge * ridge - 0.6);
  });
  return surface;
}

Surface Lava() {
  Surface surface(64, 64, ramp::kFire, 0.3);
  surface.eachPart([](double u, double v, Texel& t) {
    const Cell crust = CellNoise(u + 0.06 * Swirl(u, v, 4, 171), v, 5, 5, 172);
    const double heat = 0.82 - crust.edge * 1.5 + 0.5 * (Swirl(u, v, 5, 173) - 0.5);
    t.level = heat;
    if (heat < 0.28) t.ramp = ramp::kRust, t.level = 0.2 + 0.4 * SmoothNoise(u, v, 16, 16, 174);
  });
  return surface;
}

Surface Portal() {
  Surface surface(64, 64, ramp::kViolet, 0.2);
  surface.eachPart([](double u, double v, Texel& t) {
    const double glow = Swirl(u, v, 3, 175);
    t.ramp = glow > 0.56 ? ramp::kGlowBlue : ramp::kViolet;
    t.level = glow > 0.56 ? (glow - 0.5) * 3 : 0.1 + glow * 0.8;
    if (Hash(static_cast<int>(u * 64), static_cast<int>(v * 64), 176) > 0.985)
      t.ramp = ramp::kGlowBlue, t.level = 1;
  });
  return surface;
}

// A sky: the right half is the far layer, the left half the near one, whose black shows the far layer.
Surface Sky(Ramp far, Ramp near, double stars, uint32_t seed) {
  Surface sky(256, 128, ramp::kGrey, 0);
  sky.each({128, 0, 128, 128}, [&](int x, int y, Texel& t) {
    const double u = x / 128.0, v = y / 128.0;
    t.ramp = far;
    t.level = 0.12 + 0.7 * std::max(0.0, Swirl(u, v, 3, seed) - 0.3);
    if (Hash(x, y, seed + 5) < stars) t.ramp = ramp::kGlowBlue, t.level = 0.5 + 0.5 * Hash(x, y, seed + 6);
  });
  sky.each({0, 0, 128, 128}, [&](int x, int y, Texel& t) {
    const double cover = Swirl(x / 128.0, y / 128.0, 4, seed + 7) - 0.5 + 0.06 * (Hash(x, y, seed + 8) - 0.5);
    if (cover > 0) t.ramp = near, t.level = 0.16 + 2.2 * cover;
  });
  return sky;
}

// A plain colour with its word in large letters.
Surface Word(std::string_view text, Ramp ramp, int x) {
  Surface surface(64, 64, ramp, 0.4);
  for (int i = 0; i < 64; i += 32) {
    surface.each({0, i, 64, 32}, [&](int, int j, Texel& t) { t.level += 0.006 * (j - i - 16); });
    Write(surface, x + (i ? 8 : 0), i + 12, text, ramp::kGrey, 1);
  }
  surface.raise(surface.all(), 2);
  surface.light();
  return surface;
}

}  // namespace

void AddLiquids(Catalogue& out) {
  out.push_back({"*WATER", Liquid(ramp::kBlue, 0.42, 0.5, 181).image()});
  out.push_back({"*WATER_DARK", Liquid(ramp::kTeal, 0.3, 0.45, 182).image()});
  out.push_back({"*SLIME", Liquid(ramp::kSlime, 0.44, 0.55, 183).image()});
  out.push_back({"*BLOOD", Liquid(ramp::kRed, 0.36, 0.45, 184).image()});
  out.push_back({"*LAVA", Lava().image()});
  out.push_back({"*TELEPORT", Portal().image()});
}

void AddSkies(Catalogue& out) {
  out.push_back({"SKY_DUSK", Sky(ramp::kViolet, ramp::kFlesh, 0.0, 191).image()});
  out.push_back({"SKY_NIGHT", Sky(ramp::kBlue, ramp::kSteel, 0.006, 192).image()});
}

void AddSpecials(Catalogue& out) {
  out.push_back({"CLIP", Word("CLIP", ramp::kViolet, 6).image()});
  out.push_back({"TRIGGER", Word("TRIGGER", ramp::kGold, 6).image()});
  out.push_back({"SKIP", Word("SKIP", ramp::kTeal, 6).image()});
  out.push_back({"BLACK", Surface(16, 16, ramp::kGrey, 0).image()});
}

}  // namespace velk::kit
