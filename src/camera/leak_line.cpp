#include "camera/leak_line.h"

#include <algorithm>
#include <optional>

#include "camera/view.h"

namespace velk {
namespace {

constexpr Colour kLine{255, 0, 0};
constexpr Colour kStart{0, 200, 0};
constexpr int kMark = 9;     // pixels a side
constexpr double kNear = 1;  // view depth

// Where a view direction falls on the window: x = centreX + X / Z * perX.
struct Lens {
  double centreX = 0;
  double centreY = 0;
  double perX = 0;
  double perY = 0;
};

Lens LensOf(RenderSize window, RenderSize picture, const Settings& settings, const WireLens& lens) {
  constexpr int kWireMode = 0;
  if (settings.drawmode == kWireMode || picture.width < 1 || picture.height < 1) {
    return {double(window.width / 2), double(window.height / 2), lens.focalLength(), lens.focalLength()};
  }
  const Projection projection = MakeProjection(picture.width, picture.height);
  const double stretchX = double(window.width) / picture.width;
  const double stretchY = double(window.height) / picture.height;
  return {projection.halfWidth * stretchX, projection.centerY * stretchY, projection.halfWidth * stretchX,
          projection.halfWidth * stretchY};
}

struct Segment {
  double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

// Cuts the part between 0 and 1 of a line to where at + t * step <= most.
bool Cut(double at, double step, double most, double& low, double& high) {
  if (step == 0) return at <= most;
  const double t = (most - at) / step;
  if (step > 0) {
    high = std::min(high, t);
  } else {
    low = std::max(low, t);
  }
  return low <= high;
}

// The part of the segment within the rectangle; none when it passes by.
std::optional<Segment> Within(const Segment& s, int width, int height) {
  const double dx = s.x1 - s.x0, dy = s.y1 - s.y0;
  double low = 0, high = 1;
  if (!Cut(s.x0, dx, width - 1, low, high) || !Cut(-s.x0, -dx, 0, low, high) ||
      !Cut(s.y0, dy, height - 1, low, high) || !Cut(-s.y0, -dy, 0, low, high)) {
    return std::nullopt;
  }
  return Segment{s.x0 + low * dx, s.y0 + low * dy, s.x0 + high * dx, s.y0 + high * dy};
}

class LinePlotter {
 public:
  LinePlotter(Canvas& canvas, RenderSize window, const Lens& lens, const Eye& eye, double farLimit)
      : canvas_(canvas), window_(window), lens_(lens), eye_(eye), far_(farLimit) {}

  void line(const vec3& from, const vec3& to) {
    const vec3 a = ToView(eye_, from), b = ToView(eye_, to);
    double low = 0, high = 1;
    const double step = double(b.z) - a.z;
    if (!Cut(a.z, step, far_, low, high) || !Cut(-double(a.z), -step, -kNear, low, high)) return;
    const auto along = [&](double t) { return add(a, scale(subtract(b, a), t)); };
    const vec3 p = along(low), q = along(high);
    const auto part = Within({x(p), y(p), x(q), y(q)}, window_.width, window_.height);
    if (part) canvas_.line({kLine, 2}, PixelOf(part->x0, part->y0), PixelOf(part->x1, part->y1));
  }

  void mark(const vec3& point, Colour colour) {
    const vec3 p = ToView(eye_, point);
    if (p.z < kNear || p.z > far_) return;
    const double px = x(p), py = y(p);
    if (px < 0 || py < 0 || px >= window_.width || py >= window_.height) return;
    const Pixel at = PixelOf(px, py);
    canvas_.fill({at.x - kMark / 2, at.y - kMark / 2, kMark, kMark}, kLine);
    canvas_.fill({at.x - kMark / 2 + 1, at.y - kMark / 2 + 1, kMark - 2, kMark - 2}, colour);
  }

 private:
  double x(const vec3& p) const { return lens_.centreX + p.x * lens_.perX / p.z; }
  double y(const vec3& p) const { return lens_.centreY - p.y * lens_.perY / p.z; }
  static Pixel PixelOf(double x, double y) { return {Truncate(OnGrid(x)), Truncate(OnGrid(y))}; }

  Canvas& canvas_;
  RenderSize window_;
  Lens lens_;
  Eye eye_;
  double far_;
};

}  // namespace

void DrawLeakLine(Canvas& canvas, RenderSize window, RenderSize picture, const map& m,
                  const Settings& settings, const WireLens& lens, std::span<const vec3> points) {
  if (points.empty()) return;
  LinePlotter plotter(canvas, window, LensOf(window, picture, settings, lens), MakeEye(m.activeCamera()),
                      -double(settings.far_clip_distance));
  for (size_t i = 1; i < points.size(); ++i) plotter.line(points[i - 1], points[i]);
  plotter.mark(points.back(), kLine);
  plotter.mark(points.front(), kStart);
}

}  // namespace velk
