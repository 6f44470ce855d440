#include "planview/draw_plan_view.h"

#include "planview/view_painter.h"

namespace velk {

void drawPlanView(Canvas& canvas, const PlanScene& scene, int view) {
  ViewPainter painter(canvas, scene, view);
  const Settings& settings = scene.settings;
  canvas.fill({0, 0, painter.view.clientWidth, painter.view.clientHeight}, settings.colours.bgcolor);
  if (scene.shown) {
    if (settings.show_grid) drawGrid(painter);
    drawClipPoints(painter);
    drawBrushes(painter);
    if (settings.connections) drawConnections(painter);
    if (settings.show_hits) drawHits(painter);
    if (settings.show_names) drawNames(painter);
  }
  if (settings.showeye) drawEyeMarker(painter);
  if (scene.shown && settings.show_cameras) drawCameras(painter);
  drawLeakPoints(painter);
  drawHeaderStrip(canvas, painter.view, settings, scene.shown, scene.groupName, scene.strip);
}

}  // namespace velk
