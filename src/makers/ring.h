// Circles of whole points around a seed, for what stands upright in it.
#pragma once

#include <vector>

#include "makers/pieces.h"

namespace velk {

inline constexpr int kFewestSides = 3;
inline constexpr int kMostSides = 32;

// The middle of the seed on the grid; its z means nothing.
vec3 SnappedMiddle(const Seed& seed, int gridsize);
inline vec3 AtHeight(const vec3& p, double z) { return {p.x, p.y, float(z)}; }

// Points of the circle about `centre`, clockwise seen from above and from +y on; the first follows the last
// once more.
std::vector<vec3> RingAround(const vec3& centre, int sides, double radius);

// Level faces about the point.
FacePoints FacingUp(const vec3& p);
FacePoints FacingDown(const vec3& p);

}  // namespace velk
