// The camera moved by amounts and by time rather than by steps: looking around, sliding, flying.
#pragma once

#include <bitset>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

// Turns the eye, radians: to the left and up, to just short of straight up and down. It is upright then.
void LookBy(camera& eye, double left, double up);
// Has the eye, upright, look along a direction of any length but 0.
void LookAlong(camera& eye, const vec3& direction);
// Moves the eye along its own axes, world units.
void MoveBy(camera& eye, double right, double up, double forward);

// The world point that lies so far before the eye at a pixel of a flat or textured picture of that size.
vec3 PointBefore(const camera& eye, int width, int height, double x, double y, double distance);

// Ways to go for as long as a key is held. Ahead and Astern follow the eye up and down, Forward and Backward
// stay level.
enum class Motion {
  Forward,
  Backward,
  StrafeLeft,
  StrafeRight,
  Ahead,
  Astern,
  Rise,
  Sink,
  West,
  East,
  North,
  South,
  TurnLeft,
  TurnRight,
  PitchUp,
  PitchDown,
  RollUp,
  RollDown
};
inline constexpr size_t kMotions = 18;

// The motions that go on at the moment.
class Flight {
 public:
  // In steps of the settings a second.
  static constexpr double kStepsASecond = 5;
  static constexpr double kTurnsASecond = 4;
  static constexpr double kFast = 4;  // times as much

  void begin(Motion motion) { going_.set(static_cast<size_t>(motion)); }
  void stop() { going_.reset(); }
  bool going() const { return going_.any(); }

  // All motions for so long, side by side.
  Outcome step(map& m, const Settings& settings, double seconds, bool fast) const;

 private:
  // 1, -1 or 0 for the one, the other, and neither or both.
  int between(Motion one, Motion other) const;
  void turn(camera& eye, double by) const;

  std::bitset<kMotions> going_;
};

}  // namespace velk
