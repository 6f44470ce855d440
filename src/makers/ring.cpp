#include "makers/ring.h"

#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {
namespace {

// Between the points of a level face.
constexpr float kApart = 16;

}  // namespace

vec3 SnappedMiddle(const Seed& seed, int gridsize) {
  const auto middle = [&](int axis) {
    return float(Snap((double(seed.mins[axis]) + seed.maxs[axis]) / 2, gridsize));
  };
  return {middle(0), middle(1), 0};
}

std::vector<vec3> RingAround(const vec3& centre, int sides, double radius) {
  std::vector<vec3> points;
  points.reserve(static_cast<size_t>(sides) + 1);
  for (int k = 0; k < sides; ++k) {
    const double angle = k * 2 * std::numbers::pi / sides;
    points.push_back({float(RoundComputed(centre.x + radius * std::sin(angle))),
                      float(RoundComputed(centre.y + radius * std::cos(angle))), 0});
  }
  points.push_back(points.front());
  return points;
}

FacePoints FacingUp(const vec3& p) { return {p, {p.x, p.y + kApart, p.z}, {p.x + kApart, p.y, p.z}}; }

FacePoints FacingDown(const vec3& p) { return {p, {p.x + kApart, p.y, p.z}, {p.x, p.y + kApart, p.z}}; }

}  // namespace velk
