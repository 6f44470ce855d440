#include "camera/live/wire_layer.h"

#include <algorithm>
#include <limits>

#include "camera/culling.h"

namespace velk {
namespace {

WireLayerKey KeyOf(RenderSize size, const RenderScene& scene, double deviceScale) {
  const camera& eye = scene.model.activeCamera();
  WireLayerKey key;
  key.shown = &scene.model;
  key.generation = scene.still->generation();
  key.size = size;
  key.deviceScale = deviceScale;
  const float place[] = {eye.origin.x, eye.origin.y, eye.origin.z, eye.roll, eye.pitch, eye.yaw};
  std::copy_n(place, 6, key.place);
  key.focalLength = scene.lens.focalLength();
  key.farLimit = scene.settings.far_clip_distance;
  key.strokes = scene.settings.colours.fgcolor;
  key.background = scene.settings.colours.bgcolor;
  return key;
}

void DrawStill(RasterCanvas& canvas, RenderSize size, const RenderScene& scene) {
  const Settings& settings = scene.settings;
  canvas.fill({0, 0, size.width, size.height}, settings.colours.bgcolor);
  std::uint32_t rank = 0;
  for (const StillBrushes::Part& part : scene.still->parts()) {
    for (const StillBrushes::Still& b : part.still) {
      canvas.setRank(++rank);
      RenderWireBrush(canvas, size, scene.model, settings, scene.lens, *b.shown, false);
    }
  }
}

// The selection comes last, over everything.
void DrawMoving(RasterCanvas& canvas, RenderSize size, const RenderScene& scene) {
  for (const bool selected : {false, true}) {
    for (const StillBrushes::Part& part : scene.still->parts()) {
      for (const StillBrushes::Moving& b : part.moving) {
        const brush* shape = b.shown->selected() == selected ? ShownShape(scene, *b.shown) : nullptr;
        if (!shape) continue;
        canvas.setRank(selected ? std::numeric_limits<std::uint32_t>::max() : part.first + b.after);
        RenderWireBrush(canvas, size, scene.model, scene.settings, scene.lens, *shape, selected);
      }
    }
  }
}

}  // namespace

void DrawWire(RasterCanvas& canvas, RenderSize canvasSize, const RenderScene& scene, WireLayer& layer) {
  if (!layer.fits(KeyOf(canvasSize, scene, canvas.deviceScale())) || !scene.still->mostStay()) {
    return DrawWire(canvas, canvasSize, scene);
  }
  layer.draw(
      canvas, [&] { DrawStill(canvas, canvasSize, scene); }, [&] { DrawMoving(canvas, canvasSize, scene); });
}

}  // namespace velk
