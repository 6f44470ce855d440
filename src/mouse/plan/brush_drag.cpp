#include "mouse/plan/brush_drag.h"

#include "model/visit.h"
#include "mouse/view_ray.h"
#include "ops/clipboard.h"
#include "ops/move_selection.h"

namespace velk {
namespace {

class BrushDrag : public Drag {
 public:
  int code() const override { return kBrushDragCode; }
  bool readsOut() const override { return true; }
  const char* undoName() const override { return "Move Selection"; }
  bool snaps() const override { return true; }
  Outcome move(const MouseContext& context, const DragState& state) override {
    MoveSelection(context.model, InWorld(context.plan(), state.step, 0));
    return Outcome::Drawn(Redraw::All);
  }

  // With CTRL, pressed since the start, what was moved is a copy.
  Outcome finish(const MouseContext& context, const DragState& state) override {
    const bool copies = context.settings.drag_clone && state.now.ctrl && !state.press.ctrl;
    if (!copies || (state.total.u == 0 && state.total.v == 0)) return Outcome::Drawn(Redraw::All);
    const vec3 way = InWorld(context.plan(), state.total, 0);
    MoveSelection(context.model, subtract({}, way));
    CloneSelection(context.model, way);
    return Outcome::Drawn(Redraw::All, kCopiedSelection);
  }
};

bool HitsSelected(map& m, const PickRay& ray) {
  bool hit = false;
  VisitBrushes(m, BrushFilter::Selected, [&](const brush& b) {
    hit = hit || (CanBeHit(m, b) && b.hitByRay(ray.start, ray.end).t >= 0);
  });
  return hit;
}

}  // namespace

ToolStart StartBrushDrag(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  if (!HitsSelected(context.model, RayAt(context.plan(), PointUnder(context, event)))) return start;
  context.model.modified = true;
  start.claimed = true;
  start.drag = std::make_unique<BrushDrag>();
  return start;
}

}  // namespace velk
