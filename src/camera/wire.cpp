#include "camera/wire.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "base/text.h"
#include "camera/culling.h"
#include "camera/view.h"

namespace velk {

namespace {

// Edges that cutting makes along the border lie this far outside the picture.
constexpr int kMargin = 16;          // pixels of the picture, beyond the reach of a pick
constexpr double kNearLimit = -1.0;  // view depth; the eye looks along -z

struct DeepPoint {
  float x = 0;
  float y = 0;
  float z = 0;
};

// The part of the polygon for which keep(z) holds, a boundary at z = limit. Corners on it are kept.
template <typename Point, typename Keep, typename Cross>
void Cut(std::vector<Point>& polygon, std::vector<Point>& scratch, Keep&& keep, Cross&& cross) {
  scratch.clear();
  for (size_t i = 0; i < polygon.size(); ++i) {
    const Point& from = polygon[i];
    const Point& to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
    if (keep(from)) scratch.push_back(from);
    if (keep(from) != keep(to)) scratch.push_back(cross(from, to));
  }
  polygon.swap(scratch);
}

int PixelOf(double position) { return Truncate(OnGrid(position)); }

DeepPoint AtDepth(const DeepPoint& a, const DeepPoint& b, double z) {
  const double f = (z - a.z) / (double(b.z) - a.z);
  return {float(a.x + f * (double(b.x) - a.x)), float(a.y + f * (double(b.y) - a.y)), float(z)};
}

// Where the edge crosses the line x = limit (axis 0) or y = limit (axis 1).
Pixel Crossing(const Pixel& a, const Pixel& b, int Pixel::*axis, int limit) {
  const double f = (double(limit) - a.*axis) / (double(b.*axis) - a.*axis);
  Pixel p{Truncate(a.x + f * (double(b.x) - a.x)), Truncate(a.y + f * (double(b.y) - a.y))};
  p.*axis = limit;
  return p;
}

// Turns the polygons of a map into those of the wire picture.
class WirePlotter {
 public:
  // With a scale, points are in pixels that many times finer than those of `size`.
  WirePlotter(RenderSize size, const map& m, const Settings& settings, const WireLens& lens, double scale = 1)
      : size_{Truncate(size.width * scale), Truncate(size.height * scale)},
        eye_(MakeEye(m.activeCamera())),
        farLimit_(settings.far_clip_distance),
        focal_(lens.focalLength() * scale) {}

  // Fewer than 3 points when nothing of it is on the picture. Valid until the next call.
  const std::vector<Pixel>& plot(const winding& w) {
    pixels_.clear();
    moveToView(w);
    cutDepth();
    if (points_.size() < 3) return pixels_;
    project();
    cutToCanvas();
    return pixels_;
  }

 private:
  // The renderer's view space, the depth turned round: here the eye looks along -z.
  void moveToView(const winding& w) {
    points_.clear();
    for (const WindingPoint& corner : w) {
      const vec3 p = ToView(eye_, corner.position());
      points_.push_back({p.x, p.y, -p.z});
    }
  }

  void cutDepth() {
    const double farLimit = farLimit_;
    Cut(
        points_, scratch_, [](const DeepPoint& p) { return p.z <= kNearLimit; },
        [](const DeepPoint& a, const DeepPoint& b) { return AtDepth(a, b, kNearLimit); });
    Cut(
        points_, scratch_, [=](const DeepPoint& p) { return p.z >= farLimit; },
        [=](const DeepPoint& a, const DeepPoint& b) { return AtDepth(a, b, farLimit); });
  }

  void project() {
    const int centreX = size_.width / 2;
    const int centreY = size_.height / 2;
    for (const DeepPoint& p : points_) {
      pixels_.push_back({PixelOf(centreX - p.x * focal_ / p.z), PixelOf(centreY + p.y * focal_ / p.z)});
    }
  }

  void cutToCanvas() {
    cutSide(&Pixel::x, -kMargin, size_.width - 1 + kMargin);
    cutSide(&Pixel::y, -kMargin, size_.height - 1 + kMargin);
  }

  void cutSide(int Pixel::*axis, int low, int high) {
    Cut(
        pixels_, pixelScratch_, [=](const Pixel& p) { return p.*axis >= low; },
        [=](const Pixel& a, const Pixel& b) { return Crossing(a, b, axis, low); });
    Cut(
        pixels_, pixelScratch_, [=](const Pixel& p) { return p.*axis <= high; },
        [=](const Pixel& a, const Pixel& b) { return Crossing(a, b, axis, high); });
  }

  RenderSize size_;
  Eye eye_;
  double farLimit_;
  double focal_;
  std::vector<DeepPoint> points_;
  std::vector<DeepPoint> scratch_;
  std::vector<Pixel> pixels_;
  std::vector<Pixel> pixelScratch_;
};

void DrawBrush(Canvas& canvas, WirePlotter& plotter, const brush& b, Colour colour) {
  for (const face& f : b.faces()) {
    if (!f.polygon) continue;
    const std::vector<Pixel>& outline = plotter.plot(*f.polygon);
    if (outline.size() >= 3) canvas.devicePolygon({colour, 1}, outline);
  }
}

double DistanceToEdge(Pixel at, Pixel a, Pixel b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double size = dx * dx + dy * dy;
  const double along = size == 0 ? 0 : std::clamp(((at.x - a.x) * dx + (at.y - a.y) * dy) / size, 0.0, 1.0);
  return std::hypot(a.x + along * dx - at.x, a.y + along * dy - at.y);
}

double DistanceTo(Pixel at, const std::vector<Pixel>& outline) {
  double nearest = std::numeric_limits<double>::infinity();
  for (size_t i = 0; i < outline.size(); ++i) {
    nearest = std::min(nearest, DistanceToEdge(at, outline[i], outline[i + 1 < outline.size() ? i + 1 : 0]));
  }
  return nearest;
}

double DistanceFromEye(const map& m, const brush& b) {
  const vec3 middle = scale(add(b.mins, b.maxs), 0.5);
  return length(subtract(middle, m.activeCamera().origin));
}

}  // namespace

void DrawWire(Canvas& canvas, RenderSize canvasSize, const RenderScene& scene) {
  const map& m = scene.model;
  const Settings& settings = scene.settings;
  canvas.fill({0, 0, canvasSize.width, canvasSize.height}, settings.colours.bgcolor);
  WirePlotter plotter(canvasSize, m, settings, scene.lens, canvas.deviceScale());
  for (const bool selected : {false, true}) {  // the selection is not to be painted over
    const Colour colour = selected ? settings.colours.color_selection : settings.colours.fgcolor;
    for (const entity& e : m.entities()) {
      for (const brush& b : e.brushes()) {
        if (b.selected() != selected || !IsShown(m, b)) continue;
        if (const brush* shape = ShownShape(scene, b)) DrawBrush(canvas, plotter, *shape, colour);
      }
    }
  }
}

void RenderWireBrush(Canvas& canvas, RenderSize canvasSize, const map& m, const Settings& settings,
                     const WireLens& lens, const brush& b, bool selected) {
  WirePlotter plotter(canvasSize, m, settings, lens, canvas.deviceScale());
  DrawBrush(canvas, plotter, b, selected ? settings.colours.color_selection : settings.colours.fgcolor);
}

brush* PickWireBrush(RenderSize canvasSize, map& m, const Settings& settings, const WireLens& lens, Pixel at,
                     int reach) {
  WirePlotter plotter(canvasSize, m, settings, lens);
  brush* best = nullptr;
  double bestDistance = reach;
  double bestDepth = 0;
  for (entity& e : m.entities()) {
    for (brush& b : e.brushes()) {
      if (!IsShown(m, b)) continue;
      double distance = std::numeric_limits<double>::infinity();
      for (const face& f : b.faces()) {
        if (f.polygon) distance = std::min(distance, DistanceTo(at, plotter.plot(*f.polygon)));
      }
      const double depth = DistanceFromEye(m, b);
      if (distance > bestDistance || (best && distance == bestDistance && depth >= bestDepth)) continue;
      best = &b;
      bestDistance = distance;
      bestDepth = depth;
    }
  }
  return best;
}

}  // namespace velk
