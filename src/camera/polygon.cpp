#include "camera/polygon.h"

#include <algorithm>
#include <cmath>

namespace velk {

namespace {

enum class Side : signed char { Back = -1, On = 0, Front = 1 };

struct Sides {
  double distance[ViewPolygon::kCapacity + 1];
  Side side[ViewPolygon::kCapacity + 1];
  bool anyFront = false;
  bool anyBack = false;
};

void Classify(const ViewPolygon& polygon, const plane& split, Sides& sides) {
  for (int i = 0; i < polygon.count; ++i) {
    const double d = dot(polygon.points[i].position(), split.normal) - split.dist;
    sides.distance[i] = d;
    sides.side[i] = d > SIDE_EPSILON ? Side::Front : (d < -SIDE_EPSILON ? Side::Back : Side::On);
    sides.anyFront |= sides.side[i] == Side::Front;
    sides.anyBack |= sides.side[i] == Side::Back;
  }
  sides.distance[polygon.count] = sides.distance[0];
  sides.side[polygon.count] = sides.side[0];
}

WindingPoint Between(const WindingPoint& a, const WindingPoint& b, double f) {
  const auto mix = [f](float from, float to) { return float(from + f * (double(to) - from)); };
  return {mix(a.x, b.x), mix(a.y, b.y), mix(a.z, b.z), mix(a.s, b.s), mix(a.t, b.t)};
}

// The part in front of the plane, of a polygon with corners on both sides.
void CutInto(const ViewPolygon& polygon, const Sides& sides, ViewPolygon& part) {
  part.count = 0;
  for (int i = 0; i < polygon.count; ++i) {
    if (part.count + 2 > ViewPolygon::kCapacity) return;
    const WindingPoint& corner = polygon.points[i];
    if (sides.side[i] != Side::Back) part.points[part.count++] = corner;
    if (sides.side[i] == Side::On) continue;
    if (sides.side[i + 1] == Side::On || sides.side[i + 1] == sides.side[i]) continue;
    const double f = sides.distance[i] / (sides.distance[i] - sides.distance[i + 1]);
    part.points[part.count++] = Between(corner, polygon.points[(i + 1) % polygon.count], f);
  }
}

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

}  // namespace

void MoveToView(const Eye& eye, const winding& w, ViewPolygon& polygon) {
  polygon.count = w.count;
  for (int i = 0; i < w.count; ++i) {
    const vec3 p = ToView(eye, w[i].position());
    polygon.points[i] = {p.x, p.y, p.z, w[i].s, w[i].t};
  }
}

bool CutToPicture(const Projection& projection, ViewPolygon& polygon, ViewPolygon& scratch) {
  Sides sides;
  for (const plane& edge : projection.frustum) {
    sides.anyFront = sides.anyBack = false;
    Classify(polygon, edge, sides);
    if (!sides.anyBack) continue;
    if (!sides.anyFront) return false;
    CutInto(polygon, sides, scratch);
    polygon.count = scratch.count;
    std::copy_n(scratch.points, scratch.count, polygon.points);
  }
  return polygon.count > 0;
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
