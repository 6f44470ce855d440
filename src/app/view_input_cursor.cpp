// What a view shows where the mouse rests.
#include "app/view_input.h"
#include "mouse/operations.h"
#include "mouse/view_ray.h"
#include "ops/selection.h"

namespace velk {
namespace {

FacePick Under(const MouseContext& context, Pixel at) {
  if (!context.inCamera()) {
    PointerEvent event;
    event.at = at;
    const PickRay ray = RayAt(context.plan(), PointUnder(context, event));
    const RayPick pick = PickByRay(context.model, ray.start, ray.end, true);
    return {pick.hit, pick.face};
  }
  return context.camera.pick(at);
}

}  // namespace

FacePick ViewInput::hovered(int view) {
  const auto& [mouse, isOver] = mouseOf(view);
  if (!services_.settings.hover_pick || !isOver || pointer_.drag() || !documents_.currentMap()) return {};
  if (view != kCameraView && mouse.at.y < kStripHeight) return {};
  const MouseContext at = context(view);
  const bool clicks = services_.settings.click_selects && !mouse.shift && !mouse.ctrl;
  if (!clicks || view == kCameraView || !clicks_.isAgain(at, mouse.at)) return Under(at, mouse.at);
  const std::vector<brush*> under = BrushesUnder(at, mouse.at);
  return under.empty() ? FacePick{} : FacePick{under[clicks_.next(at, mouse.at, under)], -1};
}

CursorShape ViewInput::cursor(int view) {
  if (!services_.settings.tool_cursors || !documents_.currentMap()) return CursorShape::Idle;
  if (pointer_.drag()) {
    const MouseOperation* running = runningOperation();
    return pointer_.view() == view ? CursorOf(running ? running->name : "") : CursorShape::Idle;
  }
  const auto& [mouse, isOver] = mouseOf(view);
  if (!isOver || (view != kCameraView && mouse.at.y < kStripHeight)) return CursorShape::Idle;
  const MouseBindings* bound = bindings(view);
  if (!bound) return CursorShape::Idle;
  const MouseContext at = context(view);
  const auto clickTakes = [&, place = mouse.at] {
    return services_.settings.click_selects && Under(at, place).hit;
  };
  return CursorBefore(at, mouse, bound->find(MouseButton::Left, ModifiersOf(mouse)), clickTakes);
}

}  // namespace velk
