#include "mouse/view_drag.h"

#include <algorithm>

#include "camera/flight.h"
#include "planview/view_steps.h"

namespace velk {
namespace {

constexpr int kViewDragCode = 200;  // beyond the codes of the bound operations
constexpr int kAllSteps = 11;       // from one end of the scale to the other

// Moves planCenter so that `world` is shown at the pixel.
void PinUnder(const MouseContext& context, const ViewPoint& world, Pixel at) {
  const PlanProjection projection = context.projection();
  const ViewPoint now = projection.screenToWorld(at);
  vec3& centre = context.plans.planCenter;
  centre[projection.axisU] = float(projection.centreU + world.u - now.u);
  centre[projection.axisV] = float(projection.centreV + world.v - now.v);
}

class ViewDrag : public Drag {
 public:
  ViewDrag(ViewPoint grabbed, const vec3& centre) : grabbed_(grabbed), centre_(centre) {}

  int code() const override { return kViewDragCode; }
  bool goesByPixels() const override { return true; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    const vec3 before = context.plans.planCenter;
    PinUnder(context, grabbed_, state.now.at);
    return Outcome::Drawn(VecEqual(before, context.plans.planCenter) ? Redraw::None : Redraw::Plans);
  }

  void cancel(const MouseContext& context) override { context.plans.planCenter = centre_; }

 private:
  ViewPoint grabbed_;  // the world point that stays under the cursor
  vec3 centre_;        // of the views before
};

}  // namespace

ToolStart StartViewDrag(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  if (context.inCamera() || !context.settings.middle_drag || event.button != MouseButton::Middle)
    return start;
  start.claimed = true;
  start.drag =
      std::make_unique<ViewDrag>(context.projection().screenToWorld(event.at), context.plans.planCenter);
  return start;
}

Outcome ZoomAt(const MouseContext& context, Pixel at, int notches) {
  if (context.inCamera() || !context.settings.wheel_zoom || notches == 0) return {};
  Outcome outcome = Outcome::Drawn(Redraw::Plans);
  for (int i = std::abs(std::clamp(notches, -kAllSteps, kAllSteps)); i > 0; --i) {
    const ViewPoint world = context.projection().screenToWorld(at);
    outcome.status = notches > 0 ? ScaleUp(context.settings) : ScaleDown(context.settings);
    PinUnder(context, world, at);
  }
  return outcome;
}

Outcome FlyBy(const MouseContext& context, int notches) {
  MoveBy(context.model.activeCamera(), 0, 0, double(notches) * context.settings.stepsize);
  Outcome outcome = Outcome::Drawn(Redraw::All);
  outcome.centre = Centre::Follow;
  return outcome;
}

}  // namespace velk
