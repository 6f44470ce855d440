#include "commands/editing/hit_commands.h"

#include "base/text.h"

namespace velk {
namespace {

// The current hit brush gets back the selection it had; the one `step` further is selected.
Outcome CycleHit(map& m, int step, const char* text) {
  HitList& hits = m.hits;
  if (hits.current >= 0 && hits.current < hits.count) {
    const auto old = static_cast<size_t>(hits.current);
    hits.brushes[old]->select(hits.saved[old]);
    hits.current = (hits.current + step + hits.count) % hits.count;
    hits.brushes[static_cast<size_t>(hits.current)]->select(true);
  }
  return Outcome::Drawn(Redraw::All, text);
}

}  // namespace

Outcome ToggleHitBrush(Editor&, map& m, int number) {
  if (number < m.hits.count) {
    brush& hit = *m.hits.brushes[static_cast<size_t>(number)];
    hit.select(!hit.selected());
  }
  m.hits.current = number;
  return Outcome::Drawn(Redraw::All, Format("Selecting hit brush # %i...", number));
}

Outcome SelectAllHits(Editor&, map& m) {
  for (int i = 0; i < m.hits.count; ++i) m.hits.brushes[static_cast<size_t>(i)]->select(true);
  return Outcome::Drawn(Redraw::All, "Selecting all hit brushes...");
}

Outcome NextHit(Editor&, map& m) { return CycleHit(m, 1, "Hit brush cycled up..."); }

Outcome PreviousHit(Editor&, map& m) { return CycleHit(m, -1, "Hit brush cycled down..."); }

}  // namespace velk
