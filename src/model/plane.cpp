#include "model/plane.h"

namespace velk {

bool PlaneFromPoints(const vec3& p0, const vec3& p1, const vec3& p2, plane& result) {
  vec3 normal = cross(subtract(p0, p1), subtract(p2, p1));
  if (VecEqual(normal, vec3{})) return false;
  normalize(normal);
  result = {normal, float(dot(p1, normal))};
  return true;
}

}  // namespace velk
