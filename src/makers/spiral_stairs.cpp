#include "makers/spiral_stairs.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/text.h"
#include "makers/ring.h"

namespace velk {
namespace {

constexpr double kQuarter = std::numbers::pi / 2;
constexpr double kFewestTurns = 0.1;

// The whole point that far from `from` in the direction of the angle, which is 0 along +y and grows
// clockwise.
vec3 Away(const vec3& from, double distance, double angle) {
  return {float(RoundComputed(from.x + distance * std::sin(angle))),
          float(RoundComputed(from.y + distance * std::cos(angle))), 0};
}

int Middle(float low, float high) { return Truncate((double(low) + high) / 2); }
int HalfExtent(float low, float high) { return Truncate((double(high) - low) / 2); }

// Corners of a tread, clockwise seen from above.
struct Tread {
  vec3 corners[4];

  Tread(const vec3& inner, const vec3& outer, double halfWidth, double angle)
      : corners{Away(inner, halfWidth, angle - kQuarter), Away(outer, halfWidth, angle - kQuarter),
                Away(outer, halfWidth, angle + kQuarter), Away(inner, halfWidth, angle + kQuarter)} {}

  void addTo(Pieces& pieces, double bottom, double top) const {
    FacePoints faces[6];
    for (size_t i = 0; i < 4; ++i) {
      const vec3& next = corners[(i + 1) % 4];
      faces[i] = {AtHeight(next, top), AtHeight(corners[i], top), AtHeight(corners[i], bottom)};
    }
    faces[4] = {AtHeight(corners[0], top), AtHeight(corners[1], top), AtHeight(corners[2], top)};
    faces[5] = {AtHeight(corners[2], bottom), AtHeight(corners[1], bottom), AtHeight(corners[0], bottom)};
    pieces.addSolid(faces);
  }
};

}  // namespace

void AddSpiral(Pieces& pieces, const Seed& seed, const StairParams& params, const StepLevels& levels) {
  const vec3 centre{float(Middle(seed.mins.x, seed.maxs.x)), float(Middle(seed.mins.y, seed.maxs.y)), 0};
  const double reach = std::min(HalfExtent(seed.mins.x, seed.maxs.x), HalfExtent(seed.mins.y, seed.maxs.y));
  const double distance = params.distance;
  const double length = std::max(1.0, reach - distance);
  const double turn = std::max(params.turns, kFewestTurns) * 2 * std::numbers::pi / levels.steps();
  for (int i = 0; i < levels.steps() && !pieces.full(); ++i) {
    const double angle = i * turn;
    const Tread tread(Away(centre, distance, angle), Away(centre, distance + length, angle),
                      params.width / 2.0, angle);
    tread.addTo(pieces, levels.bottom(i), levels.top(i));
  }
}

}  // namespace velk
