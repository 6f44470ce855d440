#include "ops/select_shown.h"

#include <algorithm>
#include <cmath>

#include "model/visit.h"

namespace velk {
namespace {

struct Met {
  brush* b = nullptr;
  double t = 0;
  bool world = false;
};

// New brushes get the depth of what was deselected last.
void DeselectAll(map& m) {
  VisitBrushes(m, BrushFilter::Every, [](brush& b) {
    if (b.selected()) b.deselect();
  });
}

bool LiesIn(const brush& b, const ViewRectangle& r) {
  return b.mins[r.axes.u] >= r.lowU && b.maxs[r.axes.u] <= r.highU && b.mins[r.axes.v] >= r.lowV &&
         b.maxs[r.axes.v] <= r.highV;
}

bool BoundsTouch(const brush& b, const ViewRectangle& r) {
  return b.maxs[r.axes.u] >= r.lowU && b.mins[r.axes.u] <= r.highU && b.maxs[r.axes.v] >= r.lowV &&
         b.mins[r.axes.v] <= r.highV;
}

// Whether the rectangle lies wholly outside the line through an edge of the polygon, which lies inside.
bool PartedBy(const WindingPoint& from, const WindingPoint& to, double turn, const ViewRectangle& r) {
  const double du = double(to[r.axes.u]) - from[r.axes.u];
  const double dv = double(to[r.axes.v]) - from[r.axes.v];
  const auto outside = [&](double u, double v) {
    return (du * (v - from[r.axes.v]) - dv * (u - from[r.axes.u])) * turn < 0;
  };
  return outside(r.lowU, r.lowV) && outside(r.highU, r.lowV) && outside(r.lowU, r.highV) &&
         outside(r.highU, r.highV);
}

// Twice the area that the view shows of the polygon, positive when its corners go counter-clockwise.
double ShownArea(const winding& w, const ViewAxes& axes) {
  double area = 0;
  for (int i = 0; i < w.count; ++i) {
    const WindingPoint& a = w[i];
    const WindingPoint& b = w[(i + 1) % w.count];
    area += double(a[axes.u]) * b[axes.v] - double(b[axes.u]) * a[axes.v];
  }
  return area;
}

bool FaceTouches(const winding& w, const ViewRectangle& r) {
  const double area = ShownArea(w, r.axes);
  if (area == 0) return false;
  for (int i = 0; i < w.count; ++i) {
    if (PartedBy(w[i], w[(i + 1) % w.count], area, r)) return false;
  }
  return true;
}

// A view shows every brush by faces that it does not look along.
bool Touches(const brush& b, const ViewRectangle& r) {
  if (!BoundsTouch(b, r)) return false;
  if (LiesIn(b, r)) return true;
  return std::ranges::any_of(b.faces(),
                             [&](const face& f) { return f.polygon && FaceTouches(*f.polygon, r); });
}

}  // namespace

std::vector<brush*> LookAlongRay(const map& m, const vec3& start, const vec3& end, bool entitiesFirst) {
  std::vector<Met> met;
  for (int i = m.numentities() - 1; i >= 0; --i) {
    for (brush& b : m.at(i)->brushes()) {
      if (!CanBeHit(m, b)) continue;
      const double t = b.hitByRay(start, end).t;
      if (t >= 0) met.push_back({&b, t, i == 0 && entitiesFirst});
    }
  }
  // Of equally near ones the later comes first.
  std::reverse(met.begin(), met.end());
  std::ranges::stable_sort(
      met, [](const Met& a, const Met& b) { return a.world != b.world ? b.world : a.t < b.t; });
  std::vector<brush*> brushes;
  for (const Met& each : met) brushes.push_back(each.b);
  return brushes;
}

void SelectOnly(map& m, brush* b) {
  DeselectAll(m);
  if (b) b->select(true);
  entity* current = b ? b->owner : m.world();
  if (current != m.currentEntity()) m.setCurrentEntity(current);
}

void AddOrRemove(map& m, brush& b) {
  if (b.selected()) return b.deselect();
  b.select(true);
  if (b.owner != m.currentEntity()) m.setCurrentEntity(b.owner);
}

int SelectInRectangle(map& m, const ViewRectangle& rectangle, bool touching, bool add) {
  if (!add) DeselectAll(m);
  int count = 0;
  entity* last = nullptr;
  VisitBrushes(m, BrushFilter::Visible, [&](brush& b) {
    if (!CanBeHit(m, b) || !(touching ? Touches(b, rectangle) : LiesIn(b, rectangle))) return;
    b.select(true);
    last = b.owner;
    ++count;
  });
  if (last && m.selectedCount() == 0) m.setCurrentEntity(last);
  return count;
}

}  // namespace velk
