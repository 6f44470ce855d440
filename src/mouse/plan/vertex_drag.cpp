#include "mouse/plan/vertex_drag.h"

#include <cmath>
#include <optional>

#include "base/text.h"
#include "mouse/plan/point_drag.h"
#include "mouse/view_ray.h"
#include "ops/pick_vertex.h"

namespace velk {
namespace {

constexpr double kSameCorner = 0.1;

struct Corner {
  vec3 at;
  int face = -1;
  double distance = 0;
};

// The corner of the face nearest to the point as the view shows it, within the radius.
std::optional<Corner> NearestOf(const brush& b, int number, const PlanView& view, ViewPoint at,
                                double radius) {
  const winding* w = b.faces()[static_cast<size_t>(number)].polygon;
  if (!w) return std::nullopt;
  std::optional<Corner> nearest;
  for (const WindingPoint& p : *w) {
    const double distance = std::hypot(p[view.axisU] - at.u, p[view.axisV] - at.v);
    if (distance > radius || (nearest && distance >= nearest->distance)) continue;
    nearest = Corner{p.position(), number, distance};
  }
  return nearest;
}

// The current face's corner comes first; among others at one distance that of the face that looks most along
// the view's axis.
std::optional<Corner> FindCorner(const brush& b, const PlanView& view, ViewPoint at, double radius) {
  if (b.faces().empty()) return std::nullopt;
  std::optional<Corner> best = NearestOf(b, b.currentFace(), view, at, radius);
  if (best) return best;
  const auto depth = [&](int i) {
    return b.faces()[static_cast<size_t>(i)].facePlane.normal[view.axisDepth];
  };
  for (int i = 0; i < b.numfaces(); ++i) {
    const std::optional<Corner> found = NearestOf(b, i, view, at, radius);
    if (!found) continue;
    if (!best || found->distance < best->distance ||
        (found->distance == best->distance && depth(i) > depth(best->face))) {
      best = found;
    }
  }
  return best;
}

struct TouchingFace {
  int face = 0;
  int corner = 0;  // of its polygon
};

std::vector<TouchingFace> FacesAt(const brush& b, const vec3& corner) {
  std::vector<TouchingFace> touching;
  for (int i = 0; i < b.numfaces(); ++i) {
    const winding* w = b.faces()[static_cast<size_t>(i)].polygon;
    for (int k = 0; w && k < w->count; ++k) {
      if (length(subtract((*w)[k].position(), corner)) > kSameCorner) continue;
      touching.push_back({i, k});
      break;
    }
  }
  return touching;
}

int NearestPlanePoint(const face& f, const vec3& to) {
  int nearest = 0;
  for (int i = 1; i < 3; ++i) {
    if (length(subtract(f.planepts[i], to)) < length(subtract(f.planepts[nearest], to))) nearest = i;
  }
  return nearest;
}

// At that distance from `from` on the way to `to`.
vec3 Along(const vec3& from, const vec3& to, double distance) {
  vec3 way = subtract(to, from);
  normalize(way);
  return MultiplyAdd(from, distance, way);
}

// The face by the corner and its neighbours, so that it can lean with the corner alone.
PlanePoint TakeCorner(brush& b, const TouchingFace& at, const vec3& corner, const Settings& settings) {
  face& f = b.editFaces()[static_cast<size_t>(at.face)];
  const winding& w = *f.polygon;
  const vec3 here = w[at.corner].position();
  vec3 before = w[(at.corner + w.count - 1) % w.count].position();
  vec3 after = w[(at.corner + 1) % w.count].position();
  if (settings.drag_vertex == 1) {
    const double distance = double(settings.vertex_drag_sensitivity) * settings.gridsize;
    before = Along(here, before, distance);
    after = Along(here, after, distance);
  }
  const int c = NearestPlanePoint(f, corner);
  f.planepts[(c + 2) % 3] = before;
  f.planepts[c] = here;
  f.planepts[(c + 1) % 3] = after;
  for (vec3& p : f.planepts) {
    for (int axis = 0; axis < 3; ++axis) p[axis] = float(RoundHalfAway(p[axis]));
  }
  return {at.face, c};
}

}  // namespace

ToolStart StartVertexDrag(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  const Settings& settings = context.settings;
  if (settings.drag_vertex == 0) return start;
  start.outcome.status = "Searching for vertex...";
  brush* b = OnlyShownSelected(context.model);
  if (!b) return start;
  const PointDragKind kind{kVertexDragCode, "Manipulate Vertex", settings.vertex_use_grid};
  BeginPointDrag(context, kind);
  const auto corner = FindCorner(*b, context.plan(), PointUnder(context, event), VertexPickRadius(settings));
  if (!corner) return start;
  b->setCurrentFace(corner->face);
  const std::vector<TouchingFace> touching = FacesAt(*b, corner->at);
  if (touching.size() <= 2) return start;
  std::vector<PlanePoint> points;
  for (const TouchingFace& at : touching) points.push_back(TakeCorner(*b, at, corner->at, settings));
  std::string status = std::move(start.outcome.status);
  start = DragPoints(*b, std::move(points), kind);
  start.outcome.status = std::move(status);
  return start;
}

}  // namespace velk
