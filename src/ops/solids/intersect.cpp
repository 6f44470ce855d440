#include "ops/solids/intersect.h"

#include <memory>
#include <utility>
#include <vector>

#include "base/text.h"
#include "ops/solids/replace_brushes.h"
#include "ops/solids/solid.h"
#include "ops/solids/split_by_face.h"

namespace velk {
namespace {

std::vector<brush*> SelectedTogether(map& m) {
  std::vector<brush*> selected;
  const brush* current = m.firstSelected();
  if (!current || !current->owner->isModel) return selected;
  for (brush& b : current->owner->brushes()) {
    if (b.selected() && m.passesGroupFilter(b)) selected.push_back(&b);
  }
  return selected;
}

// None when they have nothing in common.
std::unique_ptr<brush> CommonPart(const std::vector<brush*>& brushes) {
  std::unique_ptr<brush> common = FreshCopy(*brushes.front());
  common->buildWindings();
  for (const brush* b : brushes) {
    AddFaces(*common, *b);
    common->buildWindings();
    DropEmptyFaces(*common);
    if (!IsSolid(*b) || !IsSolid(*common)) return nullptr;
  }
  return common;
}

}  // namespace

Outcome IntersectSelection(map& m) {
  const std::vector<brush*> brushes = SelectedTogether(m);
  if (brushes.size() < 2) return Outcome::Said(kMustHaveTwoSelected);
  std::unique_ptr<brush> common = CommonPart(brushes);
  if (!common) return Outcome::Said(kNothingInCommon);
  std::vector<Replacement> changes;
  for (brush* b : brushes) changes.push_back({b, {}});
  changes.front().by.push_back(std::move(common));
  ReplaceBrushes(m, std::move(changes));
  return Outcome::Drawn(Redraw::All, Format(kIntersected, int(brushes.size())));
}

}  // namespace velk
