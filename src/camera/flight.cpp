#include "camera/flight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "camera/view.h"

namespace velk {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kSteepest = kPi / 2 - 0.01;  // up and down

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

// Of its forward on the ground, from the x axis, radians; of its up where it looks straight up or down.
double HeadingOf(const camera& eye) {
  const Eye axes = MakeEye(eye);
  const bool steep = std::hypot(double(axes.forward.x), double(axes.forward.y)) < 1e-4;
  const vec3& way = steep ? axes.up : axes.forward;
  const double sign = steep && axes.forward.z > 0 ? -1 : 1;
  return std::atan2(sign * way.y, sign * way.x);
}

bool IsUpright(const camera& eye) {
  const Eye axes = MakeEye(eye);
  return std::fabs(axes.right.z) < 1e-3 && axes.up.z > 0;
}

void Shift(camera& eye, double x, double y, double z) {
  eye.origin = {float(eye.origin.x + x), float(eye.origin.y + y), float(eye.origin.z + z)};
}

}  // namespace

// The pitch turns about the world's x axis, whatever the yaw; so an upright eye that looks up or down has
// some of all three angles. The eye's up is (-sin roll, cos roll cos pitch, cos roll sin pitch); the x of its
// forward and right are cos roll times the cosine and sine of the yaw and a quarter turn.
void LookAlong(camera& eye, const vec3& direction) {
  vec3 forward = direction;
  normalize(forward);
  const double flat = std::hypot(double(forward.x), double(forward.y));
  const double heading = flat > 0 ? std::atan2(double(forward.y), double(forward.x)) : HeadingOf(eye);
  const double height = std::clamp(std::atan2(double(forward.z), flat), -kSteepest, kSteepest);
  const double upX = -std::sin(height) * std::cos(heading);
  const double upY = -std::sin(height) * std::sin(heading);
  eye.roll = float(kPi + std::asin(upX));
  eye.pitch = float(Wrapped(std::atan2(-std::cos(height), -upY)));
  const double forwardX = std::cos(height) * std::cos(heading);
  eye.yaw = float(Wrapped(std::atan2(-std::sin(heading), -forwardX) - kPi / 2));
}

void LookBy(camera& eye, double left, double up) {
  const Eye axes = MakeEye(eye);
  const double heading = HeadingOf(eye) + left;
  const double height =
      std::clamp(std::asin(std::clamp(double(axes.forward.z), -1.0, 1.0)) + up, -kSteepest, kSteepest);
  LookAlong(eye, {float(std::cos(height) * std::cos(heading)), float(std::cos(height) * std::sin(heading)),
                  float(std::sin(height))});
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

// An eye that stands upright stays so; one that a command tilted turns about its own axes.
void Flight::turn(camera& eye, double by) const {
  const int left = between(Motion::TurnLeft, Motion::TurnRight);
  const int up = between(Motion::PitchUp, Motion::PitchDown);
  const int roll = between(Motion::RollUp, Motion::RollDown);
  if (roll != 0) eye.roll = float(Wrapped(eye.roll + roll * by));
  if (left == 0 && up == 0) return;
  if (IsUpright(eye)) return LookBy(eye, left * by, up * by);
  eye.yaw = float(Wrapped(eye.yaw + left * by));
  eye.pitch = float(Wrapped(eye.pitch + up * by));
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
