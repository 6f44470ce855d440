// Doors, lights, switches and signs.
#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "materials.h"
#include "noise.h"

namespace velk::kit {
namespace {

// A leaf with a raised rim, a sunk field and a band of stripes across its middle.
Surface MetalDoor(Ramp ramp, bool striped, uint32_t seed) {
  Surface door(128, 128, ramp, 0.38);
  for (int x : {0, 64}) {
    door.raise({x, 0, 63, 128}, 3, 3);
    door.raise({x + 8, 10, 47, 40}, -2.5, 2);
    door.raise({x + 8, 78, 47, 40}, -2.5, 2);
    for (int y : {5, 123}) {
      for (int i = 6; i < 60; i += 17) door.rivet(x + i, y);
    }
  }
  door.raise({0, 55, 128, 18}, 2.5, 2);
  if (striped) {
    door.fill({0, 58, 128, 12}, ramp::kGold, 0.6);
    Stripes(door, {0, 58, 128, 12}, 8, ramp::kGrey, 0.12);
  }
  door.streaks(0.16, seed + 1);
  door.finish(0.16, 0.05, seed);
  return door;
}

Surface WoodenDoor() {
  Surface door = MakePlanks(64, 128, 16, ramp::kWood, 0.36, 131);
  Surface iron(64, 128, ramp::kSteel, 0.3);
  iron.grain(0.1, 132);
  for (int y : {14, 58, 102}) {
    iron.raise({0, y, 64, 12}, 3);
    for (int x = 8; x < 64; x += 16) iron.rivet(x, y + 5);
  }
  iron.light();
  for (int y : {14, 58, 102}) {
    door.each({0, y, 64, 12}, [&](int x, int j, Texel& t) { t = iron.at(x, j); });
  }
  return door;
}

struct Lamp {
  int width = 64, height = 64;
  Ramp frame = ramp::kSteel, glow = ramp::kGlowBlue;
  int rim = 10;
  bool tubes = false;
};

Surface MakeLamp(const Lamp& lamp) {
  Surface surface(lamp.width, lamp.height, lamp.frame, 0.4);
  surface.frame(surface.all(), lamp.rim, 3);
  surface.finish(0.12, 0.06, 141);
  const Box pane{lamp.rim, lamp.rim, lamp.width - 2 * lamp.rim, lamp.height - 2 * lamp.rim};
  surface.each(pane, [&](int x, int y, Texel& t) {
    const double across = std::abs((x + 0.5 - pane.x) / pane.width * 2 - 1);
    const double down = std::abs((y + 0.5 - pane.y) / pane.height * 2 - 1);
    t.ramp = lamp.glow;
    t.level = 1 - 0.55 * std::max(across * across, down * down);
    if (lamp.tubes) t.level = 0.25 + 0.75 * std::abs(std::cos((x + 0.5 - pane.x) / pane.width * 9.42));
  });
  return surface;
}

Surface RoundLamp() {
  Surface surface = MakePlates(64, 64, 64, 64, ramp::kStone, 0.36, 143);
  Surface ring(64, 64, ramp::kGold, 0.42);
  ring.dome(32, 32, 27, 9);
  ring.light();
  surface.each(surface.all(), [&](int x, int y, Texel& t) {
    const double d = std::hypot(x - 31.5, y - 31.5);
    if (d < 24) t = ring.at(x, y);
    if (d < 18) t.ramp = ramp::kFire, t.level = 1 - 0.6 * (d / 18) * (d / 18);
  });
  return surface;
}

// A plate with a knob that is dull, lit or pressed.
Surface SwitchPlate(Ramp plate, Ramp dull, Ramp lit, bool on, bool pressed) {
  Surface surface(64, 64, plate, 0.38);
  surface.raise({2, 2, 60, 60}, 2.5, 3);
  surface.raise({14, 14, 36, 36}, -3, 2);
  for (int x : {8, 55}) {
    for (int y : {8, 55}) surface.rivet(x, y);
  }
  surface.raise({18, 18, 28, 28}, pressed ? 1 : 6, pressed ? 2 : 4);
  surface.mottle(0.12, 4, 151);
  surface.grain(0.06, 152);
  surface.fill({21, 21, 22, 22}, dull, 0.32);
  surface.light();
  if (on) {
    surface.each({21, 21, 22, 22}, [&](int x, int y, Texel& t) {
      t.ramp = lit;
      t.level = 1 - std::hypot(x - 31.5, y - 31.5) / 20;
    });
  }
  return surface;
}

Surface ExitSign() {
  Surface sign(64, 32, ramp::kSteel, 0.36);
  sign.frame(sign.all(), 4, 3);
  sign.grain(0.06, 154);
  sign.light();
  sign.fill({4, 4, 56, 24}, ramp::kRed, 0.14);
  Surface text(32, 16, ramp::kGrey, 0);
  Write(text, 4, 4, "EXIT", ramp::kGlowRed, 1);
  sign.each({4, 4, 56, 24}, [&](int x, int y, Texel& t) {
    const Texel& letter = text.at((x - 4) / 2 + 2, (y - 4) / 2 + 2);
    if (letter.ramp.first == ramp::kGlowRed.first) t = letter;
  });
  return sign;
}

Surface ArrowSign() {
  Surface sign = MakePlates(64, 64, 64, 64, ramp::kSteel, 0.36, 155);
  sign.each({10, 10, 44, 44}, [](int x, int y, Texel& t) {
    const int down = std::abs(y - 32);
    const bool head = x >= 32 && x - 32 < 20 - down;
    const bool shaft = x < 32 && x > 12 && down < 7;
    if (head || shaft) t.ramp = ramp::kGold, t.level += 0.24;
  });
  return sign;
}

Surface Banner() {
  Surface banner(64, 128, ramp::kRed, 0.4);
  banner.eachPart([](double u, double v, Texel& t) {
    t.level += 0.16 * std::sin(u * 18.85 + std::sin(v * 6) * 0.7);
    if (u < 0.09 || u > 0.91 || v < 0.05 || v > 0.93) t.ramp = ramp::kGold;
    const double d = std::abs(u - 0.5) + std::abs(v - 0.45) * 1.6;
    if ((d > 0.2 && d < 0.27) || d < 0.09) t.ramp = ramp::kGold;
  });
  banner.grain(0.12, 156);
  return banner;
}

// Lozenges of coloured glass in lead.
Surface StainedGlass() {
  Surface glass(64, 64, ramp::kGrey, 0.1);
  const Ramp panes[] = {ramp::kBlue, ramp::kTeal, ramp::kBlue, ramp::kViolet};
  glass.each(glass.all(), [&](int x, int y, Texel& t) {
    const int rising = (2 * x + y) % 64, falling = (2 * x - y + 64) % 64;
    if (rising < 5 || falling < 5) {
      t.height = 2;
      return;
    }
    const int row = (2 * x + y) / 64, column = (2 * x - y + 64) / 64;
    const bool heart = (row * 3 + column) % 4 == 1;
    t.ramp = heart ? ramp::kGold : panes[(row + 2 * column) % 4];
    t.level = (heart ? 0.55 : 0.45) + 0.25 * SmoothNoise(x / 64.0, y / 64.0, 8, 8, 158);
  });
  glass.light();
  return glass;
}

}  // namespace

void AddDoors(Catalogue& out) {
  out.push_back({"DOOR_METAL", MetalDoor(ramp::kSteel, true, 161).image()});
  out.push_back({"DOOR_COPPER", MetalDoor(ramp::kRust, false, 162).image()});
  out.push_back({"DOOR_BLUE", MetalDoor(ramp::kBlue, false, 163).image()});
  out.push_back({"DOOR_GOLD", MetalDoor(ramp::kGold, false, 164).image()});
  out.push_back({"DOOR_WOOD", WoodenDoor().image()});
}

void AddLights(Catalogue& out) {
  out.push_back({"LIGHT_BLUE", MakeLamp({}).image()});
  out.push_back({"LIGHT_FIRE", MakeLamp({.frame = ramp::kRust, .glow = ramp::kFire}).image()});
  out.push_back(
      {"LIGHT_SMALL", MakeLamp({.width = 32, .height = 32, .glow = ramp::kFire, .rim = 6}).image()});
  out.push_back({"LIGHT_TUBES", MakeLamp({.rim = 6, .tubes = true}).image()});
  out.push_back({"LIGHT_ROUND", RoundLamp().image()});
  out.push_back(
      {"LIGHT_STRIP",
       MakeLamp({.width = 64, .height = 32, .frame = ramp::kStone, .glow = ramp::kFire, .rim = 7}).image()});
}

void AddSwitches(Catalogue& out) {
  out.push_back({"+0SWITCH", SwitchPlate(ramp::kSteel, ramp::kRed, ramp::kGlowRed, false, false).image()});
  out.push_back({"+1SWITCH", SwitchPlate(ramp::kSteel, ramp::kRed, ramp::kGlowRed, true, false).image()});
  out.push_back({"+ASWITCH", SwitchPlate(ramp::kSteel, ramp::kSlime, ramp::kGlowGreen, true, true).image()});
  out.push_back({"+0BUTTON", SwitchPlate(ramp::kStone, ramp::kBlue, ramp::kGlowBlue, false, false).image()});
  out.push_back({"+1BUTTON", SwitchPlate(ramp::kStone, ramp::kBlue, ramp::kGlowBlue, true, false).image()});
  out.push_back({"+ABUTTON", SwitchPlate(ramp::kStone, ramp::kGold, ramp::kFire, true, true).image()});
  out.push_back({"SIGN_EXIT", ExitSign().image()});
  out.push_back({"SIGN_ARROW", ArrowSign().image()});
  out.push_back({"BANNER", Banner().image()});
  out.push_back({"GLASS", StainedGlass().image()});
}

}  // namespace velk::kit
