#include "ops/solids/hollow.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "base/text.h"
#include "model/visit.h"
#include "ops/reshape.h"
#include "ops/solids/replace_brushes.h"
#include "ops/solids/solid.h"
#include "ops/solids/split_by_face.h"
#include "ops/transform.h"

namespace velk {
namespace {

// The face moved inward, its points on whole numbers.
face InnerFace(const face& f, int thickness) {
  face inner = f;
  for (vec3& p : inner.planepts) {
    for (int i = 0; i < 3; ++i) p[i] = float(RoundHalfAway(p[i] - double(thickness) * f.facePlane.normal[i]));
  }
  return inner;
}

// The walls of the shell; none when there is no room inside.
std::vector<std::unique_ptr<brush>> Walls(const brush& b, int thickness) {
  std::vector<std::unique_ptr<brush>> walls;
  if (!IsSolid(b) || b.numfaces() >= MAX_FACES) return walls;
  std::unique_ptr<brush> inside = FreshCopy(b);
  inside->buildWindings();
  for (const face& f : b.faces()) {
    if (!f.polygon) continue;
    SplitParts parts = splitByFace(InnerFace(f, thickness), *inside);
    if (!parts.back || !IsSolid(*parts.back)) return {};
    if (parts.front && IsSolid(*parts.front)) walls.push_back(std::move(parts.front));
    inside = std::move(parts.back);
  }
  return walls;
}

struct Shells {
  std::vector<Replacement> made;
  int tooThin = 0;  // brushes that leave no room inside
};

Shells ShellsOf(map& m, int thickness) {
  Shells shells;
  VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
    if (!b.owner->isModel) return;
    if (std::vector<std::unique_ptr<brush>> walls = Walls(b, thickness); !walls.empty()) {
      shells.made.push_back({&b, std::move(walls)});
    } else {
      ++shells.tooThin;
    }
  });
  return shells;
}

}  // namespace

Outcome HollowSelection(map& m, int thickness) {
  if (!IsWallThickness(thickness)) return Outcome::Said(kBadThickness);
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  Shells shells = ShellsOf(m, thickness);
  std::string status = Format(kHollowed, int(shells.made.size()));
  if (shells.tooThin > 0) status += Format(kTooThinToHollow, shells.tooThin);
  ReplaceBrushes(m, std::move(shells.made));
  return Outcome::Drawn(Redraw::All, status);
}

std::vector<std::unique_ptr<brush>> HollowWalls(map& m, int thickness) {
  std::vector<std::unique_ptr<brush>> walls;
  for (Replacement& shell : ShellsOf(m, thickness).made)
    std::ranges::move(shell.by, std::back_inserter(walls));
  return walls;
}

}  // namespace velk
