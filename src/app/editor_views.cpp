// The views' side of the editor: what they are drawn from, and their mouse input.
#include <algorithm>

#include "app/editor.h"
#include "base/text.h"

namespace velk {

PlanScene Editor::planScene(const StripColours& strip) {
  return {.set = planViews_,
          .settings = settings_,
          .shown = currentMap(),
          .strip = strip,
          .groupName = {},
          .leakPoints = {},
          .preview = {}};
}

PlanPointerContext Editor::pointerContext(int view) {
  return {.set = planViews_, .settings = settings_, .current = currentMap(), .view = view};
}

PointerOutcome Editor::apply(PointerOutcome outcome) {
  if (outcome.redrawPlanViews) flagPlanViews();
  if (outcome.redrawCamera) flagCamera();
  if (outcome.redrawGroups) observer_.groupsChanged();
  if (!outcome.status.empty()) {
    postStatus(outcome.status);
  } else if (currentMap() && (outcome.redrawPlanViews || outcome.redrawCamera)) {
    carryOutRedraws();
  }
  return outcome;
}

PointerOutcome Editor::pressPlanView(int view, const PointerEvent& event) {
  planViews_.current = view;
  PointerOutcome outcome = apply(planPointer_.press(pointerContext(view), event));
  if (outcome.handled) observer_.commandsChanged();
  return outcome;
}

PointerOutcome Editor::movePlanView(int view, const PointerEvent& event) {
  return apply(planPointer_.move(pointerContext(view), event));
}

PointerOutcome Editor::releasePlanView(int view, const PointerEvent& event) {
  return apply(planPointer_.release(pointerContext(view), event));
}

PointerOutcome Editor::wheelPlanView(int view, const PointerEvent& event, int steps) {
  return apply(planPointer_.wheel(pointerContext(view), event, steps));
}

void Editor::flipPlanView(int view) {
  planViews_.views[static_cast<size_t>(view)].flip();
  if (!currentMap()) return;
  flagPlanViews();
  carryOutRedraws();
}

RenderScene Editor::cameraScene() {
  refreshAssets();
  return {.model = *currentMap(),
          .settings = settings_,
          .assets = assets_,
          .lens = cameraView_.lens,
          .preview = {}};
}

void Editor::refreshAssets() {
  const TextureSet* set = current() ? &current()->textures : nullptr;
  assets_.makeTextureRef = [set](const std::string& name) { return set->makeTextureRef(name); };
  const ColormapTable* table = textureManager_.colormap();
  assets_.colormap = table ? table->data() : nullptr;
  const Wad* wad = paletteWad();
  assets_.palette = wad ? wad->palette.data() : nullptr;
  if (!wad) return;
  assets_.brushOutline = wad->outlines.brush;
  assets_.selectionOutline = wad->outlines.selection;
  assets_.faceOutline = wad->outlines.face;
}

RenderSize Editor::renderSize() const {
  const double scale = cameraView_.deviceScale;
  return RenderSizeFor(settings_, Truncate(RoundHalfAway(cameraView_.clientWidth * scale)),
                       Truncate(RoundHalfAway(cameraView_.clientHeight * scale)));
}

void Editor::renderCamera() {
  if (currentMap()) cameraView_.renderer.renderFrame(cameraScene(), renderSize());
}

// Nothing claims the camera view's mouse yet.
PointerOutcome Editor::pressCamera(const PointerEvent&) { return {}; }
PointerOutcome Editor::moveInCamera(const PointerEvent&) { return {}; }
PointerOutcome Editor::releaseCamera(const PointerEvent&) { return {}; }

FacePick Editor::pickInCamera(Pixel at) {
  if (!currentMap()) return {};
  const RenderSize size = renderSize();
  const int x = Truncate(double(at.x) * size.width / std::max(1, cameraView_.clientWidth));
  const int y = Truncate(double(at.y) * size.height / std::max(1, cameraView_.clientHeight));
  return cameraView_.renderer.pickFace(cameraScene(), size, x, y);
}

void Editor::apply(const CameraOutcome& outcome) {
  if (outcome.redrawCamera) flagCamera();
  if (outcome.redrawPlans) flagPlanViews();
  const map* m = currentMap();
  if (m && (outcome.follow || outcome.recentre)) {
    const bool locked = settings_.lock_cameras && !outcome.recentre;
    if (setPlanCenter(planViews_, m, m->activeCamera().origin, locked)) flagPlanViews();
  }
  if (!outcome.status.empty()) postStatus(outcome.status);
}

}  // namespace velk
