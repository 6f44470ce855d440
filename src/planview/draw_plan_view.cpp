#include "planview/draw_plan_view.h"

#include "planview/view_painter.h"

namespace velk {
namespace {

void DrawUnderBrushes(ViewPainter& painter) {
  painter.canvas.fill({0, 0, painter.view.clientWidth, painter.view.clientHeight}, painter.colours.bgcolor);
  if (!painter.scene.shown) return;
  if (painter.settings.show_grid) DrawGrid(painter);
  DrawClipPoints(painter);
}

void DrawOverBrushes(ViewPainter& painter) {
  const PlanScene& scene = painter.scene;
  const Settings& settings = scene.settings;
  if (scene.shown) {
    DrawGhosts(painter);
    if (settings.connections) DrawConnections(painter);
    if (settings.show_hits) DrawHits(painter);
    if (settings.show_names) DrawNames(painter);
  }
  if (settings.showeye) DrawEyeMarker(painter);
  if (scene.shown && settings.show_cameras) DrawCameras(painter);
  DrawLeakPoints(painter);
  DrawHeaderStrip(painter.canvas, painter.view, settings, scene.shown, scene.groupName, scene.strip);
}

}  // namespace

void DrawPlanView(Canvas& canvas, const PlanScene& scene, int view) {
  ViewPainter painter(canvas, scene, view);
  DrawUnderBrushes(painter);
  if (scene.shown) DrawBrushes(painter);
  DrawOverBrushes(painter);
}

void DrawPlanView(RasterCanvas& canvas, const PlanScene& scene, int view, const StillBrushes& still,
                  PlanLayer& layer) {
  if (!scene.shown || !still.mostStay()) return DrawPlanView(canvas, scene, view);
  if (!layer.fits(LayerKey(scene.set, view, scene.settings, *scene.shown, still, canvas.deviceScale()))) {
    return DrawPlanView(canvas, scene, view);
  }
  ViewPainter painter(canvas, scene, view);
  const auto drawStill = [&] {
    DrawUnderBrushes(painter);
    DrawStillBrushes(painter, canvas, still);
  };
  layer.draw(canvas, drawStill, [&] { DrawMovingBrushes(painter, canvas, still); });
  DrawOverBrushes(painter);
}

}  // namespace velk
