#include "ops/move_selection.h"

#include "model/visit.h"
#include "ops/clipboard.h"
#include "ops/solids/split_by_face.h"
#include "ops/transform.h"

namespace velk {

void MoveSelection(map& m, const vec3& offset) {
  m.modified = true;
  VisitBrushes(m, BrushFilter::Selected, [&](brush& b) { b.translate(offset); });
}

Outcome CopyMoveSelection(map& m, const vec3& offset, bool moveOnly) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  if (moveOnly) {
    MoveSelection(m, offset);
    return Outcome::Drawn(Redraw::All, kMovedSelection);
  }
  CloneSelection(m, offset);
  return Outcome::Drawn(Redraw::All, kCopiedSelection);
}

std::vector<std::unique_ptr<brush>> MovedCopies(map& m, const vec3& offset, bool moveOnly) {
  std::vector<std::unique_ptr<brush>> copies;
  for (const entity& e : m.entities()) {
    const bool whole = !moveOnly && !e.isWorld() && AnySelected(e);
    for (const brush& b : e.brushes()) {
      if (!whole && !(b.selected() && (!moveOnly || m.passesGroupFilter(b)))) continue;
      copies.push_back(FreshCopy(b));
      copies.back()->translate(offset);
    }
  }
  return copies;
}

Outcome DeleteSelection(map& m) {
  m.modified = true;
  VisitBrushes(m, BrushFilter::Selected, [](brush& b) { DestroyBrush(b); });
  return Outcome::Drawn(Redraw::All, kDeleting);
}

}  // namespace velk
