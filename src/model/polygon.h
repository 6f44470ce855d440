// The arithmetic of windings on plain runs of corners, so that clipping can work in scratch memory. Windings
// and brush::buildWindings share it; both get the same results to the bit.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "model/texturedef.h"
#include "model/winding.h"

namespace velk {

// What a cut may add to a polygon before it counts as broken.
inline constexpr int CLIP_EXTRA_POINTS = 4;

// Room for the corners of any polygon and for what CutCorners makes of it; nothing is filled in.
struct CornerRoom {
  WindingPoint* corners() { return reinterpret_cast<WindingPoint*>(bytes); }

  alignas(16) std::byte bytes[(WINDING_MAX_POINTS + CLIP_EXTRA_POINTS + 1) * sizeof(WindingPoint)];
};

// A plane to cut by, as the inner loops want it.
struct SplitPlane {
  double normal[3];
  double dist;
  // New corners get exactly the plane's coordinate where its normal is 1 or -1 on an axis: the bits of
  // x, y, z, s that are kept, and those put in.
  std::uint32_t kept[4];
  std::uint32_t fixed[4];
};

SplitPlane SplitBy(const plane& p);

// The sides of a polygon's corners. Bit i stands for corner i; one on neither side lies on the plane.
struct CornerSides {
  double distance[WINDING_MAX_POINTS + 2];
  std::uint64_t front;
  std::uint64_t back;
};

namespace detail {

// Distances of two corners; the bits of the results: in front, and behind.
struct TwoSides {
  unsigned front;
  unsigned back;
};

#if defined(__SSE2__)
inline TwoSides SidesOfTwo(const WindingPoint& a, const WindingPoint& b, const SplitPlane& split,
                           double* distance) {
  const __m128 first = _mm_loadu_ps(&a.x);
  const __m128 second = _mm_loadu_ps(&b.x);
  const __m128 xy = _mm_unpacklo_ps(first, second);  // x x y y
  const __m128 zs = _mm_unpackhi_ps(first, second);  // z z s s
  const __m128d x = _mm_mul_pd(_mm_cvtps_pd(xy), _mm_set1_pd(split.normal[0]));
  const __m128d y = _mm_mul_pd(_mm_cvtps_pd(_mm_movehl_ps(xy, xy)), _mm_set1_pd(split.normal[1]));
  const __m128d z = _mm_mul_pd(_mm_cvtps_pd(zs), _mm_set1_pd(split.normal[2]));
  const __m128d d = _mm_sub_pd(_mm_add_pd(_mm_add_pd(x, y), z), _mm_set1_pd(split.dist));
  _mm_storeu_pd(distance, d);
  return {unsigned(_mm_movemask_pd(_mm_cmpgt_pd(d, _mm_set1_pd(SIDE_EPSILON)))),
          unsigned(_mm_movemask_pd(_mm_cmplt_pd(d, _mm_set1_pd(-SIDE_EPSILON))))};
}
#else
inline TwoSides SidesOfTwo(const WindingPoint& a, const WindingPoint& b, const SplitPlane& split,
                           double* distance) {
  TwoSides sides{0, 0};
  for (int i = 0; i < 2; ++i) {
    const WindingPoint& c = i == 0 ? a : b;
    distance[i] = c.x * split.normal[0] + c.y * split.normal[1] + c.z * split.normal[2] - split.dist;
    sides.front |= unsigned(distance[i] > SIDE_EPSILON) << i;
    sides.back |= unsigned(distance[i] < -SIDE_EPSILON) << i;
  }
  return sides;
}
#endif

// Bit i of the result is bit i + 1 of a polygon's bits: that of the next corner.
inline std::uint64_t OfNextCorner(std::uint64_t bits, int count) {
  return bits >> 1 | (bits & 1) << (count - 1);
}

inline bool OneBit(std::uint64_t bits) { return bits != 0 && (bits & (bits - 1)) == 0; }

inline float Between(float from, float to, double fraction) {
  return float(from + fraction * (double(to) - from));
}

}  // namespace detail

// Tells on which side of the plane each of up to 64 corners lies.
inline void FindSides(const WindingPoint* corners, int count, const SplitPlane& split, CornerSides& sides) {
  sides.front = sides.back = 0;
  for (int i = 0; i < count; i += 2) {
    const bool pair = i + 1 < count;
    const detail::TwoSides two =
        detail::SidesOfTwo(corners[i], corners[pair ? i + 1 : i], split, sides.distance + i);
    const unsigned used = pair ? 3 : 1;
    sides.front |= std::uint64_t(two.front & used) << i;
    sides.back |= std::uint64_t(two.back & used) << i;
  }
}

// The corner where the edge after corner i meets the plane.
inline WindingPoint SplitCorner(const WindingPoint* corners, int count, int i, const SplitPlane& split,
                                const CornerSides& sides) {
  const int next = i + 1 < count ? i + 1 : 0;
  const WindingPoint& from = corners[i];
  const WindingPoint& to = corners[next];
  const double fraction = sides.distance[i] / (sides.distance[i] - sides.distance[next]);
  const float made[4] = {detail::Between(from.x, to.x, fraction), detail::Between(from.y, to.y, fraction),
                         detail::Between(from.z, to.z, fraction), detail::Between(from.s, to.s, fraction)};
  float placed[4];
  for (int k = 0; k < 4; ++k) {
    placed[k] =
        std::bit_cast<float>((std::bit_cast<std::uint32_t>(made[k]) & split.kept[k]) | split.fixed[k]);
  }
  return {placed[0], placed[1], placed[2], placed[3], detail::Between(from.t, to.t, fraction)};
}

// The commonest cut, in place: each of two corners behind the plane gives way to one new corner. False, and
// nothing done, when the cut is another.
inline bool CutTwoCorners(WindingPoint* corners, int count, const SplitPlane& split,
                          const CornerSides& sides) {
  const std::uint64_t leaving = sides.front & detail::OfNextCorner(sides.back, count);
  const std::uint64_t entering = sides.back & detail::OfNextCorner(sides.front, count);
  if (!detail::OneBit(leaving) || !detail::OneBit(entering)) return false;
  const int before = std::countr_zero(leaving);
  const int last = std::countr_zero(entering);
  const bool wraps = before + 1 == count;
  const int first = wraps ? 0 : before + 1;
  if (first == last || sides.back != (std::uint64_t(1) << first | entering)) return false;
  const WindingPoint made = SplitCorner(corners, count, before, split, sides);
  corners[last] = SplitCorner(corners, count, last, split, sides);
  if (wraps) {
    // The corner after the last one stays last in the order.
    for (int i = 1; i < count; ++i) corners[i - 1] = corners[i];
    corners[count - 1] = made;
  } else {
    corners[first] = made;
  }
  return true;
}

// Writes the part in front of the plane, for a polygon with corners on both sides, and returns its count: 0,
// and nothing written, when that would be more than count + CLIP_EXTRA_POINTS. `out` is a CornerRoom's.
int CutCorners(const WindingPoint* corners, int count, const SplitPlane& split, const CornerSides& sides,
               WindingPoint* out);

// The corners of BasePolyForPlane for a face of that plane and texture, whose rotation is `turn`; a scale of
// 0 counts as 1. False for a plane without a largest axis.
bool BaseCorners(const plane& facePlane, const texturedef& texture, const TextureAxes& axes,
                 const TextureTurn& turn, WindingPoint* out);

// CheckFace for at least 3 corners that need not be a winding's.
bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane);

}  // namespace velk
