#include "camera/flight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "camera/view.h"

namespace velk {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kLevel = 3 * kPi / 2;
constexpr double kStraightUp = 2 * kPi - 1e-4;  // a full turn is straight down again

double Wrapped(double angle) {
  const double rest = std::fmod(angle, 2 * kPi);
  return rest < 0 ? rest + 2 * kPi : rest;
}

// Axes of an eye on a quarter turn miss those of the world by a hair.
vec3 WithoutHair(vec3 axis) {
  constexpr float kHair = 1e-6f;
  for (int i = 0; i < 3; ++i) {
    if (std::fabs(axis[i]) < kHair) axis[i] = 0;
  }
  return axis;
}

void Shift(camera& eye, double x, double y, double z) {
  eye.origin = {float(eye.origin.x + x), float(eye.origin.y + y), float(eye.origin.z + z)};
}

}  // namespace

void LookBy(camera& eye, double left, double up) {
  eye.yaw = float(Wrapped(eye.yaw + left));
  const double before = Wrapped(eye.pitch);
  const bool upright = before >= kPi;  // else a command turned it over, and it is free to go on
  eye.pitch = float(upright ? std::clamp(before + up, kPi, kStraightUp) : before + up);
}

void LookAlong(camera& eye, const vec3& direction) {
  const double flat = std::hypot(direction.x, direction.y);
  const camera level;
  eye.roll = level.roll;
  eye.pitch = float(kLevel + std::atan2(double(direction.z), flat));
  if (flat > 0) eye.yaw = float(Wrapped(std::atan2(double(direction.x), -double(direction.y))));
}

void MoveBy(camera& eye, double right, double up, double forward) {
  const Eye axes = MakeEye(eye);
  vec3 at = MultiplyAdd(eye.origin, right, WithoutHair(axes.right));
  at = MultiplyAdd(at, up, WithoutHair(axes.up));
  eye.origin = MultiplyAdd(at, forward, WithoutHair(axes.forward));
}

vec3 PointBefore(const camera& eye, int width, int height, double x, double y, double distance) {
  const Eye axes = MakeEye(eye);
  const Projection p = MakeProjection(width, height);
  vec3 way = MultiplyAdd(axes.forward, (x - p.halfWidth) / p.halfWidth, axes.right);
  way = MultiplyAdd(way, (p.centerY - y) / p.halfWidth, axes.up);
  normalize(way);
  return MultiplyAdd(eye.origin, distance, way);
}

int Flight::between(Motion one, Motion other) const {
  return (going_[static_cast<size_t>(one)] ? 1 : 0) - (going_[static_cast<size_t>(other)] ? 1 : 0);
}

void Flight::turn(camera& eye, double by) const {
  const int left = between(Motion::TurnLeft, Motion::TurnRight);
  const int up = between(Motion::PitchUp, Motion::PitchDown);
  if (left != 0 || up != 0) LookBy(eye, left * by, up * by);
  const int roll = between(Motion::RollUp, Motion::RollDown);
  if (roll != 0) eye.roll = float(Wrapped(eye.roll + roll * by));
}

Outcome Flight::step(map& m, const Settings& settings, double seconds, bool fast) const {
  if (!going()) return {};
  camera& eye = m.activeCamera();
  const vec3 before = eye.origin;
  const double way = settings.stepsize * kStepsASecond * seconds * (fast ? kFast : 1);
  turn(eye, settings.turnStep() * kTurnsASecond * seconds);
  const double level = between(Motion::Forward, Motion::Backward) * way;
  Shift(eye, std::sin(double(eye.yaw)) * level, -std::cos(double(eye.yaw)) * level, 0);
  Shift(eye, between(Motion::East, Motion::West) * way, between(Motion::North, Motion::South) * way,
        between(Motion::Rise, Motion::Sink) * way);
  MoveBy(eye, between(Motion::StrafeRight, Motion::StrafeLeft) * way, 0,
         between(Motion::Ahead, Motion::Astern) * way);
  Outcome outcome = Outcome::Drawn(Redraw::All);
  if (!VecEqual(before, eye.origin)) outcome.centre = Centre::Follow;
  return outcome;
}

}  // namespace velk
