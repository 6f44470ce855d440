#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "base/text.h"
#include "planview/view_painter.h"

namespace velk {

namespace {

constexpr int kClipPointSize = 10;  // pixels
constexpr int kClipLabelHeight = 14;
constexpr double kNumbersAbove = 0.49;  // camera numbers are shown at larger scales
constexpr int kMostDots = 1000;         // behind a camera's arrow
constexpr int kLargestFont = 200;       // pixels
constexpr Colour kLeakColour{255, 0, 0};
constexpr Colour kLeakStartColour{0, 200, 0};
constexpr int kLeakMark = 9;  // pixels a side

// The outline and inside of a square; right and bottom do not belong to it.
void DrawSquare(Canvas& canvas, const PixelRect& square, Colour border, Colour inside) {
  const int right = square.left + square.width - 1, bottom = square.top + square.height - 1;
  if (square.width < 1 || square.height < 1) return;
  canvas.fill(square, inside);
  const Pixel corners[] = {
      {square.left, square.top}, {right, square.top}, {right, bottom}, {square.left, bottom}};
  canvas.polygon({border, 1}, corners);
}

// Rounded, so that an arrow along an axis stays straight.
Pixel NearestPixel(double x, double y) { return {Truncate(RoundHalfAway(x)), Truncate(RoundHalfAway(y))}; }

// Pixels that follow the arrow's tip in its direction.
void DrawDots(Canvas& canvas, Colour colour, const ArrowTip& tip, double b, double length, int count) {
  std::vector<Pixel> dots;
  for (int i = 1; i <= count; ++i) {
    const double along = i * 0.4 * length;
    dots.push_back(NearestPixel(tip.x + along * std::cos(b), tip.y + along * std::sin(b)));
  }
  canvas.points(colour, dots);
}

void DrawCamera(ViewPainter& painter, int index) {
  const map& m = *painter.scene.shown;
  const Settings& settings = painter.settings;
  const camera& eye = m.cameras[static_cast<size_t>(index)];
  const double length = painter.markerSize();
  const int dots = settings.show_dots ? std::clamp(settings.num_dots, 1, kMostDots) : 0;
  const Pixel at = painter.projection.worldToScreen(eye.origin);
  if (!painter.inView(at, Truncate(length * (2 + 0.4 * dots)))) return;

  const Colour colour =
      index == m.currentCamera ? painter.colours.color_activecamera : painter.colours.color_othercamera;
  const int left = Truncate(at.x - 0.5 * length), top = Truncate(at.y - 0.5 * length);
  const PixelRect square{left, top, Truncate(left + length) - left, Truncate(top + length) - top};
  DrawSquare(painter.canvas, square, colour, painter.colours.bgcolor);
  if (painter.view.orientation == kOrientationXY) {
    const double b = std::numbers::pi / 2 - eye.yaw;
    const ArrowTip tip = DrawArrow(painter.canvas, {colour, 1}, at, b, length);
    DrawDots(painter.canvas, colour, tip, b, length, dots);
  }
  if (painter.projection.scale > kNumbersAbove) {
    // Without a background of its own, which would break the marker's outline.
    painter.canvas.text(Format("%i", index + 1), {at.x - 5, at.y - 5},
                        std::clamp(settings.box_font_size, 5, kLargestFont), painter.colours.fgcolor,
                        nullptr);
  }
}

}  // namespace

ArrowTip DrawArrow(Canvas& canvas, const Pen& pen, Pixel origin, double b, double length) {
  const double baseX = origin.x - 0.3 * length * std::cos(b), baseY = origin.y - 0.3 * length * std::sin(b);
  const auto from = [&](double angle, double distance) {
    return NearestPixel(baseX + distance * std::cos(angle), baseY + distance * std::sin(angle));
  };
  const Pixel tip = from(b, length);
  const Pixel head[] = {tip, from(b + 0.2, 0.6 * length), from(b, 0.8 * length), from(b - 0.2, 0.6 * length)};
  canvas.line(pen, from(b, 0), tip);
  canvas.polygon(pen, head);
  return {baseX + length * std::cos(b), baseY + length * std::sin(b)};
}

void DrawCameras(ViewPainter& painter) {
  for (int i = kCameras - 1; i >= 0; --i) DrawCamera(painter, i);
}

void DrawClipPoints(ViewPainter& painter) {
  const clipper& clip = painter.scene.shown->clip;
  for (int i = 0; i < std::min(clip.count, 3); ++i) {
    const Pixel at = painter.projection.worldToScreen(clip.points[i]);
    if (!painter.inView(at)) continue;
    painter.canvas.text(Format("%i", i + 1), {at.x - 4, at.y + 6}, kClipLabelHeight, painter.colours.fgcolor,
                        &painter.colours.bgcolor);
    const Colour inside =
        i == clip.current ? painter.colours.color_currentclipface : painter.colours.color_otherclipface;
    DrawSquare(painter.canvas,
               {at.x - kClipPointSize / 2, at.y - kClipPointSize / 2, kClipPointSize, kClipPointSize},
               painter.colours.color_clipborder, inside);
  }
}

void DrawEyeMarker(ViewPainter& painter) {
  const int left = Truncate(painter.projection.width * 0.5 - 2);
  const int top = Truncate(painter.projection.height * 0.5 - 2);
  const Pixel corners[] = {{left, top}, {left + 3, top}, {left + 3, top + 3}, {left, top + 3}};
  painter.canvas.polygon({painter.colours.color_eyemarker, 1}, corners);
}

// The path through the points, and squares that mark its start and its end.
void DrawLeakPath(ViewPainter& painter) {
  const std::span<const vec3> points = painter.scene.leakPoints;
  if (points.size() < 2) return;
  for (size_t i = 1; i < points.size(); ++i) {
    const vec3 ends[] = {points[i - 1], points[i]};
    painter.outline({kLeakColour, 1}, ends, 2);
  }
  const auto mark = [&](const vec3& point, Colour inside) {
    const Pixel at = painter.projection.worldToScreen(point);
    if (!painter.inView(at, kLeakMark)) return;
    DrawSquare(painter.canvas, {at.x - kLeakMark / 2, at.y - kLeakMark / 2, kLeakMark, kLeakMark},
               kLeakColour, inside);
  };
  mark(points.back(), kLeakColour);
  mark(points.front(), kLeakStartColour);
}

// Small crosses, over the path.
void DrawLeakPoints(ViewPainter& painter) {
  DrawLeakPath(painter);
  std::vector<Pixel> marks;
  for (const vec3& point : painter.scene.leakPoints) {
    const Pixel at = painter.projection.worldToScreen(point);
    if (!painter.inView(at)) continue;
    marks.insert(marks.end(), {at, {at.x - 1, at.y}, {at.x + 1, at.y}, {at.x, at.y - 1}, {at.x, at.y + 1}});
  }
  painter.canvas.points(kLeakColour, marks);
}

}  // namespace velk
