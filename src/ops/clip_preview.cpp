#include "ops/clip_preview.h"

#include <algorithm>
#include <cmath>

#include "base/error.h"
#include "ops/clip.h"

namespace velk {
namespace {

// The distances from the plane between which the brush's bounds lie.
struct Reach {
  double nearest = 0;
  double farthest = 0;
};

Reach ReachOf(const brush& b, const plane& p) {
  Reach reach{-p.dist, -p.dist};
  for (int axis = 0; axis < 3; ++axis) {
    const double low = double(b.mins[axis]) * p.normal[axis];
    const double high = double(b.maxs[axis]) * p.normal[axis];
    reach.nearest += std::min(low, high);
    reach.farthest += std::max(low, high);
  }
  return reach;
}

void CopyShape(const brush& from, brush& to) {
  to.owner = from.owner;
  to.select();
  to.setGroup(from.group());
  to.setColor(from.color());
  to.editFaces() = from.faces();
  to.setCurrentFace(from.currentFace());
}

}  // namespace

void ClipPreview::begin(const map& m, int depthAxis, bool careful) {
  std::optional<face> made = makeClipFace(m.clip, depthAxis);
  const bool usable =
      made && PlaneFromPoints(made->planepts[0], made->planepts[1], made->planepts[2], made->facePlane);
  map_ = usable ? &m : nullptr;
  careful_ = careful;
  if (usable) clipFace_ = std::move(*made);
}

// What the clipper does not touch, or could not cut.
bool ClipPreview::leaves(const brush& b) const {
  if (!map_ || &b == &scratch_ || !b.selected() || !map_->passesGroupFilter(b)) return true;
  return b.invalid || b.numfaces() >= MAX_FACES || (careful_ && !b.owner->isModel);
}

const brush* ClipPreview::of(const brush& b) {
  if (leaves(b)) return &b;
  const Reach reach = ReachOf(b, clipFace_.facePlane);
  if (reach.farthest < -SIDE_EPSILON) return &b;
  if (reach.nearest > SIDE_EPSILON) return nullptr;
  return cut(b);
}

// A shape that cannot be built is Carve's to report, not a picture's.
const brush* ClipPreview::cut(const brush& b) {
  const ErrorTrap trap;
  try {
    CopyShape(b, scratch_);
    cutBrush(scratch_, clipFace_);
  } catch (const TrappedError&) {
    return &b;
  }
  return scratch_.invalid ? nullptr : &scratch_;
}

}  // namespace velk
