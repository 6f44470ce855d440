// Planes: a unit normal and a distance. dot(normal, p) - dist is positive in front of the plane, which for
// a face is outside its brush.
#pragma once

#include "geometry/vec3.h"

namespace velk {

struct plane {
  vec3 normal;
  float dist = 0;

  friend bool operator==(const plane& a, const plane& b) {
    return VecEqual(a.normal, b.normal) && a.dist == b.dist;
  }
};

// Signed distance of a point from a plane.
inline double DistanceTo(const plane& p, const vec3& point) { return dot(point, p.normal) - p.dist; }

// The plane through three points as the game's map compiler makes it: the normal is
// (p0 - p1) x (p2 - p1). False, and nothing set, when that is exactly zero.
bool PlaneFromPoints(const vec3& p0, const vec3& p1, const vec3& p2, plane& result);

}  // namespace velk
