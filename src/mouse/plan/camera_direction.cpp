#include "mouse/plan/camera_direction.h"

#include <numbers>

#include "camera/flight.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

class CameraDirection : public Drag {
 public:
  explicit CameraDirection(ViewPoint at) : at_(at) {}

  int code() const override { return kCameraDirectionCode; }
  bool readsOut() const override { return true; }
  const char* undoName() const override { return "Turn Camera"; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    if (context.settings.careful_tools) return lookAlong(context, state.total);
    at_ = {at_.u + state.step.u, at_.v + state.step.v};
    const PlanView& view = context.plan();
    const vec3& centre = context.plans.planCenter;
    const bool onCentre = at_.u == centre[view.axisU] && at_.v == centre[view.axisV];
    if (view.orientation != kOrientationXY || onCentre) return {};
    camera& eye = context.model.activeCamera();
    eye.roll = float(std::numbers::pi);
    eye.pitch = float(3 * std::numbers::pi / 2);
    eye.yaw = float(DirectionAngle(state.step.v, state.step.u));
    return Outcome::Drawn(Redraw::All);
  }

 private:
  // From the press to the cursor, in the plane of any view.
  static Outcome lookAlong(const MouseContext& context, ViewPoint way) {
    if (way.u == 0 && way.v == 0) return {};
    LookAlong(context.model.activeCamera(), InWorld(context.plan(), way, 0));
    return Outcome::Drawn(Redraw::All);
  }

  ViewPoint at_;
};

}  // namespace

ToolStart StartCameraDirection(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  start.claimed = true;
  start.drag = std::make_unique<CameraDirection>(PointUnder(context, event));
  return start;
}

}  // namespace velk
