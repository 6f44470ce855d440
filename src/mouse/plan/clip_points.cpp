#include "mouse/plan/clip_points.h"

#include <utility>

#include "mouse/view_ray.h"
#include "ops/clip.h"

namespace velk {
namespace {

class ClipPointDrag : public Drag {
 public:
  ClipPointDrag(ClipDrag drag, int code) : drag_(std::move(drag)), code_(code) {}

  int code() const override { return code_; }
  // The point became the current one.
  bool actsUnmoved(const DragState& state) const override {
    return code_ == kClipPointDragCode && state.press.button != MouseButton::Right;
  }
  Outcome move(const MouseContext& context, const DragState& state) override {
    drag_.move(context.model.clip, state.total.u, state.total.v);
    return Outcome::Drawn(Redraw::All);
  }
  Outcome finish(const MouseContext& context, const DragState& /*state*/) override {
    drag_.finish(context.model.clip, context.settings.gridsize);
    return Outcome::Drawn(Redraw::All);
  }
  void cancel(const MouseContext& context) override { drag_.cancel(context.model.clip); }

 private:
  ClipDrag drag_;
  int code_;
};

ToolStart Begin(std::optional<ClipDrag> drag, int code) {
  ToolStart start;
  if (!drag) return start;
  start.claimed = true;
  start.drag = std::make_unique<ClipPointDrag>(std::move(*drag), code);
  start.outcome = Outcome::Drawn(Redraw::All);
  return start;
}

}  // namespace

ToolStart AddClipPointClick(const MouseContext& context, const PointerEvent& event) {
  const ViewPoint at = PointUnder(context, event);
  ToolStart start;
  start.claimed = true;
  start.outcome = addClipPoint(context.model, AxesOf(context.plan()), at.u, at.v, context.plans.planCenter);
  return start;
}

ToolStart StartClipPointDrag(const MouseContext& context, const PointerEvent& event) {
  const ViewPoint at = PointUnder(context, event);
  return Begin(dragClipPoint(context.model.clip, AxesOf(context.plan()), at.u, at.v), kClipPointDragCode);
}

ToolStart StartClipPlaneDrag(const MouseContext& context, const PointerEvent& event) {
  const ViewPoint at = PointUnder(context, event);
  return Begin(dragClipPlane(context.model.clip, AxesOf(context.plan()), at.u, at.v), kClipPlaneDragCode);
}

}  // namespace velk
