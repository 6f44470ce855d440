// What the parts of a plan view's picture share while it is drawn.
#pragma once

#include "base/text.h"
#include "planview/draw_plan_view.h"

namespace velk {

// Device pixels, inclusive.
struct ClipRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// Clips a polygon of at most WINDING_MAX_POINTS corners (Sutherland-Hodgman, new corners by linear
// interpolation, truncated). The result lies in `corners`, which has room for 4 more.
inline constexpr int kMaxClipped = WINDING_MAX_POINTS + 4;
int ClipPolygon(Pixel (&corners)[kMaxClipped], int count, const ClipRect& rect);

class ViewPainter {
 public:
  ViewPainter(Canvas& target, const PlanScene& shown, int viewIndex);

  Canvas& canvas;
  const PlanScene& scene;
  const Settings& settings;
  const ViewColours& colours;
  const PlanView& view;
  const PlanProjection projection;  // in the editor's pixels

  // In device pixels, truncated like the projection's.
  Pixel toDevice(double u, double v) const {
    return {Truncate((u - projection.centreU) * deviceScale_ + halfWidth_),
            Truncate(-(v - projection.centreV) * deviceScale_ + halfHeight_)};
  }
  // The closed outline through world points (vec3 or corners of a winding), as far as it can be seen.
  template <typename Point>
  void outline(const Pen& pen, const Point* points, int count) {
    if (count > WINDING_MAX_POINTS) return;
    for (int i = 0; i < count; ++i) corners_[i] = toDevice(points[i][view.axisU], points[i][view.axisV]);
    drawCorners(pen, count);
  }
  // False when nothing between the bounds can be seen.
  bool sees(const vec3& mins, const vec3& maxs) const;
  // The pixel lies in the view or at most `margin` outside.
  bool inView(Pixel at, int margin = 0) const;

  // Side of camera markers and length of arrows, pixels.
  double markerSize() const;

  int deviceWidth() const { return deviceWidth_; }
  int deviceHeight() const { return deviceHeight_; }

 private:
  void drawCorners(const Pen& pen, int count);

  double deviceScale_;  // device pixels per world unit
  double halfWidth_;    // device pixels
  double halfHeight_;
  int deviceWidth_;
  int deviceHeight_;
  ClipRect clip_;
  Pixel corners_[kMaxClipped];
};

void DrawGrid(ViewPainter& painter);
void DrawBrushes(ViewPainter& painter);
void DrawGhosts(ViewPainter& painter);
// The same in two goes. Ranks of the still brushes count from 1.
void DrawStillBrushes(ViewPainter& painter, RasterCanvas& canvas, const StillBrushes& still);
void DrawMovingBrushes(ViewPainter& painter, RasterCanvas& canvas, const StillBrushes& still);
void DrawNames(ViewPainter& painter);
void DrawHits(ViewPainter& painter);
void DrawClipPoints(ViewPainter& painter);
void DrawCameras(ViewPainter& painter);
void DrawEyeMarker(ViewPainter& painter);
void DrawLeakPoints(ViewPainter& painter);
void DrawConnections(ViewPainter& painter);

// An arrow of a camera marker's shape, L pixels long, in the direction `b` (radians, clockwise from the
// right on the screen). Returns its tip.
struct ArrowTip {
  double x = 0;
  double y = 0;
};
ArrowTip DrawArrow(Canvas& canvas, const Pen& pen, Pixel origin, double b, double length);

}  // namespace velk
