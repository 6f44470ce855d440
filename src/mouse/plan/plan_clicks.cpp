#include "mouse/plan/plan_clicks.h"

#include "mouse/view_ray.h"
#include "ops/selection.h"

namespace velk {
namespace {

PickRay RayUnder(const MouseContext& context, const PointerEvent& event) {
  return RayAt(context.plan(), PointUnder(context, event));
}

ToolStart Done(const char* undoName = "") {
  ToolStart start;
  start.claimed = true;
  start.undoName = undoName;
  start.outcome = Outcome::Drawn(Redraw::All);
  return start;
}

// The first brush selected gives the texture browser its texture.
bool LiftTexture(const MouseContext& context, const RayPick& pick) {
  if (!pick.firstOfSelection || pick.face < 0 || !context.texture) return false;
  return context.texture->liftTexture(pick.hit->faces()[static_cast<size_t>(pick.face)].texture,
                                      context.textures);
}

ToolStart ApplyTexture(const MouseContext& context, const PointerEvent& event, bool wholeBrush) {
  const PickRay ray = RayUnder(context, event);
  if (context.texture) {
    ApplyTextureByRay(context.model, ray.start, ray.end, context.texture->current(), wholeBrush);
  }
  return Done(wholeBrush ? "Texture Brush" : "Texture Face");
}

}  // namespace

ToolStart SelectClick(const MouseContext& context, const PointerEvent& event) {
  const PickRay ray = RayUnder(context, event);
  ToolStart start = Done();
  start.outcome.textures = LiftTexture(context, selectByRay(context.model, ray.start, ray.end, true));
  return start;
}

ToolStart TextureBrushClick(const MouseContext& context, const PointerEvent& event) {
  return ApplyTexture(context, event, true);
}

ToolStart TextureFaceClick(const MouseContext& context, const PointerEvent& event) {
  return ApplyTexture(context, event, false);
}

ToolStart EntityConnectClick(const MouseContext& context, const PointerEvent& event) {
  if (context.model.worldIsCurrent()) return {};
  const PickRay ray = RayUnder(context, event);
  RayPick pick;
  Connect(context.model, ray.start, ray.end, &pick);
  ToolStart start = Done("Connect Entities");
  start.outcome.textures = LiftTexture(context, pick);
  return start;
}

}  // namespace velk
