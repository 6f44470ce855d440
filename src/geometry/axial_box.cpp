#include "geometry/axial_box.h"

#include <cmath>
#include <utility>

#include "geometry/face.h"

namespace velk {
namespace {

// Thicker than any tolerance, and that far inside of the squares that the faces are cut from.
constexpr float kThickness = 1;
constexpr float kFarthest = float(BASE_POLYGON_HALF_SIZE) - kThickness;

constexpr int kNone = -1;

constexpr int AxisOf(int direction) { return direction >> 1; }
constexpr bool IsNegative(int direction) { return (direction & 1) != 0; }

// The axis direction of a unit normal. One that is only nearly so may have a component of 1 as well.
int DirectionOf(const vec3& normal) {
  for (int axis = 0; axis < 3; ++axis) {
    if (std::fabs(normal[axis]) != 1) continue;
    const bool exact = normal[(axis + 1) % 3] == 0 && normal[(axis + 2) % 3] == 0;
    return exact ? 2 * axis + (normal[axis] < 0) : kNone;
  }
  return kNone;
}

// What the polygons of faces of one direction have in common.
struct Rectangle {
  alignas(16) unsigned upper[4][4];   // all bits where the corner's coordinate is the box's upper one
  int sideTowards[AxialBox::kFaces];  // by direction, the side that lies there: from corner i to the next
};

constexpr Rectangle MakeRectangle(int direction, int up, int right) {
  Rectangle made{};
  const int sides[4] = {up, right, up ^ 1, right ^ 1};
  for (int i = 0; i < 4; ++i) {
    made.sideTowards[sides[i]] = i;
    made.upper[i][AxisOf(direction)] = IsNegative(direction) ? 0 : ~0u;
    for (const int corner : {i, (i + 1) & 3}) {
      made.upper[corner][AxisOf(sides[i])] = IsNegative(sides[i]) ? 0 : ~0u;
    }
  }
  return made;
}

// By direction of the faces, as base polygons lie.
constexpr Rectangle kRectangles[] = {MakeRectangle(0, 4, 2), MakeRectangle(1, 4, 3), MakeRectangle(2, 4, 1),
                                     MakeRectangle(3, 4, 0), MakeRectangle(4, 0, 3), MakeRectangle(5, 0, 2)};

// The corner of a box with these limits.
__m128 CornerOf(__m128 low, __m128 high, const unsigned* upper) {
  const __m128 mask = _mm_load_ps(reinterpret_cast<const float*>(upper));
  return _mm_or_ps(_mm_and_ps(mask, high), _mm_andnot_ps(mask, low));
}

__m128 Wide(const vec3& v) { return _mm_setr_ps(v.x, v.y, v.z, 0); }

// Settled, for coordinates within the bounds above, nearly all of which are whole.
float SettledNear(float c) {
  const float whole = float(int(c));
  return c == whole ? whole : Settled(c);
}

// Texture coordinates are stored as floats in between, as all corners are.
__m128d Stored(__m128d st) { return _mm_cvtps_pd(_mm_cvtpd_ps(st)); }

__m128d Between(__m128d from, __m128d to, __m128d part) {
  return Stored(_mm_add_pd(from, _mm_mul_pd(part, _mm_sub_pd(to, from))));
}

}  // namespace

bool AxialBox::take(const std::vector<face>& faces) {
  if (faces.size() != kFaces) return false;
  unsigned found = 0;
  vec3 mins;
  vec3 maxs;
  for (int i = 0; i < kFaces; ++i) {
    const plane& p = faces[size_t(i)].facePlane;
    const int direction = DirectionOf(p.normal);
    if (direction == kNone) return false;
    const float at = IsNegative(direction) ? -p.dist : p.dist;
    if (!(std::fabs(at) <= kFarthest)) return false;
    found |= 1u << direction;
    order_[i] = direction;
    sides_[direction].at = at;
    sides_[direction].start = 0;
    (IsNegative(direction) ? mins : maxs)[AxisOf(direction)] = at;
  }
  if (found != (1u << kFaces) - 1) return false;
  for (int axis = 0; axis < 3; ++axis) {
    if (!(maxs[axis] - mins[axis] >= kThickness)) return false;
    mins_[axis] = SettledNear(mins[axis]);
    maxs_[axis] = SettledNear(maxs[axis]);
  }
  return true;
}

void AxialBox::project(int index, const texturedef& texture, const TextureAxes& axes,
                       const TextureTurn& turn) {
  const int direction = order_[index];
  const __m128 far = _mm_set1_ps(float(BASE_POLYGON_HALF_SIZE));
  const TextureProjection projection(texture, axes, turn);
  for (int i = 0; i < 4; ++i) {
    WindingPoint corner;
    _mm_storeu_ps(&corner.x,
                  CornerOf(_mm_sub_ps(_mm_setzero_ps(), far), far, kRectangles[direction].upper[i]));
    corner[AxisOf(direction)] = sides_[direction].at;
    sides_[direction].st[i] = Stored(projection.of(corner));
  }
}

template <int kOwn, int kTowards>
void AxialBox::cutSide(__m128d toFirst, __m128d fromLast) {
  if constexpr (AxisOf(kOwn) != AxisOf(kTowards)) {
    constexpr int kFirst = kRectangles[kOwn].sideTowards[kTowards];
    constexpr int kLast = (kFirst + 1) & 3;
    Side& own = sides_[kOwn];
    own.st[kFirst] = Between(own.st[(kFirst + 3) & 3], own.st[kFirst], toFirst);
    own.st[kLast] = Between(own.st[kLast], own.st[(kFirst + 2) & 3], fromLast);
    // Cutting off the first two corners leaves the new first one last in the order.
    if (own.start == kFirst) own.start = kLast;
  }
}

template <int kTowards>
void AxialBox::cutSides(__m128d toFirst, __m128d fromLast) {
  const auto cutAll = [&]<int... kOwn>(std::integer_sequence<int, kOwn...>) {
    (cutSide<kOwn, kTowards>(toFirst, fromLast), ...);
  };
  cutAll(std::make_integer_sequence<int, kFaces>());
}

void AxialBox::cut() {
  constexpr void (AxialBox::*kCuts[])(__m128d, __m128d) = {&AxialBox::cutSides<0>, &AxialBox::cutSides<1>,
                                                           &AxialBox::cutSides<2>, &AxialBox::cutSides<3>,
                                                           &AxialBox::cutSides<4>, &AxialBox::cutSides<5>};
  // How far rectangles reach, by direction.
  double reach[kFaces];
  for (int i = 0; i < kFaces; ++i)
    reach[i] = IsNegative(i) ? -BASE_POLYGON_HALF_SIZE : BASE_POLYGON_HALF_SIZE;
  for (const int direction : order_) {
    const double at = sides_[direction].at;
    const double kept = std::fabs(reach[direction ^ 1] - at);
    const double lost = std::fabs(reach[direction] - at);
    const __m128d parts = _mm_div_pd(_mm_setr_pd(kept, lost), _mm_set1_pd(kept + lost));
    (this->*kCuts[direction])(_mm_unpacklo_pd(parts, parts), _mm_unpackhi_pd(parts, parts));
    reach[direction] = at;
  }
}

void AxialBox::store(int index, WindingPoint* corners) const {
  const int direction = order_[index];
  const Side& own = sides_[direction];
  const __m128 low = Wide(mins_);
  const __m128 high = Wide(maxs_);
  for (int i = 0; i < 4; ++i) {
    const int from = (own.start + i) & 3;
    _mm_storeu_ps(&corners[i].x, CornerOf(low, high, kRectangles[direction].upper[from]));
    _mm_storel_pi(reinterpret_cast<__m64*>(&corners[i].s), _mm_cvtpd_ps(own.st[from]));
  }
}

}  // namespace velk
