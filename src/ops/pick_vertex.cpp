#include "ops/pick_vertex.h"

#include <algorithm>
#include <cmath>

namespace velk {
namespace {

bool HasCornerNear(const face& f, const vec3& point, const ViewAxes& axes, double radius) {
  if (!f.polygon) return false;
  return std::any_of(f.polygon->begin(), f.polygon->end(), [&](const WindingPoint& corner) {
    const double u = double(corner[axes.u]) - point[axes.u];
    const double v = double(corner[axes.v]) - point[axes.v];
    return std::sqrt(u * u + v * v) <= radius;
  });
}

}  // namespace

double VertexPickRadius(const Settings& settings) {
  const double radius =
      std::max(1.0, std::min<double>(settings.select_delta, settings.gridsize * settings.scale * 0.5));
  if (!settings.careful_tools || settings.scale <= 0) return radius;
  return std::max(radius, settings.select_delta / double(settings.scale));
}

bool pickVertex(const brush& b, const vec3& point, int orientation, double radius) {
  if (b.invalid || b.faces().empty()) return false;
  const ViewAxes axes = AxesOf(orientation);
  const face& current = b.faces()[size_t(b.currentFace())];
  return HasCornerNear(current, point, axes, radius) ||
         std::ranges::any_of(b.faces(), [&](const face& f) { return HasCornerNear(f, point, axes, radius); });
}

}  // namespace velk
