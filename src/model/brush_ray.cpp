#include <algorithm>

#include "base/error.h"
#include "model/brush.h"

namespace velk {
namespace {

vec3 Between(const vec3& from, const vec3& to, double fraction) {
  return {float(from.x + fraction * (double(to.x) - from.x)),
          float(from.y + fraction * (double(to.y) - from.y)),
          float(from.z + fraction * (double(to.z) - from.z))};
}

}  // namespace

brush::RayClip brush::clipRay(const vec3& start, const vec3& end) const {
  RayClip ray{start, end};
  for (int i = 0; i < numfaces(); ++i) {
    const face& f = faces_[static_cast<size_t>(i)];
    if (!f.polygon) continue;
    const double d1 = DistanceTo(f.facePlane, ray.p1);
    const double d2 = DistanceTo(f.facePlane, ray.p2);
    if (d1 >= 0 && d2 >= 0) {
      ray.entry = ray.exit = -1;
      break;
    }
    if (d1 > 0 && d2 < 0) {
      ray.p1 = Between(ray.p1, ray.p2, d1 / (d1 - d2));
      ray.entry = i;
    } else if (d1 < 0 && d2 > 0) {
      ray.p2 = Between(ray.p1, ray.p2, d1 / (d1 - d2));
      ray.exit = i;
    }
  }
  return ray;
}

namespace {

// Whether the bounds of the ray, a little widened, reach into those of the brush, as they do when it hits.
bool MayMeet(const brush& b, const vec3& start, const vec3& end) {
  constexpr float kMargin = 1;
  for (int axis = 0; axis < 3; ++axis) {
    if (b.maxs[axis] < std::min(start[axis], end[axis]) - kMargin) return false;
    if (b.mins[axis] > std::max(start[axis], end[axis]) + kMargin) return false;
  }
  return true;
}

}  // namespace

brush::Hit brush::hitByRay(const vec3& start, const vec3& end) const {
  if (!MayMeet(*this, start, end)) return {};
  const RayClip ray = clipRay(start, end);
  if (ray.entry == -2 && ray.exit == -2) return {0, 0};
  if (ray.entry < 0) return {};
  vec3 direction = subtract(end, start);
  normalize(direction);
  const double t = dot(subtract(ray.p1, start), direction);
  if (t < 0) Error("hitByRay: negative t");
  return {t, ray.entry};
}

}  // namespace velk
