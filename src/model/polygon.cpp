#include "model/polygon.h"

#include <cmath>

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

float ScaleOf(float scale) { return scale == 0 ? 1 : scale; }

// Most scales are 1, and divisions are slow.
double Scaled(double value, float scale) { return scale == 1 ? value : value / scale; }

}  // namespace

SplitPlane::SplitPlane(const plane& p)
    : normal{p.normal.x, p.normal.y, p.normal.z},
      x(_mm_set1_pd(p.normal.x)),
      y(_mm_set1_pd(p.normal.y)),
      z(_mm_set1_pd(p.normal.z)),
      dist(_mm_set1_pd(p.dist)) {
  std::uint32_t keptBits[4] = {~0u, ~0u, ~0u, ~0u};
  std::uint32_t fixedBits[4] = {};
  for (int i = 0; i < 3; ++i) {
    if (std::fabs(p.normal[i]) != 1) continue;
    keptBits[i] = 0;
    fixedBits[i] = std::bit_cast<std::uint32_t>(p.normal[i] == 1 ? p.dist : -p.dist);
  }
  kept = std::bit_cast<__m128>(keptBits);
  fixed = std::bit_cast<__m128>(fixedBits);
}

int CutCorners(const WindingPoint* corners, int count, const SplitPlane& split, const CornerSides& sides,
               WindingPoint* out) {
  const std::uint64_t splits = (sides.front & detail::OfNextCorner(sides.back, count)) |
                               (sides.back & detail::OfNextCorner(sides.front, count));
  // Only a polygon that is not convex is split more than twice.
  const bool manySplits = detail::WithoutLowest(detail::WithoutLowest(splits)) != 0;
  if (manySplits && std::popcount(splits) - std::popcount(sides.back) > CLIP_EXTRA_POINTS) return 0;

  // Corners behind the plane are written too and then overwritten: cheaper than a branch on each.
  int next = 0;
  int slots[WINDING_MAX_POINTS];
  for (int i = 0; i < count; ++i) {
    detail::Store(out[next], detail::Load(corners[i]), corners[i].t);
    next += 1 - int(sides.back >> i & 1);
    slots[i] = next;
    next += int(splits >> i & 1);
  }
  for (std::uint64_t left = splits; left != 0; left = detail::WithoutLowest(left)) {
    const int i = std::countr_zero(left);
    const int to = i + 1 < count ? i + 1 : 0;
    const detail::NewCorner made =
        detail::SplitEdge(corners[i], corners[to], sides.distance[i], sides.distance[to], split);
    detail::Store(out[slots[i]], made.xyzs, made.t);
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
  if (dot(up, up) != 1) normalize(up);  // of length 1 it would stay as it is
  const vec3 org = velk::scale(normal, facePlane.dist);
  const vec3 right = velk::scale(cross(up, normal), BASE_POLYGON_HALF_SIZE);
  up = velk::scale(up, BASE_POLYGON_HALF_SIZE);
  const vec3 left = subtract(org, right);
  const vec3 rightOf = add(org, right);
  const vec3 places[4] = {add(left, up), add(rightOf, up), subtract(rightOf, up), subtract(left, up)};

  // The texture axes lie along map axes: s along x or y, t against y or z.
  const int sAxis = axes.s.x != 0 ? 0 : 1;
  const int tAxis = axes.t.y != 0 ? 1 : 2;
  const float scales[2] = {ScaleOf(texture.scale[0]), ScaleOf(texture.scale[1])};
  for (int i = 0; i < 4; ++i) {
    const double s = places[i][sAxis];
    const double t = -places[i][tAxis];
    out[i] = {places[i].x, places[i].y, places[i].z,
              float(Scaled(turn.cosine * s - turn.sine * t, scales[0]) + texture.shift[0]),
              float(Scaled(turn.cosine * t + turn.sine * s, scales[1]) + texture.shift[1])};
  }
  return true;
}

}  // namespace velk
