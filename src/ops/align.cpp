#include "ops/align.h"

#include "base/text.h"
#include "model/visit.h"
#include "ops/transform.h"

namespace velk {
namespace {

constexpr float kNoBound = 32767;

struct Bounds {
  vec3 mins{kNoBound, kNoBound, kNoBound};
  vec3 maxs{-kNoBound, -kNoBound, -kNoBound};
};

float WholePart(double offset) { return float(RoundHalfAway(offset)); }

vec3 OffsetTo(Alignment to, const brush& b, const Bounds& all) {
  vec3 offset;
  if (to == Alignment::Centre) {
    for (int i = 0; i < 3; ++i) {
      offset[i] = WholePart((double(all.mins[i]) + all.maxs[i] - b.mins[i] - b.maxs[i]) / 2);
    }
    return offset;
  }
  const int side = static_cast<int>(to);
  const int axis = side / 2;
  offset[axis] = side % 2 == 0 ? WholePart(double(all.mins[axis]) - b.mins[axis])
                               : WholePart(double(all.maxs[axis]) - b.maxs[axis]);
  return offset;
}

}  // namespace

Outcome AlignSelection(map& m, Alignment to) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  Bounds all;
  VisitBrushes(m, BrushFilter::Selected, [&](const brush& b) {
    if (!b.invalid) WidenBounds(all.mins, all.maxs, b);
  });
  m.modified = true;
  VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
    if (!b.invalid) b.translate(OffsetTo(to, b, all));
  });
  return Outcome::Drawn(Redraw::All, kAligned[static_cast<int>(to)]);
}

}  // namespace velk
