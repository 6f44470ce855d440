#include "mouse/view_ray.h"

#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {

ViewAxes AxesOf(const PlanView& view) { return {view.axisU, view.axisV, view.axisDepth}; }

vec3 InWorld(const PlanView& view, ViewPoint at, double depth) {
  vec3 point;
  point[view.axisU] = float(at.u);
  point[view.axisV] = float(at.v);
  point[view.axisDepth] = float(depth);
  return point;
}

PickRay RayAt(const PlanView& view, ViewPoint at, double reach) {
  const double depth = reach * view.viewNormal[view.axisDepth];
  return {InWorld(view, at, Truncate(-depth)), InWorld(view, at, Truncate(depth))};
}

double DirectionAngle(double x, double y) {
  constexpr double kNone = 0.000001;
  if (std::fabs(x) >= kNone) return std::atan(y / x) + (x < 0 ? std::numbers::pi : 0);
  if (std::fabs(y) < kNone) return 0;
  return y > 0 ? 1.5707964 : 4.712389;
}

double DirectionDegrees(double x, double y) { return DirectionAngle(x, y) * 180 * (1 / std::numbers::pi); }

}  // namespace velk
