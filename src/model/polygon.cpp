#include "model/polygon.h"

#include <algorithm>
#include <cmath>

#include "base/error.h"

namespace velk {
namespace {

// Index of the largest component, the earlier of equal ones; -1 when there is none.
int LargestAxis(const vec3& normal) {
  int axis = -1;
  double largest = -COORD_LIMIT;
  for (int i = 0; i < 3; ++i) {
    if (std::fabs(normal[i]) > largest) {
      largest = std::fabs(normal[i]);
      axis = i;
    }
  }
  return axis;
}

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

// The check by its definition, with a square root or two for every edge.
bool CheckEveryEdge(const WindingPoint* corners, int count, const plane& facePlane) {
  for (int i = 0; i < count; ++i) {
    const WindingPoint& corner = corners[i];
    if (OutOfRange(corner)) return false;
    const double d = distanceTo(facePlane, corner.position());
    if (d < -SIDE_EPSILON || d > SIDE_EPSILON) return false;
    const vec3 dir = subtract(corners[i + 1 < count ? i + 1 : 0].position(), corner.position());
    if (length(dir) < SIDE_EPSILON) return false;
    vec3 edgeNormal = cross(facePlane.normal, dir);
    normalize(edgeNormal);
    if (!BehindEdge(corners, count, i, edgeNormal)) Error("CheckFace: non-convex");
  }
  return true;
}

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

// Polygons that CheckEveryEdge accepts beyond any doubt of rounding: well within range, near the plane, and
// turning the same way by a margin at every corner. With more than four corners they must not wind round
// twice: all corners lie on one side of the first edge, in order round the first corner. Nearly every
// polygon of a brush is such.
bool ClearlyAcceptable(const WindingPoint* corners, int count, const plane& facePlane) {
  constexpr double kNearPlane = 0.02;
  constexpr double kLongEnough = 0.0101;  // squared
  constexpr double kTurn = 0.001;
  const vec3& normal = facePlane.normal;
  Direction before = From(corners[count - 1], corners[0]);
  for (int i = 0; i < count; ++i) {
    const WindingPoint& corner = corners[i];
    const Direction along = From(corner, corners[i + 1 < count ? i + 1 : 0]);
    if (std::max({std::fabs(corner.x), std::fabs(corner.y), std::fabs(corner.z)}) >= float(COORD_LIMIT) ||
        std::fabs(distanceTo(facePlane, corner.position())) > kNearPlane ||
        along.x * along.x + along.y * along.y + along.z * along.z < kLongEnough ||
        TurnedArea(before, along, normal) < kTurn) {
      return false;
    }
    before = along;
  }
  const Direction first = From(corners[0], corners[1]);
  for (int i = 2; i < count && count > 4; ++i) {
    if (TurnedArea(first, From(corners[0], corners[i]), normal) < kTurn ||
        TurnedArea(From(corners[0], corners[i - 1]), From(corners[i - 1], corners[i]), normal) < kTurn) {
      return false;
    }
  }
  return true;
}

std::uint64_t ClearLowest(std::uint64_t bits) { return bits & (bits - 1); }

float ScaleOf(float scale) { return scale == 0 ? 1 : scale; }

}  // namespace

SplitPlane SplitBy(const plane& p) {
  SplitPlane split{{p.normal.x, p.normal.y, p.normal.z}, p.dist, {~0u, ~0u, ~0u, ~0u}, {}};
  for (int i = 0; i < 3; ++i) {
    if (p.normal[i] != 1 && p.normal[i] != -1) continue;
    split.kept[i] = 0;
    split.fixed[i] = std::bit_cast<std::uint32_t>(p.normal[i] == 1 ? p.dist : -p.dist);
  }
  return split;
}

int CutCorners(const WindingPoint* corners, int count, const SplitPlane& split, const CornerSides& sides,
               WindingPoint* out) {
  const std::uint64_t splits = (sides.front & detail::OfNextCorner(sides.back, count)) |
                               (sides.back & detail::OfNextCorner(sides.front, count));
  // Only a polygon that is not convex is split more than twice.
  const std::uint64_t beyondTwo = ClearLowest(ClearLowest(splits));
  if (beyondTwo != 0 && std::popcount(splits) - std::popcount(sides.back) > CLIP_EXTRA_POINTS) return 0;

  // Corners behind the plane are written too and then overwritten: cheaper than a branch on each.
  int next = 0;
  int slots[WINDING_MAX_POINTS];
  for (int i = 0; i < count; ++i) {
    out[next] = corners[i];
    next += 1 - int(sides.back >> i & 1);
    slots[i] = next;
    next += int(splits >> i & 1);
  }
  for (std::uint64_t left = splits; left != 0; left = ClearLowest(left)) {
    const int i = std::countr_zero(left);
    out[slots[i]] = SplitCorner(corners, count, i, split, sides);
  }
  return next;
}

bool BaseCorners(const plane& facePlane, const texturedef& texture, const TextureAxes& axes,
                 const TextureTurn& turn, WindingPoint* out) {
  const vec3& normal = facePlane.normal;
  const int axis = LargestAxis(normal);
  if (axis < 0) return false;
  vec3 up = axis == 2 ? vec3{1, 0, 0} : vec3{0, 0, 1};
  up = multiplyAdd(up, -dot(up, normal), normal);
  normalize(up);
  const vec3 org = velk::scale(normal, facePlane.dist);
  const vec3 right = velk::scale(cross(up, normal), BASE_POLYGON_HALF_SIZE);
  up = velk::scale(up, BASE_POLYGON_HALF_SIZE);
  const vec3 left = subtract(org, right);
  const vec3 rightOf = add(org, right);
  const vec3 places[4] = {add(left, up), add(rightOf, up), subtract(rightOf, up), subtract(left, up)};

  const float scales[2] = {ScaleOf(texture.scale[0]), ScaleOf(texture.scale[1])};
  for (int i = 0; i < 4; ++i) {
    const TexCoords at = ProjectTexture(axes, turn, scales, texture.shift, places[i]);
    out[i] = {places[i].x, places[i].y, places[i].z, at.s, at.t};
  }
  return true;
}

bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane) {
  return ClearlyAcceptable(corners, count, facePlane) || CheckEveryEdge(corners, count, facePlane);
}

}  // namespace velk
