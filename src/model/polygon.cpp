#include "model/polygon.h"

#include <bit>
#include <cmath>

#include "base/error.h"
#include "model/face.h"

namespace velk {
namespace {

// Bit i of the result is bit i + 1 of a polygon's bits: that of the next corner.
std::uint64_t OfNextCorner(std::uint64_t bits, int count) { return bits >> 1 | (bits & 1) << (count - 1); }

float Between(float from, float to, double fraction) { return float(from + fraction * (double(to) - from)); }

WindingPoint SplitCorner(const WindingPoint& from, const WindingPoint& to, double fraction,
                         const SplitPlane& split) {
  WindingPoint made{Between(from.x, to.x, fraction), Between(from.y, to.y, fraction),
                    Between(from.z, to.z, fraction), Between(from.s, to.s, fraction),
                    Between(from.t, to.t, fraction)};
  if (split.axial) {
    if (split.fixed[0]) made.x = split.fixedAt[0];
    if (split.fixed[1]) made.y = split.fixedAt[1];
    if (split.fixed[2]) made.z = split.fixedAt[2];
  }
  return made;
}

int LargestAxis(const vec3& normal) {
  int axis = -1;
  double largest = -COORD_LIMIT;
  for (int i = 0; i < 3; ++i) {
    if (std::fabs(normal[i]) > largest) {
      largest = std::fabs(normal[i]);
      axis = i;
    }
  }
  if (axis < 0) Error("BasePolyForPlane: no axis found");
  return axis;
}

bool OutOfRange(float c) { return c >= COORD_LIMIT || c < -COORD_LIMIT; }

// Everything lies behind the edge from corner i, within the tolerance.
bool BehindEdge(const WindingPoint* corners, int count, int i, const vec3& edgeNormal) {
  const double edgeDist = dot(corners[i].position(), edgeNormal) + SIDE_EPSILON;
  for (int k = 0; k < count; ++k) {
    if (k != i && dot(corners[k].position(), edgeNormal) > edgeDist) return false;
  }
  return true;
}

}  // namespace

SplitPlane::SplitPlane(const plane& p) : normal{p.normal.x, p.normal.y, p.normal.z}, dist(p.dist) {
  for (int i = 0; i < 3; ++i) {
    fixed[i] = p.normal[i] == 1 || p.normal[i] == -1;
    fixedAt[i] = p.normal[i] == 1 ? p.dist : -p.dist;
    axial = axial || fixed[i];
  }
}

void FindSides(const WindingPoint* corners, int count, const SplitPlane& split, CornerSides& sides) {
  sides.front = sides.back = 0;
  for (int i = 0; i < count; ++i) {
    const WindingPoint& c = corners[i];
    const double d = c.x * split.normal[0] + c.y * split.normal[1] + c.z * split.normal[2] - split.dist;
    sides.distance[i] = d;
    sides.front |= std::uint64_t(d > SIDE_EPSILON) << i;
    sides.back |= std::uint64_t(d < -SIDE_EPSILON) << i;
  }
  sides.distance[count] = sides.distance[0];
}

int CutCorners(const WindingPoint* corners, int count, const SplitPlane& split, const CornerSides& sides,
               WindingPoint* out) {
  const std::uint64_t splits =
      (sides.front & OfNextCorner(sides.back, count)) | (sides.back & OfNextCorner(sides.front, count));
  const int produced = count - std::popcount(sides.back) + std::popcount(splits);
  if (produced > count + CLIP_EXTRA_POINTS) Error("ClipWinding: points exceeded estimate");

  // Corners behind the plane are written too and then overwritten: cheaper than a branch on each.
  int next = 0;
  int slots[WINDING_MAX_POINTS];
  for (int i = 0; i < count; ++i) {
    out[next] = corners[i];
    next += 1 - int(sides.back >> i & 1);
    slots[i] = next;
    next += int(splits >> i & 1);
  }
  for (std::uint64_t left = splits; left != 0; left &= left - 1) {
    const int i = std::countr_zero(left);
    const WindingPoint& to = corners[i + 1 < count ? i + 1 : 0];
    const double fraction = sides.distance[i] / (sides.distance[i] - sides.distance[i + 1]);
    out[slots[i]] = SplitCorner(corners[i], to, fraction, split);
  }
  return produced;
}

void BaseCorners(face& f, int alignment, const TextureTurn& turn, WindingPoint* out) {
  const vec3& normal = f.facePlane.normal;
  vec3 up = LargestAxis(normal) == 2 ? vec3{1, 0, 0} : vec3{0, 0, 1};
  up = multiplyAdd(up, -dot(up, normal), normal);
  normalize(up);
  const vec3 org = velk::scale(normal, f.facePlane.dist);
  const vec3 right = velk::scale(cross(up, normal), BASE_POLYGON_HALF_SIZE);
  up = velk::scale(up, BASE_POLYGON_HALF_SIZE);
  const vec3 left = subtract(org, right);
  const vec3 rightOf = add(org, right);
  const vec3 places[4] = {add(left, up), add(rightOf, up), subtract(rightOf, up), subtract(left, up)};

  const TextureAxes axes = TextureAxisFromPlane(normal, alignment);
  f.shade = axes.shade;
  for (float& scale : f.texture.scale) {
    if (scale == 0) scale = 1;
  }
  for (int i = 0; i < 4; ++i) {
    const TexCoords at = ProjectTexture(f.texture, turn, axes, places[i]);
    out[i] = {places[i].x, places[i].y, places[i].z, at.s, at.t};
  }
}

bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane) {
  for (int i = 0; i < count; ++i) {
    const WindingPoint& corner = corners[i];
    if (OutOfRange(corner.x) || OutOfRange(corner.y) || OutOfRange(corner.z)) return false;
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

}  // namespace velk
