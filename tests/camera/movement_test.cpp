#include "camera/movement.h"

#include <numbers>

#include <gtest/gtest.h>

#include "camera/renderer.h"
#include "support/builders.h"

namespace velk {
namespace {

using test::TestMap;

constexpr float kPi = float(std::numbers::pi);

TEST(Movement, MovesAlongTheHeadingOrTheAxes) {
  const struct {
    Outcome (*move)(map&, const Settings&);
    const char* status;
    vec3 moved;  // from (0, 0, 0) with step 64, looking along +x
  } cases[] = {
      {MoveForward, "Forward...", {64, 0, 0}},
      {MoveBackward, "Backward...", {-64, 0, 0}},
      {StrafeLeft, "Strafe Left...", {0, 64, 0}},
      {StrafeRight, "Strafe Right...", {0, -64, 0}},
      {MoveUp, "Moving up...", {0, 0, 64}},
      {MoveDown, "Moving down", {0, 0, -64}},
      {MoveWest, "Left", {-64, 0, 0}},
      {MoveEast, "Right", {64, 0, 0}},
      {MoveNorth, "Up", {0, 64, 0}},
      {MoveSouth, "Down", {0, -64, 0}},
  };
  for (const auto& c : cases) {
    TestMap t;
    t.m.activeCamera().yaw = kPi / 2;
    const Outcome outcome = c.move(t.m, t.settings);
    for (int axis = 0; axis < 3; ++axis) {
      EXPECT_NEAR(t.m.activeCamera().origin[axis], c.moved[axis], 1e-4) << c.status;
    }
    EXPECT_EQ(outcome.status, c.status);
    EXPECT_TRUE(outcome.redraw == Redraw::All && outcome.centre == Centre::Follow);
    EXPECT_FALSE(t.m.modified);
  }
}

Outcome TurnAroundHere(map& m, const Settings&) { return TurnAround(m); }

TEST(Movement, TurnsAndWrapsOnce) {
  const struct {
    Outcome (*turn)(map&, const Settings&);
    const char* status;
    float camera::*angle;
    double before, after;
    bool redrawPlans;
  } cases[] = {
      {TurnLeft, "Left", &camera::yaw, 0, kPi / 8, true},
      {TurnLeft, "Left", &camera::yaw, 6.2, 6.2 - 15 * kPi / 8, true},
      {TurnRight, "Right", &camera::yaw, 0, 15 * kPi / 8, true},
      {TurnRight, "Right", &camera::yaw, 20, 20 - kPi / 8, true},  // one correction at most
      {TurnAroundHere, "Turning around...", &camera::yaw, 5, 1.858407, false},
      {TurnAroundHere, "Turning around...", &camera::yaw, 3, 6.141593, false},
      {PitchUp, "Pitching up...", &camera::pitch, 1, 1 + kPi / 8, false},
      {PitchDown, "Pitching down...", &camera::pitch, 0.1, 0.1 + 15 * kPi / 8, false},
      {RollUp, "Rolling up...", &camera::roll, 6, 6 - 15 * kPi / 8, false},
      {RollDown, "Rolling down...", &camera::roll, 1, 1 - kPi / 8, false},
  };
  for (const auto& c : cases) {
    TestMap t;
    t.m.activeCamera().*c.angle = float(c.before);
    const Outcome outcome = c.turn(t.m, t.settings);
    EXPECT_NEAR(t.m.activeCamera().*c.angle, c.after, 1e-5) << c.status;
    EXPECT_EQ(outcome.status, c.status);
    EXPECT_EQ(Includes(outcome.redraw, Redraw::Plans), c.redrawPlans) << c.status;
    EXPECT_TRUE(Includes(outcome.redraw, Redraw::Camera) && outcome.centre == Centre::Stay) << c.status;
  }
}

// Tops at 0, 64 and 128 under the camera, one beside it and one in no visible group.
TEST(Movement, GoesToTheNextFloor) {
  const struct {
    Outcome (*go)(map&);
    float eye, after;
    const char* status;
  } cases[] = {
      {FloorUp, 48, 112, "Moved up a floor"},  // feet exactly on the lowest floor
      {FloorUp, 176, 176, "Already at top level"},    {FloorDown, 100, 48, "Moved down a floor"},
      {FloorDown, 48, 48, "Already at bottom level"}, {FloorDown, 500, 176, "Moved down a floor"},
  };
  TestMap t;
  for (const float top : {128.0f, 0.0f, 64.0f}) t.box({-64, -64, top - 8}, {64, 64, top});
  t.box({100, 100, 80}, {200, 200, 90});
  t.settings.groupmode = true;
  t.box({-64, -64, 10}, {64, 64, 20}).setGroup(9);
  t.m.modified = false;
  for (const auto& c : cases) {
    t.m.activeCamera().origin = {0, 0, c.eye};
    const Outcome outcome = c.go(t.m);
    EXPECT_EQ(outcome.status, c.status);
    EXPECT_EQ(t.m.activeCamera().origin.z, c.after);
    EXPECT_EQ(outcome.centre == Centre::Follow, c.eye != c.after);
    EXPECT_EQ(outcome.redraw == Redraw::All, c.eye != c.after);
  }
  EXPECT_FALSE(t.m.modified);
}

TEST(Movement, ParametersKeepTheirLimits) {
  const struct {
    Outcome (*change)(Settings&);
    float Settings::*value;
    float before;
    const char* status;
  } cases[] = {
      {SmallerStep, &Settings::stepsize, 1.5f, "step: 1.50"},
      {SmallerStep, &Settings::stepsize, 2, "step: 1.00"},
      {LargerStep, &Settings::stepsize, 1024, "step: 1024.00"},
      {LargerStep, &Settings::stepsize, 1000, "step: 2000.00"},
      {NearerFarLimit, &Settings::far_clip_distance, -8192, "zmax: -8128.00"},
      {NearerFarLimit, &Settings::far_clip_distance, -40, "zmax: -2.00"},
      {FartherFarLimit, &Settings::far_clip_distance, -8192, "zmax: -8256.00"},
      {FartherFarLimit, &Settings::far_clip_distance, -16380, "zmax: -16384.00"},
  };
  for (const auto& c : cases) {
    Settings settings;
    settings.*c.value = c.before;
    EXPECT_EQ(c.change(settings).status, c.status);
  }
}

TEST(Movement, TheLensKeepsItsLimits) {
  WireLens lens{0.25f, 0.26f};
  EXPECT_EQ(SmallerPpd(lens).status, "ppd: 0.25");
  EXPECT_EQ(LargerPpd(lens).status, "ppd: 0.50");
  EXPECT_EQ(SmallerMag(lens).status, "mag:  0.25");
  EXPECT_EQ(SmallerMag(lens).status, "mag:  0.25");
  EXPECT_EQ(LargerMag(lens).status, "mag:  0.28");
  lens.ppd = 1024;
  EXPECT_EQ(LargerPpd(lens).status, "ppd: 1024.00");
  EXPECT_TRUE(LargerPpd(lens).redraw == Redraw::Camera);
}

}  // namespace
}  // namespace velk
