// The arithmetic of windings on plain runs of corners, so that clipping can work in scratch memory. Windings
// and brush::buildWindings share it; both get the same results to the bit.
#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include <emmintrin.h>

#include "base/text.h"
#include "geometry/texturedef.h"
#include "geometry/winding.h"

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
  SplitPlane() = default;  // nothing is filled in
  explicit SplitPlane(const plane& p);

  double normal[3];
  // Normal and distance, in both lanes.
  __m128d x, y, z, dist;
  // New corners get exactly the plane's coordinate where its normal is 1 or -1 on an axis: the bits of
  // x, y, z, s that are kept, and those put in.
  __m128 kept, fixed;
};

// The sides of a polygon's corners. Bit i stands for corner i; one on neither side lies on the plane.
struct CornerSides {
  double distance[WINDING_MAX_POINTS + 2];
  std::uint64_t front;
  std::uint64_t back;
};

namespace detail {

// x, y, z, s of a corner.
inline __m128 Load(const WindingPoint& c) { return _mm_loadu_ps(&c.x); }

inline void Store(WindingPoint& c, __m128 xyzs, float t) {
  _mm_storeu_ps(&c.x, xyzs);
  c.t = t;
}

// Distances of two corners; the results' bits 0 and 1 tell which are in front, and which behind.
inline void SidesOfTwo(const WindingPoint& a, const WindingPoint& b, const SplitPlane& split,
                       double* distance, unsigned& front, unsigned& back) {
  const __m128 first = Load(a);
  const __m128 second = Load(b);
  const __m128 xy = _mm_unpacklo_ps(first, second);  // x x y y
  const __m128 zs = _mm_unpackhi_ps(first, second);  // z z s s
  const __m128d x = _mm_mul_pd(_mm_cvtps_pd(xy), split.x);
  const __m128d y = _mm_mul_pd(_mm_cvtps_pd(_mm_movehl_ps(xy, xy)), split.y);
  const __m128d z = _mm_mul_pd(_mm_cvtps_pd(zs), split.z);
  const __m128d d = _mm_sub_pd(_mm_add_pd(_mm_add_pd(x, y), z), split.dist);
  _mm_storeu_pd(distance, d);
  front = unsigned(_mm_movemask_pd(_mm_cmpgt_pd(d, _mm_set1_pd(SIDE_EPSILON))));
  back = unsigned(_mm_movemask_pd(_mm_cmplt_pd(d, _mm_set1_pd(-SIDE_EPSILON))));
}

// Bit i of the result is bit i + 1 of a polygon's bits: that of the next corner.
inline std::uint64_t OfNextCorner(std::uint64_t bits, int count) {
  return bits >> 1 | (bits & 1) << (count - 1);
}

inline std::uint64_t WithoutLowest(std::uint64_t bits) { return bits & (bits - 1); }

// A corner on an edge, where it meets the plane.
struct NewCorner {
  __m128 xyzs;
  float t;
};

// The new corner between the two, which lie on different sides at these distances.
inline NewCorner SplitEdge(const WindingPoint& from, const WindingPoint& to, double fromDistance,
                           double toDistance, const SplitPlane& split) {
  const double fraction = fromDistance / (fromDistance - toDistance);
  const __m128d f = _mm_set1_pd(fraction);
  const __m128 first = Load(from);
  const __m128 second = Load(to);
  const __m128d xy = _mm_cvtps_pd(first);
  const __m128d zs = _mm_cvtps_pd(_mm_movehl_ps(first, first));
  const __m128d towardsXy = _mm_sub_pd(_mm_cvtps_pd(second), xy);
  const __m128d towardsZs = _mm_sub_pd(_mm_cvtps_pd(_mm_movehl_ps(second, second)), zs);
  const __m128 made = _mm_movelh_ps(_mm_cvtpd_ps(_mm_add_pd(xy, _mm_mul_pd(f, towardsXy))),
                                    _mm_cvtpd_ps(_mm_add_pd(zs, _mm_mul_pd(f, towardsZs))));
  return {_mm_or_ps(_mm_and_ps(made, split.kept), split.fixed),
          float(from.t + fraction * (double(to.t) - from.t))};
}

}  // namespace detail

// Tells on which side of the plane each of up to 64 corners lies.
inline void FindSides(const WindingPoint* corners, int count, const SplitPlane& split, CornerSides& sides) {
  unsigned front = 0;
  unsigned back = 0;
  if (count == 4) {
    unsigned front2 = 0;
    unsigned back2 = 0;
    detail::SidesOfTwo(corners[0], corners[1], split, sides.distance, front, back);
    detail::SidesOfTwo(corners[2], corners[3], split, sides.distance + 2, front2, back2);
    sides.front = front | front2 << 2;
    sides.back = back | back2 << 2;
    return;
  }
  std::uint64_t allFront = 0;
  std::uint64_t allBack = 0;
  int i = 0;
  for (; i + 1 < count; i += 2) {
    detail::SidesOfTwo(corners[i], corners[i + 1], split, sides.distance + i, front, back);
    allFront |= std::uint64_t(front) << i;
    allBack |= std::uint64_t(back) << i;
  }
  if (i < count) {
    detail::SidesOfTwo(corners[i], corners[i], split, sides.distance + i, front, back);
    allFront |= std::uint64_t(front & 1) << i;
    allBack |= std::uint64_t(back & 1) << i;
  }
  sides.front = allFront;
  sides.back = allBack;
}

// The commonest cut, in place: two neighbouring corners of a quad lie behind the plane, and a new one takes
// the place of each. False, and nothing done, when the cut is another.
inline bool CutQuad(WindingPoint* corners, const SplitPlane& split, const CornerSides& sides) {
  // By the bits of the corners behind: the corner before them, 4 when they are not two neighbours.
  constexpr unsigned char kBefore[16] = {4, 4, 4, 3, 4, 4, 0, 4, 4, 2, 4, 4, 1, 4, 4, 4};
  if ((sides.front | sides.back) != 15 || kBefore[sides.back] == 4) return false;
  const int before = kBefore[sides.back];
  const int first = (before + 1) & 3;
  const int last = (before + 2) & 3;
  const int after = (before + 3) & 3;
  const double* d = sides.distance;
  const detail::NewCorner atFirst =
      detail::SplitEdge(corners[before], corners[first], d[before], d[first], split);
  const detail::NewCorner atLast = detail::SplitEdge(corners[last], corners[after], d[last], d[after], split);
  if (before == 3) {
    // What comes after corner 3 stays last in the order.
    detail::Store(corners[0], atLast.xyzs, atLast.t);
    detail::Store(corners[1], detail::Load(corners[2]), corners[2].t);
    detail::Store(corners[2], detail::Load(corners[3]), corners[3].t);
    detail::Store(corners[3], atFirst.xyzs, atFirst.t);
  } else {
    detail::Store(corners[first], atFirst.xyzs, atFirst.t);
    detail::Store(corners[last], atLast.xyzs, atLast.t);
  }
  return true;
}

// Writes the part in front of the plane, for a polygon with corners on both sides, and returns its count: 0,
// and nothing written, when that would be more than count + CLIP_EXTRA_POINTS. `out` is a CornerRoom's.
int CutCorners(const WindingPoint* corners, int count, const SplitPlane& split, const CornerSides& sides,
               WindingPoint* out);

// faceTexCoords, s and t side by side; a scale of 0 counts as 1.
class TextureProjection {
 public:
  // The texture axes lie along map axes: s along x or y, t against y or z.
  TextureProjection(const texturedef& texture, const TextureAxes& axes, const TextureTurn& turn)
      : sAxis_(axes.s.x != 0 ? 0 : 1),
        tAxis_(axes.t.y != 0 ? 1 : 2),
        cosine_(_mm_set1_pd(turn.cosine)),
        sine_(_mm_set1_pd(turn.sine)),
        scale_(_mm_setr_pd(scaleOf(texture.scale[0]), scaleOf(texture.scale[1]))),
        shift_(_mm_setr_pd(texture.shift[0], texture.shift[1])),
        scaled_(_mm_movemask_pd(_mm_cmpneq_pd(scale_, _mm_set1_pd(1))) != 0) {}

  __m128d of(const WindingPoint& corner) const {
    const double s = corner[sAxis_];
    const double t = -double(corner[tAxis_]);
    __m128d at = _mm_add_pd(_mm_mul_pd(cosine_, _mm_setr_pd(s, t)), _mm_mul_pd(sine_, _mm_setr_pd(-t, s)));
    if (scaled_) at = _mm_div_pd(at, scale_);  // few are, and divisions are slow
    return _mm_add_pd(at, shift_);
  }

 private:
  static double scaleOf(float scale) { return scale == 0 ? 1 : scale; }

  int sAxis_;
  int tAxis_;
  __m128d cosine_;
  __m128d sine_;
  __m128d scale_;
  __m128d shift_;
  bool scaled_;
};

// The corners of BasePolyForPlane for a face of that plane and texture, whose rotation is `turn`; a scale of
// 0 counts as 1. False for a plane without a largest axis.
bool BaseCorners(const plane& facePlane, const texturedef& texture, const TextureAxes& axes,
                 const TextureTurn& turn, WindingPoint* out);

// A corner coordinate near to a whole number becomes it.
inline float Settled(float c) {
  constexpr double kRoundTolerance = 0.01;
  const double whole = RoundHalfAway(c);
  return std::fabs(c - whole) < kRoundTolerance ? float(whole) : c;
}

// CheckFace for at least 3 corners that need not be a winding's.
bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane);

}  // namespace velk
