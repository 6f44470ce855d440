#include "geometry/polygon.h"

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

__m128 Wide(const vec3& v) { return _mm_setr_ps(v.x, v.y, v.z, 0); }

// The upward direction in a plane whose normal lies nearest to `axis`.
vec3 UpAlong(const vec3& normal, int axis) {
  vec3 up = axis == 2 ? vec3{1, 0, 0} : vec3{0, 0, 1};
  const double lean = dot(up, normal);
  if (lean == 0) return up;  // as most are, and what follows would leave it
  up = MultiplyAdd(up, -lean, normal);
  normalize(up);
  return up;
}

}  // namespace

SplitPlane::SplitPlane(const plane& p)
    : normal{p.normal.x, p.normal.y, p.normal.z},
      x(_mm_set1_pd(p.normal.x)),
      y(_mm_set1_pd(p.normal.y)),
      z(_mm_set1_pd(p.normal.z)),
      dist(_mm_set1_pd(p.dist)) {
  const __m128 sign = _mm_set1_ps(-0.0f);
  const __m128 direction = _mm_setr_ps(p.normal.x, p.normal.y, p.normal.z, 0);
  const __m128 isFixed = _mm_cmpeq_ps(_mm_andnot_ps(sign, direction), _mm_set1_ps(1));
  kept = _mm_andnot_ps(isFixed, std::bit_cast<__m128>(_mm_set1_epi32(-1)));
  fixed = _mm_and_ps(isFixed, _mm_xor_ps(_mm_set1_ps(p.dist), _mm_and_ps(sign, direction)));
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
  const vec3 up = UpAlong(normal, axis);
  const __m128 org = Wide(velk::scale(normal, facePlane.dist));
  const __m128 right = Wide(velk::scale(cross(up, normal), BASE_POLYGON_HALF_SIZE));
  const __m128 halfUp = Wide(velk::scale(up, BASE_POLYGON_HALF_SIZE));
  const __m128 left = _mm_sub_ps(org, right);
  const __m128 rightOf = _mm_add_ps(org, right);
  const __m128 places[4] = {_mm_add_ps(left, halfUp), _mm_add_ps(rightOf, halfUp),
                            _mm_sub_ps(rightOf, halfUp), _mm_sub_ps(left, halfUp)};
  const TextureProjection projection(texture, axes, turn);
  for (int i = 0; i < 4; ++i) {
    _mm_storeu_ps(&out[i].x, places[i]);
    _mm_storel_pi(reinterpret_cast<__m64*>(&out[i].s), _mm_cvtpd_ps(projection.of(out[i])));
  }
  return true;
}

}  // namespace velk
