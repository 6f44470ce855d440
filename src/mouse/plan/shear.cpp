#include "mouse/plan/shear.h"

#include <array>
#include <cmath>
#include <optional>

#include "base/text.h"
#include "mouse/plan/point_drag.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr PointDragKind kKind{kShearCode, "Shear Face", true};
constexpr double kReach = 2048;
constexpr double kBeforeHit = 0.01;
constexpr double kOnPlane = 0.1;

// The point just before where the ray meets the brush. A ray that misses gives its middle, or with careful
// tools the depth of the brush's middle.
vec3 PointBefore(const MouseContext& context, const brush& b, ViewPoint at) {
  const PlanView& view = context.plan();
  const int axis = view.axisDepth;
  const PickRay ray = RayAt(view, at, kReach);
  const double t = b.invalid ? -1 : b.hitByRay(ray.start, ray.end).t;
  if (t >= 0) return InWorld(view, at, ray.start[axis] + (t - kBeforeHit) * view.viewNormal[axis]);
  if (!context.settings.careful_tools) return InWorld(view, at, 0);
  return InWorld(view, at, (double(b.mins[axis]) + b.maxs[axis]) / 2);
}

std::vector<int> MovingFaces(const brush& b, const vec3& at) {
  std::vector<int> moving;
  for (int i = 0; i < b.numfaces(); ++i) {
    const plane& p = b.faces()[static_cast<size_t>(i)].facePlane;
    if (dot(p.normal, at) - p.dist >= -kOnPlane) moving.push_back(i);
  }
  return moving;
}

// Which corners of a face lie on moving planes other than its own.
struct Marks {
  std::array<bool, WINDING_MAX_POINTS> marked{};
  int count = 0;
};

bool LiesOnMoving(const brush& b, const std::vector<int>& moving, int own, const vec3& corner) {
  for (const int i : moving) {
    const plane& p = b.faces()[static_cast<size_t>(i)].facePlane;
    if (i != own && std::fabs(dot(p.normal, corner) - p.dist) <= kOnPlane) return true;
  }
  return false;
}

Marks MarkCorners(const brush& b, const std::vector<int>& moving, int own, const winding& w) {
  Marks marks;
  for (int i = 0; i < w.count; ++i) {
    const bool marked = LiesOnMoving(b, moving, own, w[i].position());
    marks.marked[static_cast<size_t>(i)] = marked;
    marks.count += marked ? 1 : 0;
  }
  return marks;
}

// The marked corner that begins a run of as many as are dragged; -1 for none.
int FirstOfRun(const Marks& marks, int count, int run) {
  for (int j = 0; j < count; ++j) {
    bool all = true;
    for (int k = 0; k < run; ++k) all = all && marks.marked[static_cast<size_t>((j + k) % count)];
    if (all) return j;
  }
  return -1;
}

struct ShearedFace {
  int face = 0;
  int dragged = 0;  // so many of the points, from the first
  vec3 points[3];
};

// The face by other plane points: first those that are dragged, then corners that stay. None when there are
// too few.
std::optional<ShearedFace> Sheared(int number, const winding& w, const Marks& marks) {
  ShearedFace made{number, marks.count >= 3 ? (marks.count == 3 ? 3 : 2) : marks.count, {}};
  const int first = FirstOfRun(marks, w.count, made.dragged);
  if (first < 0) return std::nullopt;
  int filled = 0;
  for (; filled < made.dragged; ++filled) made.points[filled] = w[(first + filled) % w.count].position();
  for (int k = 0; k < w.count && filled < 3; ++k) {
    const int corner = (first + k) % w.count;
    if (!marks.marked[static_cast<size_t>(corner)]) made.points[filled++] = w[corner].position();
  }
  if (filled < 3) return std::nullopt;
  return made;
}

// What a shear does to the faces; none when one of them has too few corners.
std::optional<std::vector<ShearedFace>> ShearedFaces(const brush& b, const std::vector<int>& moving) {
  std::vector<ShearedFace> sheared;
  std::array<bool, MAX_FACES> moves{};
  for (const int i : moving) moves[static_cast<size_t>(i)] = true;
  for (int i = 0; i < b.numfaces(); ++i) {
    const winding* w = b.faces()[static_cast<size_t>(i)].polygon;
    if (!w || moves[static_cast<size_t>(i)] != (moving.size() >= 2)) continue;
    const Marks marks = MarkCorners(b, moving, i, *w);
    if (marks.count == 0) continue;
    const std::optional<ShearedFace> made = Sheared(i, *w, marks);
    if (!made) return std::nullopt;
    sheared.push_back(*made);
  }
  return sheared;
}

void Apply(brush& b, const ShearedFace& sheared, std::vector<PlanePoint>& points) {
  face& f = b.editFaces()[static_cast<size_t>(sheared.face)];
  for (int i = 0; i < 3; ++i) {
    for (int axis = 0; axis < 3; ++axis) {
      f.planepts[i][axis] = float(RoundHalfAway(sheared.points[i][axis]));
    }
    if (i < sheared.dragged) points.push_back({sheared.face, i});
  }
}

}  // namespace

ToolStart StartShear(const MouseContext& context, const PointerEvent& event) {
  brush* b = OnlyShownSelected(context.model);
  if (!b) return {};
  const std::vector<int> moving = MovingFaces(*b, PointBefore(context, *b, PointUnder(context, event)));
  const auto sheared = ShearedFaces(*b, moving);
  if (!sheared || (moving.size() != 1 && sheared->empty())) return {};
  BeginPointDrag(context, kKind);
  std::vector<PlanePoint> points;
  if (moving.size() == 1) AddFacePoints(points, moving.front());
  for (const ShearedFace& face : *sheared) Apply(*b, face, points);
  return DragPoints(*b, std::move(points), kKind);
}

}  // namespace velk
