#include "camera/polygon.h"

#include <algorithm>
#include <cmath>

namespace velk {

namespace {

// Nothing nearer to the eye is shown when polygons are cut exactly, world units.
constexpr double kNearest = 1.0 / 1024;

struct ScreenPolygon {
  int count = 0;
  int rows[ViewPolygon::kCapacity];
  EdgeValues values[ViewPolygon::kCapacity];
};

// Walks from the top corner in one direction and appends the edges met. A corner not below the row
// reached so far is passed over.
void AppendSide(const ScreenPolygon& polygon, int topCorner, int direction, int bottom,
                std::vector<Edge>& edges) {
  int corner = topCorner;
  int row = polygon.rows[topCorner];
  while (row < bottom) {
    int next = corner + direction;
    if (next < 0) next = polygon.count - 1;
    if (next == polygon.count) next = 0;
    if (polygon.rows[next] > row) {
      const float height = float(polygon.rows[next] - row);
      edges.push_back({polygon.values[corner], (polygon.values[next] - polygon.values[corner]) / height, row,
                       polygon.rows[next]});
      row = polygon.rows[next];
    }
    corner = next;
  }
}

void ProjectAll(const Projection& projection, const ViewPolygon& polygon, ScreenPolygon& screen,
                Outline& outline) {
  screen.count = polygon.count;
  float left = float(projection.width);
  float right = 0;
  outline.nearest = 0;
  for (int i = 0; i < polygon.count; ++i) {
    const ScreenVertex v = Project(projection, polygon.points[i]);
    screen.rows[i] = Truncate(v.y);
    screen.values[i] = EdgeValues{v.x, v.w, v.sw, v.tw};
    left = std::min(left, v.x);
    right = std::max(right, v.x);
    outline.nearest = std::max(outline.nearest, v.w);
  }
  outline.left = std::max(0, ColumnOf(left) - 1);
  outline.right = std::min(projection.width, ColumnOf(right) + 2);
  outline.nearest *= 1.0001f;  // interpolation may round up
}

WindingPoint Between(const WindingPoint& a, const WindingPoint& b, double part) {
  const auto mix = [part](float from, float to) { return float(from + part * (double(to) - from)); };
  return {mix(a.x, b.x), mix(a.y, b.y), mix(a.z, b.z), mix(a.s, b.s), mix(a.t, b.t)};
}

// Keeps the part for which `inside` is not negative; false when that is nothing.
template <typename Inside>
bool CutHalf(ViewPolygon& polygon, ViewPolygon& scratch, Inside&& inside) {
  double sides[ViewPolygon::kCapacity];
  double least = 0, most = -1;
  for (int i = 0; i < polygon.count; ++i) {
    sides[i] = inside(polygon.points[i]);
    least = std::min(least, sides[i]);
    most = std::max(most, sides[i]);
  }
  if (most < 0 || least >= 0) return most >= 0;
  scratch.count = 0;
  const auto keep = [&](const WindingPoint& p) {
    if (scratch.count < WINDING_MAX_POINTS) scratch.points[scratch.count++] = p;
  };
  for (int i = 0; i < polygon.count; ++i) {
    const WindingPoint& from = polygon.points[i];
    const int next = i + 1 < polygon.count ? i + 1 : 0;
    const double a = sides[i], b = sides[next];
    if (a >= 0) keep(from);
    if ((a >= 0) != (b >= 0)) keep(Between(from, polygon.points[next], a / (a - b)));
  }
  polygon.count = scratch.count;
  std::copy_n(scratch.points, scratch.count, polygon.points);
  return true;
}

}  // namespace

void MoveToView(const Eye& eye, const winding& w, ViewPolygon& polygon) {
  polygon.count = w.count;
  for (int i = 0; i < w.count; ++i) {
    const vec3 p = ToView(eye, w[i].position());
    polygon.points[i] = {p.x, p.y, p.z, w[i].s, w[i].t};
  }
}

bool CutToPicture(const Projection& projection, ViewPolygon& polygon, ViewPolygon& scratch) {
  CornerSides sides;
  for (const SplitPlane& edge : projection.frustum) {
    FindSides(polygon.points, polygon.count, edge, sides);
    if (sides.back == 0) continue;
    if (sides.front == 0) return false;
    const int count = CutCorners(polygon.points, polygon.count, edge, sides, scratch.points);
    // The largest windings lose a corner's sliver rather than outgrow what can be cut again.
    polygon.count = std::min(count, WINDING_MAX_POINTS);
    std::copy_n(scratch.points, polygon.count, polygon.points);
  }
  return polygon.count > 0;
}

bool CutExactly(const Projection& projection, ViewPolygon& polygon, ViewPolygon& scratch) {
  if (!CutHalf(polygon, scratch, [](const WindingPoint& p) { return p.z - kNearest; })) return false;
  for (const SplitPlane& edge : projection.frustum) {
    const double* n = edge.normal;
    if (!CutHalf(polygon, scratch,
                 [n](const WindingPoint& p) { return n[0] * p.x + n[1] * p.y + n[2] * p.z; })) {
      return false;
    }
  }
  return polygon.count > 2;
}

bool MakeOutline(const Projection& projection, const ViewPolygon& polygon, std::vector<Edge>& edges,
                 Outline& outline) {
  ScreenPolygon screen;
  ProjectAll(projection, polygon, screen, outline);
  int topCorner = 0;
  int bottom = screen.rows[0];
  for (int i = 1; i < screen.count; ++i) {
    if (screen.rows[i] < screen.rows[topCorner]) topCorner = i;
    bottom = std::max(bottom, screen.rows[i]);
  }
  outline.top = screen.rows[topCorner];
  outline.bottom = bottom;
  if (outline.top < 0 || bottom > projection.height || outline.top >= bottom) return false;
  outline.startEdges = std::uint32_t(edges.size());
  AppendSide(screen, topCorner, -1, bottom, edges);
  outline.endEdges = std::uint32_t(edges.size());
  AppendSide(screen, topCorner, 1, bottom, edges);
  return true;
}

}  // namespace velk
