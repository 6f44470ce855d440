#include "mouse/plan/face_drag.h"

#include <cmath>

#include "mouse/plan/point_drag.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr PointDragKind kFacing{kFaceDragCode, "Drag XY Face", true};
constexpr PointDragKind kCurrent{kCurrentFaceDragCode, "Drag Current Face", true};
constexpr double kPointDepth = 2048;

}  // namespace

std::optional<vec3> FaceDragPoint(const MouseContext& context, const brush& b, ViewPoint press) {
  const PlanView& view = context.plan();
  if (!context.settings.careful_tools) return InWorld(view, press, kPointDepth);
  const PickRay ray = RayAt(view, press);
  if (!b.invalid && b.hitByRay(ray.start, ray.end).t >= 0) return std::nullopt;
  const int axis = view.axisDepth;
  return InWorld(view, press, (double(b.mins[axis]) + b.maxs[axis]) / 2);
}

ToolStart StartFaceDrag(const MouseContext& context, const PointerEvent& event) {
  brush* b = OnlyShownSelected(context.model);
  if (!b) return {};
  BeginPointDrag(context, kFacing);
  const PlanView& view = context.plan();
  const std::optional<vec3> at = FaceDragPoint(context, *b, PointUnder(context, event));
  if (!at) return {};
  std::vector<PlanePoint> points;
  for (int i = 0; i < b->numfaces(); ++i) {
    const face& f = b->faces()[static_cast<size_t>(i)];
    if (!f.polygon) continue;
    if (std::fabs(f.facePlane.normal[view.axisDepth]) > context.settings.face_drag_percent) continue;
    if (dot(f.facePlane.normal, *at) - f.facePlane.dist <= 0) continue;
    b->setCurrentFace(i);
    AddFacePoints(points, i);
  }
  if (points.empty()) return {};
  return DragPoints(*b, std::move(points), kFacing);
}

ToolStart StartCurrentFaceDrag(const MouseContext& context, const PointerEvent& /*event*/) {
  brush* b = OnlyShownSelected(context.model);
  if (!b || b->faces().empty()) return {};
  BeginPointDrag(context, kCurrent);
  std::vector<PlanePoint> points;
  AddFacePoints(points, b->currentFace());
  return DragPoints(*b, std::move(points), kCurrent);
}

}  // namespace velk
