#include "app/views.h"

#include <algorithm>

#include "base/text.h"
#include "camera/flight.h"
#include "camera/wire.h"

namespace velk {

void Views::resize(int view, int width, int height) {
  if (view == kCameraView) {
    cameraWidth = width;
    cameraHeight = height;
    return;
  }
  PlanView& plan = plans.views[static_cast<size_t>(view)];
  plan.clientWidth = width;
  plan.clientHeight = height;
}

const brush* Views::standInFor(const brush& b) {
  const Drag* drag = mouse ? mouse->drag() : nullptr;
  const brush* dragged = drag ? drag->preview(b) : nullptr;
  return clip_.of(dragged ? *dragged : b);
}

std::function<const brush*(const brush&)> Views::standIns() {
  if (const map* m = documents_.currentMap()) {
    clip_.begin(*m, plans.currentView().axisDepth, settings_.careful_tools);
  }
  if (!clip_.active() && !dragRuns()) return {};
  return [this](const brush& b) { return standInFor(b); };
}

PlanScene Views::planScene(const StripColours& strip) {
  return {.set = plans,
          .settings = settings_,
          .shown = documents_.currentMap(),
          .strip = strip,
          .groupName = groupName(),
          .leakPoints = leaks.points(),
          .preview = standIns(),
          .ghosts = ghosts};
}

void Views::drawPlan(RasterCanvas& canvas, int view, const StripColours& strip) {
  PlanLayer& layer = layers_[static_cast<size_t>(view)];
  const map* m = documents_.currentMap();
  if (!m || !dragRuns()) {
    layer = {};
    DrawPlanView(canvas, planScene(strip), view);
    return;
  }
  still_.look(*m);
  DrawPlanView(canvas, planScene(strip), view, still_, layer);
}

RenderScene Views::cameraScene() {
  refreshAssets();
  return {.model = *documents_.currentMap(),
          .settings = settings_,
          .assets = assets_,
          .lens = lens,
          .preview = standIns(),
          .still = nullptr};
}

RenderScene Views::sceneOf(map& m, const Settings& settings) {
  refreshAssets();
  return {.model = m, .settings = settings, .assets = assets_, .lens = {}, .preview = {}};
}

const Wad* Views::paletteWad() const {
  return textures_.paletteWad(documents_.current() ? &documents_.current()->textures : nullptr);
}

void Views::refreshAssets() {
  const TextureSet* set = documents_.current() ? &documents_.current()->textures : nullptr;
  assets_.makeTextureRef = [set](const std::string& name) { return set->makeTextureRef(name); };
  const ColormapTable* table = textures_.colormap();
  assets_.colormap = table ? table->data() : nullptr;
  const Wad* wad = paletteWad();
  assets_.palette = wad ? wad->palette.data() : nullptr;
  if (!wad) return;
  assets_.brushOutline = wad->outlines.brush;
  assets_.selectionOutline = wad->outlines.selection;
  assets_.faceOutline = wad->outlines.face;
}

RenderSize Views::renderSize() const {
  return RenderSizeFor(settings_, Truncate(RoundHalfAway(cameraWidth * deviceScale)),
                       Truncate(RoundHalfAway(cameraHeight * deviceScale)));
}

void Views::renderCamera() {
  const map* m = documents_.currentMap();
  if (!m) return;
  RenderScene scene = cameraScene();
  if (dragRuns()) {
    still_.look(*m);
    scene.still = &still_;
  }
  renderer.renderFrame(scene, renderSize());
}

void Views::drawWire(RasterCanvas& canvas) {
  RenderScene scene = cameraScene();
  const RenderSize size{cameraWidth, cameraHeight};
  if (!dragRuns()) {
    wire_ = {};
    DrawWire(canvas, size, scene);
    return;
  }
  still_.look(*documents_.currentMap());
  scene.still = &still_;
  DrawWire(canvas, size, scene, wire_);
}

FacePick Views::pickInCamera(Pixel at) {
  if (!documents_.currentMap()) return {};
  const RenderSize size = renderSize();
  const int x = Truncate(double(at.x) * size.width / std::max(1, cameraWidth));
  const int y = Truncate(double(at.y) * size.height / std::max(1, cameraHeight));
  return renderer.pickFace(cameraScene(), size, x, y);
}

FacePick Views::pick(Pixel at) {
  constexpr int kReach = 8;  // to an edge, pixels
  if (settings_.drawmode != kWireMode) return pickInCamera(at);
  map* m = documents_.currentMap();
  if (!m) return {};
  return {PickWireBrush({cameraWidth, cameraHeight}, *m, settings_, lens, at, kReach), -1};
}

vec3 Views::beyondInCamera(Pixel at) const {
  constexpr double kFar = 32767;
  const RenderSize size = renderSize();
  const double x = (at.x + 0.5) * size.width / std::max(1, cameraWidth);
  const double y = (at.y + 0.5) * size.height / std::max(1, cameraHeight);
  return PointBefore(documents_.currentMap()->activeCamera(), size.width, size.height, x, y, kFar);
}

bool Views::centre(Centre how) {
  const map* m = documents_.currentMap();
  if (!m || how == Centre::Stay) return false;
  const bool locked = settings_.lock_cameras && how == Centre::Follow;
  return setPlanCenter(plans, m, m->activeCamera().origin, locked);
}

}  // namespace velk
