#include "camera/live/leak_line.h"

namespace velk {
namespace {

constexpr Colour kLine{255, 0, 0};
constexpr Colour kStart{0, 200, 0};
constexpr int kMark = 9;  // pixels a side

void Mark(Canvas& canvas, const CameraMarks& marks, const vec3& point, Colour colour) {
  const std::optional<Pixel> at = marks.place(point);
  if (!at) return;
  canvas.fill({at->x - kMark / 2, at->y - kMark / 2, kMark, kMark}, kLine);
  canvas.fill({at->x - kMark / 2 + 1, at->y - kMark / 2 + 1, kMark - 2, kMark - 2}, colour);
}

}  // namespace

void DrawLeakLine(Canvas& canvas, CameraMarks& marks, std::span<const vec3> points) {
  if (points.empty()) return;
  for (size_t i = 1; i < points.size(); ++i) marks.line({kLine, 2}, points[i - 1], points[i]);
  Mark(canvas, marks, points.back(), kLine);
  Mark(canvas, marks, points.front(), kStart);
}

}  // namespace velk
