#include "model/axialbox.h"

#include <array>
#include <cmath>

#include "model/face.h"

namespace velk {
namespace {

// Thicker than any tolerance, and that far inside of the squares that the faces are cut from.
constexpr float kThickness = 1;
constexpr float kFarthest = float(BASE_POLYGON_HALF_SIZE) - kThickness;

constexpr int kNone = -1;

int AxisOf(int direction) { return direction >> 1; }
bool IsNegative(int direction) { return (direction & 1) != 0; }

// The axis direction of a unit normal.
int DirectionOf(const vec3& normal) {
  for (int axis = 0; axis < 3; ++axis) {
    if (std::fabs(normal[axis]) == 1) return 2 * axis + (normal[axis] < 0);
  }
  return kNone;
}

// By the direction of a face: the sides of its base polygon, which start between corners 0 and 1, towards
// which direction each lies; turned round to find the side towards a direction.
using SideTable = std::array<std::array<signed char, AxialBox::kFaces>, AxialBox::kFaces>;
constexpr SideTable kSideTowards = [] {
  constexpr int up[] = {4, 4, 4, 4, 0, 0};
  constexpr int right[] = {2, 3, 1, 0, 3, 2};
  SideTable table{};
  for (size_t i = 0; i < table.size(); ++i) {
    table[i].fill(kNone);
    table[i][size_t(up[i])] = 0;
    table[i][size_t(right[i])] = 1;
    table[i][size_t(up[i] ^ 1)] = 2;
    table[i][size_t(right[i] ^ 1)] = 3;
  }
  return table;
}();

// A texture coordinate pair on an edge, stored as floats in between as all corners are.
__m128d Between(__m128d from, __m128d to, __m128d part) {
  return _mm_cvtps_pd(_mm_cvtpd_ps(_mm_add_pd(from, _mm_mul_pd(part, _mm_sub_pd(to, from)))));
}

}  // namespace

bool AxialBox::take(const std::vector<face>& faces) {
  if (faces.size() != kFaces) return false;
  unsigned found = 0;
  for (int i = 0; i < kFaces; ++i) {
    const plane& p = faces[size_t(i)].facePlane;
    const int direction = DirectionOf(p.normal);
    if (direction == kNone) return false;
    const float at = IsNegative(direction) ? -p.dist : p.dist;
    if (!(std::fabs(at) <= kFarthest)) return false;
    found |= 1u << direction;
    sides_[i].direction = direction;
    sides_[i].at = at;
    (IsNegative(direction) ? mins_ : maxs_)[AxisOf(direction)] = at;
  }
  if (found != (1u << kFaces) - 1) return false;
  for (int axis = 0; axis < 3; ++axis) {
    if (!(maxs_[axis] - mins_[axis] >= kThickness)) return false;
    mins_[axis] = Settled(mins_[axis]);
    maxs_[axis] = Settled(maxs_[axis]);
  }
  findParts();
  return true;
}

void AxialBox::findParts() {
  // Of the rectangle that is cut, by axis: how far it reaches either way.
  double reach[3][2];
  for (auto& r : reach) {
    r[0] = BASE_POLYGON_HALF_SIZE;
    r[1] = -BASE_POLYGON_HALF_SIZE;
  }
  for (Side& side : sides_) {
    double* const r = reach[AxisOf(side.direction)];
    const bool negative = IsNegative(side.direction);
    const double kept = std::fabs(r[!negative] - side.at);
    const double cut = std::fabs(r[negative] - side.at);
    side.toFirst = _mm_set1_pd(kept / (kept + cut));
    side.fromLast = _mm_set1_pd(cut / (cut + kept));
    r[negative] = side.at;
  }
}

void AxialBox::makePolygon(const face& f, int index, const TextureAxes& axes, const TextureTurn& turn,
                           WindingPoint* corners) const {
  WindingPoint base[4];
  BaseCorners(f.facePlane, f.texture, axes, turn, base);
  __m128d st[4];
  for (int i = 0; i < 4; ++i) st[i] = _mm_setr_pd(base[i].s, base[i].t);

  const Side& own = sides_[index];
  int start = 0;
  for (const Side& side : sides_) {
    const int first = kSideTowards[size_t(own.direction)][size_t(side.direction)];
    if (first == kNone) continue;
    const int last = (first + 1) & 3;
    st[first] = Between(st[(first + 3) & 3], st[first], side.toFirst);
    st[last] = Between(st[last], st[(first + 2) & 3], side.fromLast);
    const int axis = AxisOf(side.direction);
    base[first][axis] = base[last][axis] = (IsNegative(side.direction) ? mins_ : maxs_)[axis];
    // Cutting off the first two corners leaves the new first one last in the order.
    if (first == start) start = last;
  }
  const int axis = AxisOf(own.direction);
  const float at = (IsNegative(own.direction) ? mins_ : maxs_)[axis];
  for (int i = 0; i < 4; ++i) {
    const int from = (start + i) & 3;
    corners[i] = base[from];
    corners[i][axis] = at;
    _mm_storel_pi(reinterpret_cast<__m64*>(&corners[i].s), _mm_cvtpd_ps(st[from]));
  }
}

}  // namespace velk
