#include "mouse/camera/camera_clicks.h"

#include <cstdlib>
#include <numbers>

#include "base/text.h"
#include "camera/compass.h"
#include "mouse/camera/face_under.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr int kCompassReach = 31;  // a press is nearer to its centre than this on both axes, pixels
constexpr int kCompassMiddle = 2;  // and not nearer than this on both
constexpr int kWireReach = 8;      // of a press to an edge of the wire picture, pixels

ToolStart Done(Redraw redraw, const char* status, const char* undoName = "") {
  ToolStart start;
  start.claimed = true;
  start.undoName = undoName;
  start.outcome = Outcome::Drawn(redraw, status);
  return start;
}

const texturedef& TextureOf(const FacePick& pick) {
  return pick.hit->faces()[static_cast<size_t>(pick.face)].texture;
}

// Whether the texture browser took the texture of the face.
bool Toggle(const MouseContext& context, const FacePick& pick) {
  map& m = context.model;
  brush& b = *pick.hit;
  m.modified = true;
  if (b.owner != m.currentEntity()) {
    if (!context.settings.multi_select) m.MGPerform(Method::Deselect);
    m.setCurrentEntity(b.owner);
  }
  if (b.selected()) {
    b.deselect();
    return false;
  }
  const bool first = m.totalSelected() == 0;
  b.select();
  return first && pick.face >= 0 && pick.face < b.numfaces() && context.texture &&
         context.texture->liftTexture(TextureOf(pick), context.textures);
}

FacePick BrushUnder(const MouseContext& context, const PointerEvent& event) {
  if (context.settings.drawmode != 0) return FaceUnder(context, event);
  brush* hit = context.camera.pickWire ? context.camera.pickWire(event.at, kWireReach) : nullptr;
  return {hit, hit ? hit->currentFace() : -1};
}

// False when there is no texture under the press.
bool Lift(const MouseContext& context, const PointerEvent& event) {
  const FacePick pick = FaceUnder(context, event);
  if (!pick.hit || pick.face < 0 || !context.texture) return false;
  context.texture->liftTexture(TextureOf(pick), context.textures);
  return true;
}

void ApplyToSelected(map& m, const texturedef& texture) {
  m.modified = true;
  for (entity& e : m.entities()) {
    if (!e.isModel) continue;
    for (brush& b : e.brushes()) {
      if (b.selected()) b.setAllTexturedefs(texture);
    }
  }
}

}  // namespace

ToolStart CameraSelectClick(const MouseContext& context, const PointerEvent& event) {
  const FacePick pick = BrushUnder(context, event);
  ToolStart start = Done(Redraw::All, "Select / Deselect");
  if (pick.hit) start.outcome.textures = Toggle(context, pick);
  return start;
}

ToolStart ApplyToBrushClick(const MouseContext& context, const PointerEvent& event) {
  const FacePick pick = FaceUnder(context, event);
  if (!pick.hit || !context.texture) return {};
  if (pick.hit->owner->isModel) {
    if (context.saveUndo) context.saveUndo("Texture Brush", UndoMode::Working, pick.hit);
    pick.hit->setAllTexturedefs(context.texture->current());
    context.model.modified = true;
  }
  return Done(Redraw::Camera, "Current texture applied to brush...", "Texture Brush");
}

ToolStart ApplyToFaceClick(const MouseContext& context, const PointerEvent& event) {
  const FacePick pick = FaceUnder(context, event);
  if (!pick.hit || !context.texture) return {};
  if (pick.hit->owner->isModel && pick.face >= 0) {
    if (context.saveUndo) context.saveUndo("Texture Face", UndoMode::Working, pick.hit);
    pick.hit->setTexturedef(context.texture->current(), pick.face);
    context.model.modified = true;
  }
  return Done(Redraw::Camera, "Current texture applied to face...", "Texture Face");
}

ToolStart LiftTextureClick(const MouseContext& context, const PointerEvent& event) {
  if (!Lift(context, event)) return {};
  ToolStart start = Done(Redraw::Camera, "Texture lifted...");
  start.outcome.textures = true;
  return start;
}

ToolStart LiftAndApplyClick(const MouseContext& context, const PointerEvent& event) {
  if (!Lift(context, event)) return {};
  ApplyToSelected(context.model, context.texture->current());
  ToolStart start =
      Done(Redraw::Camera, "Texture lifted and applied to selected brushes...", "Texture Brush");
  start.outcome.textures = true;
  return start;
}

ToolStart CompassClick(const MouseContext& context, const PointerEvent& event) {
  if (!context.inCamera() || event.button != MouseButton::Left || !context.model.currentEntity()) return {};
  const int dx = event.at.x - (context.camera.width - kCompassInset);
  const int dy = event.at.y - kCompassInset;
  const auto within = [&](int reach) { return std::abs(dx) < reach && std::abs(dy) < reach; };
  if (!within(kCompassReach) || within(kCompassMiddle)) return {};
  double degrees = DirectionDegrees(dx, dy);
  while (degrees < 0) degrees += 360;
  const double step = 360.0 / context.settings.steps_per_turn;
  const double turned = Truncate(degrees / step) * step;
  context.model.activeCamera().yaw = float(turned * (1.0 / 180) * std::numbers::pi);
  return Done(Redraw::All, Format("Angle set to [%i]...", Truncate(turned)).c_str());
}

}  // namespace velk
