#include "ops/flatten.h"

#include <vector>

#include "base/text.h"
#include "model/visit.h"
#include "ops/solids/solid.h"
#include "ops/transform.h"

namespace velk {
namespace {

constexpr size_t kMostNamed = 5;

bool RoundPoints(brush& b) {
  bool moved = false;
  for (face& f : b.editFaces()) {
    for (vec3& p : f.planepts) {
      for (int i = 0; i < 3; ++i) {
        const float whole = float(RoundHalfAway(p[i]));
        moved |= whole != p[i];
        p[i] = whole;
      }
    }
  }
  return moved;
}

enum class Flattening { Unchanged, Done, WouldBreak };

Flattening Flatten(brush& b) {
  const std::vector<face> before = b.faces();
  const int polygons = PolygonCount(b);
  if (!RoundPoints(b)) return Flattening::Unchanged;
  b.buildWindings();
  if (IsSolid(b) && PolygonCount(b) == polygons) return Flattening::Done;
  b.editFaces() = before;
  b.buildWindings();
  return Flattening::WouldBreak;
}

std::string Names(const map& m, const std::vector<brush*>& brushes) {
  std::string names;
  for (size_t i = 0; i < brushes.size() && i < kMostNamed; ++i) {
    const entity* owner = brushes[i]->owner;
    names += Format(kBrokenBrush, m.indexOf(owner), owner->indexOf(brushes[i]));
  }
  if (brushes.size() > kMostNamed) names += Format(kMoreBroken, int(brushes.size() - kMostNamed));
  return names;
}

}  // namespace

Outcome FlattenSelection(map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  int flattened = 0;
  std::vector<brush*> broken;
  VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
    const Flattening result = Flatten(b);
    flattened += result == Flattening::Done;
    if (result == Flattening::WouldBreak) broken.push_back(&b);
  });
  if (flattened > 0) m.modified = true;
  std::string status = Format(kFlattened, flattened);
  if (!broken.empty()) {
    status += kWouldBreak + Names(m, broken);
    VisitBrushes(m, BrushFilter::Every, [](brush& b) { b.select(false); });
    for (brush* b : broken) b->select();
  }
  return Outcome::Drawn(Redraw::All, status);
}

}  // namespace velk
