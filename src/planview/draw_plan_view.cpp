#include "planview/draw_plan_view.h"

#include "planview/view_painter.h"

namespace velk {

void DrawPlanView(Canvas& canvas, const PlanScene& scene, int view) {
  ViewPainter painter(canvas, scene, view);
  const Settings& settings = scene.settings;
  canvas.fill({0, 0, painter.view.clientWidth, painter.view.clientHeight}, settings.colours.bgcolor);
  if (scene.shown) {
    if (settings.show_grid) DrawGrid(painter);
    DrawClipPoints(painter);
    DrawBrushes(painter);
    DrawGhosts(painter);
    if (settings.connections) DrawConnections(painter);
    if (settings.show_hits) DrawHits(painter);
    if (settings.show_names) DrawNames(painter);
  }
  if (settings.showeye) DrawEyeMarker(painter);
  if (scene.shown && settings.show_cameras) DrawCameras(painter);
  DrawLeakPoints(painter);
  DrawHeaderStrip(canvas, painter.view, settings, scene.shown, scene.groupName, scene.strip);
}

}  // namespace velk
