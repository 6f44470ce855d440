// What a view shows where the mouse rests.
#include "app/view_input.h"
#include "mouse/operations.h"
#include "mouse/view_ray.h"
#include "ops/selection.h"

namespace velk {
namespace {

constexpr int kWireReach = 8;  // of a click to an edge of the wire picture, pixels

std::string_view RunningName(const Pointer& pointer) {
  for (const MouseOperation& o : pointer.view() == kCameraView ? CameraOperations() : PlanOperations()) {
    if (o.code == pointer.drag()->code()) return o.name;
  }
  return "";
}

FacePick Under(const MouseContext& context, Pixel at) {
  if (!context.inCamera()) {
    PointerEvent event;
    event.at = at;
    const PickRay ray = RayAt(context.plan(), PointUnder(context, event));
    const RayPick pick = PickByRay(context.model, ray.start, ray.end, true);
    return {pick.hit, pick.face};
  }
  if (context.settings.drawmode != 0) return context.camera.pickFace(at);
  return {context.camera.pickWire(at, kWireReach), -1};
}

}  // namespace

FacePick ViewInput::hovered(int view) {
  const auto& mouse = mouse_[static_cast<size_t>(view)];
  if (!services_.settings.hover_pick || !mouse || pointer_.drag() || !documents_.currentMap()) return {};
  if (view != kCameraView && mouse->at.y < kStripHeight) return {};
  const MouseContext at = context(view);
  const bool clicks = services_.settings.click_selects && !mouse->shift && !mouse->ctrl;
  if (!clicks || view == kCameraView || !clicks_.isAgain(at, mouse->at)) return Under(at, mouse->at);
  const std::vector<brush*> under = BrushesUnder(at, mouse->at);
  return under.empty() ? FacePick{} : FacePick{under[clicks_.next(at, mouse->at, under)], -1};
}

CursorShape ViewInput::cursor(int view) {
  if (!services_.settings.tool_cursors || !documents_.currentMap()) return CursorShape::Idle;
  if (pointer_.drag()) {
    return pointer_.view() == view ? CursorOf(RunningName(pointer_)) : CursorShape::Idle;
  }
  const auto& mouse = mouse_[static_cast<size_t>(view)];
  if (!mouse || (view != kCameraView && mouse->at.y < kStripHeight)) return CursorShape::Idle;
  const MouseBindings* bound = bindings(view);
  if (!bound) return CursorShape::Idle;
  const MouseContext at = context(view);
  const bool clickTakes = services_.settings.click_selects && Under(at, mouse->at).hit;
  return CursorBefore(at, *mouse, bound->find(MouseButton::Left, ModifiersOf(*mouse)), clickTakes);
}

}  // namespace velk
