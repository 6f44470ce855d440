#include "mouse/pointer.h"

#include <algorithm>
#include <utility>

#include "planview/header_strip.h"
#include "planview/view_steps.h"

namespace velk {

namespace {

constexpr int kViewDragCode = 100;  // beyond the codes of the bound operations

// Moves planCenter so that `world` is shown at the pixel.
void pinUnder(const PlanPointerContext& context, const ViewPoint& world, Pixel at) {
  const PlanProjection projection = context.projection();
  const ViewPoint now = projection.screenToWorld(at);
  vec3& centre = context.set.planCenter;
  centre[projection.axisU] = float(projection.centreU + world.u - now.u);
  centre[projection.axisV] = float(projection.centreV + world.v - now.v);
}

// Moves the view along with the cursor.
class ViewDrag : public Drag {
 public:
  explicit ViewDrag(ViewPoint grabbed) : grabbed_(grabbed) {}

  int code() const override { return kViewDragCode; }

  bool move(const PlanPointerContext& context, const PointerEvent& event) override {
    const vec3 before = context.set.planCenter;
    pinUnder(context, grabbed_, event.at);
    return !VecEqual(before, context.set.planCenter);
  }

  PointerOutcome finish(const PlanPointerContext& context, const PointerEvent& event) override {
    PointerOutcome outcome;
    outcome.redrawPlanViews = move(context, event);
    return outcome;
  }

 private:
  ViewPoint grabbed_;  // the world point that stays under the cursor
};

PressResult startViewDrag(const PlanPointerContext& context, const PointerEvent& event) {
  PressResult result;
  if (!context.settings.middle_drag || event.button != MouseButton::Middle) return result;
  result.claimed = true;
  result.drag = std::make_unique<ViewDrag>(context.projection().screenToWorld(event.at));
  return result;
}

}  // namespace

PointerOutcome PlanPointer::press(const PlanPointerContext& context, const PointerEvent& event) {
  if (!context.current || drag_ || event.at.y < kStripHeight) return {};
  PressResult result;
  for (const PressOperation& operation : operations) {
    result = operation(context, event);
    if (result.claimed) break;
  }
  if (!result.claimed) result = startViewDrag(context, event);
  if (!result.claimed) return {};
  result.outcome.handled = true;
  if (result.drag) {
    drag_ = std::move(result.drag);
    context.planView().dragOp = drag_->code();
    result.outcome.capture = true;
  }
  return result.outcome;
}

PointerOutcome PlanPointer::move(const PlanPointerContext& context, const PointerEvent& event) {
  PointerOutcome outcome;
  PlanView& view = context.planView();
  std::string text = coordinateText(context.projection().screenToWorld(event.at), context.settings);
  outcome.redrawStrip = text != view.coordinateText;
  view.coordinateText = std::move(text);
  if (drag_) {
    outcome.handled = true;
    outcome.redrawPlanViews = drag_->move(context, event);
  }
  return outcome;
}

PointerOutcome PlanPointer::release(const PlanPointerContext& context, const PointerEvent& event) {
  if (!drag_) return {};
  const std::unique_ptr<Drag> drag = std::move(drag_);
  PointerOutcome outcome = drag->finish(context, event);
  outcome.handled = true;
  context.planView().dragOp = 0;
  context.planView().snapDrag = false;
  if (!context.planView().deltaText.empty()) {
    context.planView().deltaText.clear();
    outcome.redrawStrip = true;
  }
  return outcome;
}

PointerOutcome PlanPointer::wheel(const PlanPointerContext& context, const PointerEvent& event, int steps) {
  PointerOutcome outcome;
  if (!context.settings.wheel_zoom || !context.current || steps == 0) return outcome;
  outcome.handled = true;
  outcome.redrawPlanViews = true;
  constexpr int kAllSteps = 11;  // from one end of the scale to the other
  for (int i = std::clamp(steps, -kAllSteps, kAllSteps); i != 0; i += steps > 0 ? -1 : 1) {
    outcome.status = zoomAt(context, event.at, steps > 0);
  }
  return outcome;
}

std::string zoomAt(const PlanPointerContext& context, Pixel at, bool in) {
  const ViewPoint world = context.projection().screenToWorld(at);
  std::string status = in ? scaleUp(context.settings) : scaleDown(context.settings);
  pinUnder(context, world, at);
  return status;
}

}  // namespace velk
