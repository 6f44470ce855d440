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

// The coordinate of the next corner, for four corners in a register.
__m128 OfNext(__m128 v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(0, 3, 2, 1)); }

__m128 Magnitude(__m128 v) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), v); }

__m128 CrossPart(__m128 a, __m128 b, __m128 c, __m128 d) {
  return _mm_sub_ps(_mm_mul_ps(a, b), _mm_mul_ps(c, d));
}

__m128 Dot(__m128 x, __m128 y, __m128 z, __m128 a, __m128 b, __m128 c) {
  return _mm_add_ps(_mm_add_ps(_mm_mul_ps(x, a), _mm_mul_ps(y, b)), _mm_mul_ps(z, c));
}

// TurnsAtEveryCorner for four corners at once, in floats: a turn must exceed what they cannot tell.
bool QuadTurnsAtEveryCorner(const WindingPoint* corners, const plane& facePlane) {
  constexpr float kFloatTurn = 1e-5f;  // of the squares of the sides' lengths
  __m128 x = detail::Load(corners[0]);
  __m128 y = detail::Load(corners[1]);
  __m128 z = detail::Load(corners[2]);
  __m128 s = detail::Load(corners[3]);
  _MM_TRANSPOSE4_PS(x, y, z, s);
  const __m128 nx = _mm_set1_ps(facePlane.normal.x);
  const __m128 ny = _mm_set1_ps(facePlane.normal.y);
  const __m128 nz = _mm_set1_ps(facePlane.normal.z);

  const __m128 farthest = _mm_max_ps(_mm_max_ps(Magnitude(x), Magnitude(y)), Magnitude(z));
  const __m128 inRange = _mm_cmplt_ps(farthest, _mm_set1_ps(float(COORD_LIMIT - 1)));
  const __m128 d = _mm_sub_ps(Dot(x, y, z, nx, ny, nz), _mm_set1_ps(facePlane.dist));
  const __m128 onPlane = _mm_cmplt_ps(Magnitude(d), _mm_set1_ps(kNearPlane));

  const __m128 ax = _mm_sub_ps(OfNext(x), x);
  const __m128 ay = _mm_sub_ps(OfNext(y), y);
  const __m128 az = _mm_sub_ps(OfNext(z), z);
  const __m128 squared = Dot(ax, ay, az, ax, ay, az);
  const __m128 longEnough = _mm_cmpgt_ps(squared, _mm_set1_ps(kLongEnough));

  const __m128 bx = OfNext(ax);
  const __m128 by = OfNext(ay);
  const __m128 bz = OfNext(az);
  const __m128 area =
      Dot(CrossPart(az, by, ay, bz), CrossPart(ax, bz, az, bx), CrossPart(ay, bx, ax, by), nx, ny, nz);
  const __m128 doubt = _mm_mul_ps(_mm_add_ps(squared, OfNext(squared)), _mm_set1_ps(kFloatTurn));
  const __m128 turns = _mm_cmpgt_ps(area, _mm_add_ps(doubt, _mm_set1_ps(kTurn)));

  return _mm_movemask_ps(_mm_and_ps(_mm_and_ps(inRange, onPlane), _mm_and_ps(longEnough, turns))) == 15;
}

}  // namespace

bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane) {
  // Four corners that turn the same way cannot wind round twice.
  if (count == 4 && QuadTurnsAtEveryCorner(corners, facePlane)) return true;
  if (count != 4 && TurnsAtEveryCorner(corners, count, facePlane) &&
      WindsOnce(corners, count, facePlane.normal)) {
    return true;
  }
  return CheckEveryEdge(corners, count, facePlane);
}

}  // namespace velk
