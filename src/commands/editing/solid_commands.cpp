#include "commands/editing/solid_commands.h"

#include "commands/making/maker_commands.h"
#include "ops/flatten.h"
#include "ops/solids/hollow.h"
#include "ops/solids/intersect.h"
#include "ops/solids/merge.h"
#include "ops/transform.h"

namespace velk {

Outcome Hollow(Editor& editor, map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  const auto thickness = WallThickness(editor, [&m](int wanted) { return HollowWalls(m, wanted); });
  return thickness ? HollowSelection(m, *thickness) : Outcome{};
}

Outcome Merge(Editor&, map& m) { return MergeSelection(m); }

Outcome Intersect(Editor&, map& m) { return IntersectSelection(m); }

Outcome Flatten(Editor&, map& m) { return FlattenSelection(m); }

Outcome Align(Editor&, map& m, Alignment to) { return AlignSelection(m, to); }

}  // namespace velk
