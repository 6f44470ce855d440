#include "geometry/plane.h"

namespace velk {
namespace {

// normalize without its square root, for a vector along an axis; false for any other.
bool NormalizeAlongAxis(vec3& v) {
  for (int axis = 0; axis < 3; ++axis) {
    if (v[axis] == 0) continue;
    if (v[(axis + 1) % 3] != 0 || v[(axis + 2) % 3] != 0) return false;
    v[axis] /= std::fabs(v[axis]);
    return true;
  }
  return false;
}

}  // namespace

bool PlaneFromPoints(const vec3& p0, const vec3& p1, const vec3& p2, plane& result) {
  vec3 normal = cross(subtract(p0, p1), subtract(p2, p1));
  if (VecEqual(normal, vec3{})) return false;
  if (!NormalizeAlongAxis(normal)) normalize(normal);  // most lie along one
  result = {normal, float(dot(p1, normal))};
  return true;
}

}  // namespace velk
