#include "ops/snap_to_grid.h"

#include <cmath>
#include <vector>

#include "base/text.h"
#include "model/visit.h"
#include "ops/solids/solid.h"

namespace velk {
namespace {

// The axis that the face's plane lies across; -1 for a slanted one.
int AxisOf(const face& f) {
  constexpr double kTolerance = 0.01;
  for (int axis = 0; axis < 3; ++axis) {
    if (std::fabs(std::fabs(double(f.facePlane.normal[axis])) - 1) < kTolerance) return axis;
  }
  return -1;
}

struct GridSnap {
  int gridsize;
  bool careful;

  float snapped(float at, bool upwards) const {
    const double outward = careful ? 0 : upwards ? gridsize / 2.0 : -gridsize / 2.0;
    return float(Snap(at + outward, gridsize));
  }

  // True when a point moved.
  bool snapFace(face& f) const {
    const int axis = AxisOf(f);
    if (axis < 0) return false;
    bool moved = false;
    for (vec3& p : f.planepts) {
      const float to = snapped(p[axis], f.facePlane.normal[axis] > 0);
      moved |= to != p[axis];
      p[axis] = to;
    }
    return moved;
  }

  bool snapBrush(brush& b) const {
    bool moved = false;
    for (face& f : b.editFaces()) moved |= snapFace(f);
    if (moved) b.buildWindings();
    return moved;
  }
};

}  // namespace

Outcome SnapSelectionToGrid(map& m, bool careful) {
  const GridSnap grid{m.settings().gridsize, careful};
  int kept = 0;
  std::vector<face> before;
  m.modified = true;
  VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
    if (!b.owner->isModel) return;
    if (careful) before = b.faces();
    if (!grid.snapBrush(b) || (careful ? IsSolid(b) : !b.invalid)) return;
    if (!careful) return DestroyBrush(b);
    b.editFaces() = before;
    b.buildWindings();
    ++kept;
  });
  return Outcome::Drawn(Redraw::All, kSnapped + (kept > 0 ? Format(kTooThinToSnap, kept) : std::string()));
}

}  // namespace velk
