#include "mouse/camera/camera_clicks.h"

#include <cstdlib>
#include <numbers>
#include <optional>
#include <utility>

#include "base/text.h"
#include "camera/compass.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr int kCompassReach = 31;  // a press is nearer to its centre than this on both axes, pixels
constexpr int kCompassMiddle = 2;  // and not nearer than this on both

// A click acts at the press and runs until the release, which says what it did.
class HeldClick : public Drag {
 public:
  HeldClick(int code, const char* undoName, Outcome atRelease)
      : code_(code), undoName_(undoName), atRelease_(std::move(atRelease)) {}

  int code() const override { return code_; }
  const char* undoName() const override { return undoName_; }
  bool actsUnmoved(const DragState& /*state*/) const override { return true; }
  Outcome move(const MouseContext& /*context*/, const DragState& /*state*/) override { return {}; }
  Outcome finish(const MouseContext& /*context*/, const DragState& /*state*/) override { return atRelease_; }
  void cancel(const MouseContext& context) override {
    if (lifted_ && context.texture) context.texture->setCurrent(*lifted_);
  }

  void restoreOnCancel(const texturedef& before) { lifted_ = before; }

 private:
  int code_;
  const char* undoName_;
  Outcome atRelease_;
  std::optional<texturedef> lifted_;  // the texture browser's choice before it took another
};

ToolStart Held(int code, Redraw redraw, const char* status, const char* undoName = "") {
  ToolStart start;
  start.claimed = true;
  start.drag = std::make_unique<HeldClick>(code, undoName, Outcome::Drawn(redraw, status));
  start.outcome = Outcome::Drawn(redraw);
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
  if (context.settings.drawmode != kWireMode) return context.camera.under;
  brush* hit = context.camera.pick(event.at).hit;
  return {hit, hit ? hit->currentFace() : -1};
}

// Lifts the texture under the press, when there is one. The texture browser refuses that of a box that stands
// for an entity.
ToolStart Lift(const MouseContext& context, int code, const char* status, const char* undoName = "") {
  const FacePick& pick = context.camera.under;
  if (!pick.hit || pick.face < 0 || !context.texture) return {};
  const texturedef before = context.texture->current();
  const bool lifted = context.texture->liftTexture(TextureOf(pick), context.textures);
  ToolStart start = Held(code, Redraw::Camera, lifted ? status : "", undoName);
  static_cast<HeldClick&>(*start.drag).restoreOnCancel(before);
  start.outcome.textures = lifted;
  return start;
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
  ToolStart start = Held(kCameraSelectCode, Redraw::All, "Select / Deselect");
  if (pick.hit) start.outcome.textures = Toggle(context, pick);
  return start;
}

ToolStart ApplyToBrushClick(const MouseContext& context, const PointerEvent& /*event*/) {
  const FacePick& pick = context.camera.under;
  if (!pick.hit || !context.texture) return {};
  if (pick.hit->owner->isModel) {
    if (context.saveUndo) context.saveUndo("Texture Brush", UndoMode::Working, pick.hit);
    pick.hit->setAllTexturedefs(context.texture->current());
    context.model.modified = true;
  }
  return Held(kApplyToBrushCode, Redraw::Camera, "Current texture applied to brush...", "Texture Brush");
}

ToolStart ApplyToFaceClick(const MouseContext& context, const PointerEvent& /*event*/) {
  const FacePick& pick = context.camera.under;
  if (!pick.hit || !context.texture) return {};
  if (pick.hit->owner->isModel && pick.face >= 0) {
    if (context.saveUndo) context.saveUndo("Texture Face", UndoMode::Working, pick.hit);
    pick.hit->setTexturedef(context.texture->current(), pick.face);
    context.model.modified = true;
  }
  return Held(kApplyToFaceCode, Redraw::Camera, "Current texture applied to face...", "Texture Face");
}

ToolStart LiftTextureClick(const MouseContext& context, const PointerEvent& /*event*/) {
  return Lift(context, kLiftTextureCode, "Texture lifted...");
}

ToolStart LiftAndApplyClick(const MouseContext& context, const PointerEvent& /*event*/) {
  ToolStart start =
      Lift(context, kLiftAndApplyCode, "Texture lifted and applied to selected brushes...", "Texture Brush");
  if (start.outcome.textures) ApplyToSelected(context.model, context.texture->current());
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
  ToolStart start;
  start.claimed = true;
  start.outcome = Outcome::Drawn(Redraw::All, Format("Angle set to [%i]...", Truncate(turned)));
  return start;
}

}  // namespace velk
