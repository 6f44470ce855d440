#include "geometry/check_face.h"

#include <cmath>

#include "base/error.h"
#include "geometry/polygon.h"

namespace velk {
namespace {

// What is no number is out of range, too.
bool OutOfRange(float c) { return !(c < COORD_LIMIT && c >= -COORD_LIMIT); }

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
constexpr float kFloatTurn = 1e-5f;     // what floats cannot tell of it, of the squares of the sides' lengths

// Four vectors side by side.
struct Four {
  __m128 x, y, z;

  friend Four operator-(const Four& a, const Four& b) {
    return {_mm_sub_ps(a.x, b.x), _mm_sub_ps(a.y, b.y), _mm_sub_ps(a.z, b.z)};
  }
};

__m128 Dot(const Four& a, const Four& b) {
  return _mm_add_ps(_mm_add_ps(_mm_mul_ps(a.x, b.x), _mm_mul_ps(a.y, b.y)), _mm_mul_ps(a.z, b.z));
}

// Of the product of two pairs, the difference.
__m128 Crossed(__m128 a, __m128 b, __m128 c, __m128 d) {
  return _mm_sub_ps(_mm_mul_ps(a, b), _mm_mul_ps(c, d));
}

// Twice the areas of the triangles over two of their sides, positive when they turn as a face's corners do.
__m128 TurnedAreas(const Four& a, const Four& b, const Four& normal) {
  return Dot({Crossed(a.z, b.y, a.y, b.z), Crossed(a.x, b.z, a.z, b.x), Crossed(a.y, b.x, a.x, b.y)}, normal);
}

__m128 Magnitude(__m128 v) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), v); }

// The positions of the corners from `first` on, which go round.
Four Corners(const WindingPoint* corners, int count, int first) {
  const auto corner = [&](int i) { return detail::Load(corners[(first + i) % count]); };
  __m128 a = corner(0);
  __m128 b = corner(1);
  __m128 c = corner(2);
  __m128 d = corner(3);
  _MM_TRANSPOSE4_PS(a, b, c, d);
  return {a, b, c};
}

// Looks at four corners at a time; the last time some of them again.
bool TurnsAtEveryCorner(const WindingPoint* corners, int count, const plane& facePlane) {
  const vec3& n = facePlane.normal;
  const Four normal{_mm_set1_ps(n.x), _mm_set1_ps(n.y), _mm_set1_ps(n.z)};
  for (int i = 0; i < count; i += 4) {
    const Four at = Corners(corners, count, i);
    const Four next = Corners(corners, count, i + 1);
    const Four along = next - at;
    const Four after = Corners(corners, count, i + 2) - next;

    const __m128 farthest = _mm_max_ps(_mm_max_ps(Magnitude(at.x), Magnitude(at.y)), Magnitude(at.z));
    const __m128 inRange = _mm_cmplt_ps(farthest, _mm_set1_ps(float(COORD_LIMIT - 1)));
    const __m128 distance = Magnitude(_mm_sub_ps(Dot(at, normal), _mm_set1_ps(facePlane.dist)));
    const __m128 onPlane = _mm_cmplt_ps(distance, _mm_set1_ps(kNearPlane));
    const __m128 squared = Dot(along, along);
    const __m128 longEnough = _mm_cmpgt_ps(squared, _mm_set1_ps(kLongEnough));
    const __m128 doubt = _mm_mul_ps(_mm_add_ps(squared, Dot(after, after)), _mm_set1_ps(kFloatTurn));
    const __m128 turns =
        _mm_cmpgt_ps(TurnedAreas(along, after, normal), _mm_add_ps(doubt, _mm_set1_ps(kTurn)));
    const __m128 fine = _mm_and_ps(_mm_and_ps(inRange, onPlane), _mm_and_ps(longEnough, turns));
    if (_mm_movemask_ps(fine) != 15) return false;
  }
  return true;
}

struct Direction {
  double x, y, z;
};

Direction From(const WindingPoint& a, const WindingPoint& b) {
  return {double(b.x) - a.x, double(b.y) - a.y, double(b.z) - a.z};
}

double TurnedArea(const Direction& a, const Direction& b, const vec3& normal) {
  return normal.x * (a.z * b.y - a.y * b.z) + normal.y * (a.x * b.z - a.z * b.x) +
         normal.z * (a.y * b.x - a.x * b.y);
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
