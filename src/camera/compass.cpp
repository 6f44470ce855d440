#include "camera/compass.h"

#include <array>
#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {

namespace {

constexpr int kRingSegments = 24;
constexpr int kTickLength = 4;
constexpr double kNeedleHalfWidth = 4;
constexpr int kEdgeWidth = 3;

Pixel At(Pixel centre, double angle, double radius) {
  return {centre.x + Truncate(RoundHalfAway(radius * std::cos(angle))),
          centre.y + Truncate(RoundHalfAway(radius * std::sin(angle)))};
}

void DrawStrokes(Canvas& canvas, Pixel centre, double yaw, const Pen& ring, const Pen& needle) {
  constexpr double kPi = std::numbers::pi;
  std::array<Pixel, kRingSegments> circle;
  for (int i = 0; i < kRingSegments; ++i) {
    circle[size_t(i)] = At(centre, 2 * kPi * i / kRingSegments, kCompassRadius);
  }
  canvas.polygon(ring, circle);
  for (int quarter = 0; quarter < 4; ++quarter) {
    const double angle = quarter * kPi / 2;
    canvas.line(ring, At(centre, angle, kCompassRadius - kTickLength), At(centre, angle, kCompassRadius));
  }
  const std::array<Pixel, 3> arrow = {At(centre, yaw, kCompassRadius - kTickLength - 1),
                                      At(centre, yaw + kPi / 2, kNeedleHalfWidth),
                                      At(centre, yaw - kPi / 2, kNeedleHalfWidth)};
  canvas.polygon(needle, arrow);
  canvas.line(ring, centre, At(centre, yaw + kPi, kCompassRadius / 2));
}

}  // namespace

void DrawCompass(Canvas& canvas, int canvasWidth, double yaw, Colour ring, Colour needle, Colour edge) {
  const Pixel centre{canvasWidth - kCompassInset, kCompassInset};
  DrawStrokes(canvas, centre, yaw, {edge, kEdgeWidth}, {edge, kEdgeWidth});
  DrawStrokes(canvas, centre, yaw, {ring, 1}, {needle, 1});
}

}  // namespace velk
