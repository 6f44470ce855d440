#include "mouse/plan/move_camera.h"

#include "mouse/view_ray.h"

namespace velk {

ToolStart MoveCameraClick(const MouseContext& context, const PointerEvent& event) {
  vec3& centre = context.plans.planCenter;
  const PlanView& view = context.plan();
  centre = InWorld(view, PointUnder(context, event), centre[view.axisDepth]);
  if (!context.settings.lock_cameras) context.model.activeCamera().origin = centre;
  ToolStart start;
  start.claimed = true;
  start.outcome = Outcome::Drawn(Redraw::All);
  return start;
}

}  // namespace velk
