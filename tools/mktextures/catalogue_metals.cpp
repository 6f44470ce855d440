// Metal, machinery and wood.
#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "materials.h"
#include "noise.h"

namespace velk::kit {
namespace {

Surface Rusted(uint32_t seed) {
  Surface surface = MakePlates(64, 64, 64, 64, ramp::kSteel, 0.4, seed);
  surface.eachPart([&](double u, double v, Texel& t) {
    const double cover = CloudNoise(u, v, 4, 3, 4, seed + 7);
    if (cover > 0.47) t.ramp = ramp::kRust, t.level = std::min(t.level, 0.5) - 0.1 + 0.4 * (cover - 0.5);
  });
  return surface;
}

Surface TreadPlate() {
  Surface surface(64, 64, ramp::kSteel, 0.36);
  for (int y = 0; y < 64; y += 8) {
    for (int x = 0; x < 64; x += 8) {
      const bool odd = (x / 8 + y / 8) % 2 == 1;
      for (int i = 0; i < 6; ++i) surface.dome(x + 1.5 + i, odd ? y + 1.5 + i : y + 6.5 - i, 1.5, 0.8);
    }
  }
  surface.mottle(0.16, 3, 71);
  surface.grain(0.06, 72);
  surface.light(0.1);
  return surface;
}

Surface Grate(Ramp ramp) {
  Surface surface(64, 64, ramp::kGrey, 0.03);
  for (int i = 0; i < 64; i += 16) {
    for (const Box& bar : {Box{i, 0, 5, 64}, Box{0, i, 64, 5}}) {
      surface.fill(bar, ramp, 0.4);
    }
  }
  surface.each(surface.all(), [&](int, int, Texel& t) { t.height = t.level > 0.2 ? 4 : 0; });
  for (int y = 0; y < 64; y += 16) {
    for (int x = 0; x < 64; x += 16) surface.rivet(x + 2, y + 2);
  }
  surface.mottle(0.14, 4, 73);
  surface.light(0.08);
  return surface;
}

Surface Vent() {
  Surface surface = MakePlates(64, 64, 64, 64, ramp::kSteel, 0.4, 74);
  Surface slats(48, 40, ramp::kSteel, 0.34);
  slats.each(slats.all(), [](int, int y, Texel& t) {
    const int step = y % 8;
    t.level = step < 2 ? 0.06 : 0.62 - 0.06 * step;
  });
  surface.each({8, 12, 48, 40}, [&](int x, int y, Texel& t) { t = slats.at(x - 8, y - 12); });
  return surface;
}

Surface Pipes() {
  Surface surface(64, 64, ramp::kGrey, 0.1);
  const Ramp metals[] = {ramp::kRust, ramp::kSteel, ramp::kGold, ramp::kSteel};
  for (int i = 0; i < 4; ++i) {
    surface.each({i * 16, 0, 15, 64}, [&](int x, int y, Texel& t) {
      const double across = (x - i * 16 - 7) / 7.5;
      const bool flange = (y + i * 24) % 64 < 6;
      t.ramp = metals[i];
      t.level =
          0.1 + 0.46 * std::sqrt(std::max(0.0, 1 - (across + 0.25) * (across + 0.25))) + (flange ? 0.1 : 0);
      t.height = flange ? 3 : 0;
    });
  }
  surface.streaks(0.14, 75);
  surface.grain(0.05, 76);
  surface.light(0.05);
  return surface;
}

Surface Hazard() {
  Surface surface(64, 64, ramp::kGold, 0.62);
  Stripes(surface, surface.all(), 16, ramp::kGrey, 0.12);
  surface.raise(surface.all(), 2);
  surface.streaks(0.2, 78);
  surface.finish(0.2, 0.06, 77);
  return surface;
}

// A wall of equipment: panels of different sizes with slots and small lamps.
Surface Machinery(Ramp body, Ramp lamp, uint32_t seed) {
  Surface surface(64, 64, body, 0.34);
  const Box panels[] = {{1, 1, 38, 22}, {41, 1, 22, 30}, {1, 25, 18, 38}, {21, 25, 18, 38}, {41, 33, 22, 30}};
  for (const Box& panel : panels) {
    surface.raise(panel, 2.5, 2);
    surface.raise({panel.x + 3, panel.y + 3, panel.width - 6, panel.height - 6}, -1.5);
  }
  for (int y = 30; y < 58; y += 4) surface.fill({24, y, 12, 2}, ramp::kGrey, 0.06);
  for (int i = 0; i < 5; ++i) surface.rivet(6 + i * 7, 5);
  surface.finish(0.14, 0.06, seed);
  for (int i = 0; i < 4; ++i) surface.fill({8 + i * 7, 13, 4, 3}, lamp, 0.3 + 0.7 * Hash(i, 0, seed));
  surface.fill({46, 6, 12, 18}, ramp::kGrey, 0.05);
  for (int y = 7; y < 23; y += 2) {
    surface.fill({47, y, 2 + static_cast<int>(9 * Hash(0, y, seed)), 1}, lamp, 0.7);
  }
  return surface;
}

// One of the frames of a screen whose trace moves.
Surface Screen(int frame) {
  Surface surface(64, 64, ramp::kSteel, 0.32);
  surface.raise(surface.all(), 3, 3);
  surface.raise({7, 7, 50, 42}, -3, 2);
  surface.grain(0.06, 81);
  for (int x : {12, 22, 32}) surface.rivet(x, 56);
  surface.light();
  surface.fill({9, 9, 46, 38}, ramp::kTeal, 0.08);
  surface.each({9, 9, 46, 38}, [&](int x, int y, Texel& t) {
    const double trace = 28 + 11 * std::sin(x * 0.28 + frame * 2.1) * std::sin(x * 0.09);
    if (std::abs(y - trace) < 1.3)
      t.ramp = ramp::kGlowGreen, t.level = 0.9;
    else if (x % 8 == 1 || y % 8 == 1)
      t.level = 0.3;
  });
  surface.fill({42, 54, 10, 4}, frame == 1 ? ramp::kGlowRed : ramp::kRed, frame == 1 ? 1 : 0.3);
  return surface;
}

Surface Trim(Ramp ramp, bool riveted, uint32_t seed) {
  Surface surface(64, 32, ramp, 0.42);
  surface.raise({0, 1, 64, 30}, 2.5, 3);
  surface.raise({-2, 8, 68, 16}, -1.8, 2);
  if (riveted) {
    for (int x = 8; x < 64; x += 16) surface.rivet(x, 15);
  }
  surface.finish(0.16, 0.08, seed);
  return surface;
}

Surface Crate() {
  Surface surface = MakePlanks(64, 64, 8, ramp::kWood, 0.4, 91);
  Surface battens = Quarter(MakePlanks(64, 64, 8, ramp::kWood, 0.5, 92));
  const auto nail = [&](const Box& box, int run) {
    surface.each(
        box, [&](int x, int y, Texel& t) { t.level = battens.at(x, run + (run < 32 ? y : x) % 8).level; });
    Surface edge(64, 64, ramp::kWood, 0);
    edge.raise(box, 3);
    edge.light();
    surface.each(surface.all(), [&](int x, int y, Texel& t) { t.level += edge.at(x, y).level * 0.9; });
  };
  nail({0, 0, 64, 9}, 0);
  nail({0, 55, 64, 9}, 8);
  nail({0, 9, 9, 46}, 32);
  nail({55, 9, 9, 46}, 40);
  for (int x : {4, 59}) {
    for (int y : {4, 59}) surface.disc(x + 0.5, y + 0.5, 1.6, ramp::kSteel, 0.5);
  }
  return surface;
}

Surface WoodPanel() {
  Surface surface = MakePlanks(64, 64, 32, ramp::kWood, 0.34, 93);
  Surface moulding(64, 64, ramp::kWood, 0);
  for (int x : {0, 32}) {
    moulding.raise({x + 4, 4, 24, 56}, -2, 2);
    moulding.raise({x + 8, 8, 16, 48}, 2, 3);
  }
  moulding.light();
  surface.each(surface.all(), [&](int x, int y, Texel& t) { t.level += moulding.at(x, y).level; });
  return surface;
}

Surface Books() {
  Surface surface(64, 64, ramp::kWood, 0.3);
  const Ramp covers[] = {ramp::kRed,  ramp::kBlue,   ramp::kMoss, ramp::kGold,
                         ramp::kRust, ramp::kViolet, ramp::kStone};
  for (int shelf = 0; shelf < 2; ++shelf) {
    surface.fill({0, shelf * 32, 64, 26}, ramp::kGrey, 0.02);
    for (int x = 0, i = 0; x < 63; ++i) {
      const int thick = std::min(63 - x, 4 + static_cast<int>(4 * Hash(i, shelf, 94)));
      const int tall = 18 + static_cast<int>(7 * Hash(i, shelf, 95));
      const Box box{x, shelf * 32 + 26 - tall, thick, tall};
      surface.fill(box, covers[static_cast<size_t>(7 * Hash(i, shelf, 96))], 0.42);
      surface.raise(box, 2.5, 2);
      surface.fill({x, box.y + 3, thick, 1}, ramp::kGold, 0.6);
      x += thick;
    }
    surface.raise({0, shelf * 32 + 26, 64, 6}, 3);
  }
  surface.grain(0.1, 97);
  surface.light();
  return surface;
}

}  // namespace

void AddMetals(Catalogue& out) {
  out.push_back({"METAL_PLATE", MakePlates(64, 64, 32, 32, ramp::kSteel, 0.42, 101).image()});
  out.push_back({"METAL_PANEL", MakePlates(128, 128, 64, 128, ramp::kSteel, 0.38, 102).image()});
  out.push_back({"METAL_BROWN", MakePlates(64, 64, 64, 32, ramp::kStone, 0.38, 103).image()});
  out.push_back({"METAL_COPPER", MakePlates(64, 64, 32, 64, ramp::kRust, 0.42, 104).image()});
  out.push_back({"METAL_BLUE", MakePlates(64, 64, 64, 64, ramp::kBlue, 0.34, 105).image()});
  out.push_back({"METAL_RUST", Rusted(106).image()});
  out.push_back({"METAL_TREAD", TreadPlate().image()});
  out.push_back({"METAL_GRATE", Grate(ramp::kSteel).image()});
  out.push_back({"METAL_CAGE", Grate(ramp::kRust).image()});
  out.push_back({"METAL_VENT", Vent().image()});
  out.push_back({"METAL_PIPES", Pipes().image()});
  out.push_back({"METAL_HAZARD", Hazard().image()});
  out.push_back({"TECH_GREEN", Machinery(ramp::kSteel, ramp::kGlowGreen, 111).image()});
  out.push_back({"TECH_BLUE", Machinery(ramp::kStone, ramp::kGlowBlue, 112).image()});
  out.push_back({"+0SCREEN", Screen(0).image()});
  out.push_back({"+1SCREEN", Screen(1).image()});
  out.push_back({"+2SCREEN", Screen(2).image()});
  out.push_back({"TRIM_METAL", Trim(ramp::kSteel, true, 113).image()});
  out.push_back({"TRIM_GOLD", Trim(ramp::kGold, true, 114).image()});
  out.push_back({"TRIM_STONE", Trim(ramp::kStone, false, 115).image()});
}

void AddWoods(Catalogue& out) {
  out.push_back({"WOOD_PLANK", MakePlanks(64, 64, 16, ramp::kWood, 0.42, 121).image()});
  out.push_back({"WOOD_DARK", MakePlanks(64, 64, 16, ramp::kWood, 0.26, 122).image()});
  out.push_back({"WOOD_FLOOR", Quarter(MakePlanks(64, 64, 8, ramp::kWood, 0.4, 123)).image()});
  out.push_back({"WOOD_BEAM", MakePlanks(32, 64, 32, ramp::kWood, 0.34, 124).image()});
  out.push_back({"WOOD_PANEL", WoodPanel().image()});
  out.push_back({"WOOD_CRATE", Crate().image()});
  out.push_back({"WOOD_BOOKS", Books().image()});
}

}  // namespace velk::kit
