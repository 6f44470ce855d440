#include "geometry/check_face.h"

#include <cmath>

#include "base/error.h"
#include "geometry/polygon.h"

namespace velk {
namespace {

bool OutOfRange(float c) { return c >= COORD_LIMIT || c < -COORD_LIMIT; }

bool OutOfRange(const WindingPoint& c) { return OutOfRange(c.x) || OutOfRange(c.y) || OutOfRange(c.z); }

// Everything lies behind the edge from corner i, within the tolerance.
bool BehindEdge(const WindingPoint* corners, int count, int i, const vec3& edgeNormal) {
  const double edgeDist = dot(corners[i].position(), edgeNormal) + SIDE_EPSILON;
  for (int k = 0; k < count; ++k) {
    if (k != i && dot(corners[k].position(), edgeNormal) > edgeDist) return false;
  }
  return true;
}

// The check by its definition, with two square roots for every edge.
bool CheckEveryEdge(const WindingPoint* corners, int count, const plane& facePlane) {
  for (int i = 0; i < count; ++i) {
    const WindingPoint& corner = corners[i];
    if (OutOfRange(corner)) return false;
    const double d = DistanceTo(facePlane, corner.position());
    if (d < -SIDE_EPSILON || d > SIDE_EPSILON) return false;
    const vec3 dir = subtract(corners[i + 1 < count ? i + 1 : 0].position(), corner.position());
    if (length(dir) < SIDE_EPSILON) return false;
    vec3 edgeNormal = cross(facePlane.normal, dir);
    normalize(edgeNormal);
    if (!BehindEdge(corners, count, i, edgeNormal)) Error("CheckFace: non-convex");
  }
  return true;
}

// Nearly every polygon of a brush is acceptable beyond any doubt of rounding, and that is found without a
// square root: well within range, near the plane, edges long enough, and turning the same way by a margin at
// every corner. Bounds of that, stricter than the definition's:
constexpr float kNearPlane = 0.02f;
constexpr float kLongEnough = 0.0101f;  // squared
constexpr float kTurn = 0.001f;         // twice the area of the triangle at a corner

struct Direction {
  double x, y, z;
};

Direction From(const WindingPoint& a, const WindingPoint& b) {
  return {double(b.x) - a.x, double(b.y) - a.y, double(b.z) - a.z};
}

// Twice the area of the triangle over two of its sides, positive when it turns as a face's corners do.
double TurnedArea(const Direction& a, const Direction& b, const vec3& normal) {
  return normal.x * (a.z * b.y - a.y * b.z) + normal.y * (a.x * b.z - a.z * b.x) +
         normal.z * (a.y * b.x - a.x * b.y);
}

bool WellWithinRange(const WindingPoint& c) {
  const double limit = COORD_LIMIT - 1;
  return std::fabs(c.x) < limit && std::fabs(c.y) < limit && std::fabs(c.z) < limit;
}

bool TurnsAtEveryCorner(const WindingPoint* corners, int count, const plane& facePlane) {
  Direction before = From(corners[count - 1], corners[0]);
  for (int i = 0; i < count; ++i) {
    const WindingPoint& corner = corners[i];
    const Direction along = From(corner, corners[i + 1 < count ? i + 1 : 0]);
    if (!WellWithinRange(corner) || !(std::fabs(DistanceTo(facePlane, corner.position())) < kNearPlane) ||
        along.x * along.x + along.y * along.y + along.z * along.z < kLongEnough ||
        TurnedArea(before, along, facePlane.normal) < kTurn) {
      return false;
    }
    before = along;
  }
  return true;
}

// A polygon that turns the same way at every corner could still wind round twice; not when all its corners
// lie on one side of the first edge, in order round the first corner.
bool WindsOnce(const WindingPoint* corners, int count, const vec3& normal) {
  const Direction first = From(corners[0], corners[1]);
  for (int i = 2; i < count; ++i) {
    const Direction spoke = From(corners[0], corners[i]);
    if (TurnedArea(first, spoke, normal) < kTurn ||
        TurnedArea(From(corners[0], corners[i - 1]), spoke, normal) < kTurn) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane) {
  // Fewer than five corners that turn the same way cannot wind round twice.
  if (TurnsAtEveryCorner(corners, count, facePlane) &&
      (count < 5 || WindsOnce(corners, count, facePlane.normal))) {
    return true;
  }
  return CheckEveryEdge(corners, count, facePlane);
}

}  // namespace velk
