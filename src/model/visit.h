// Visiting the brushes of a map.
#pragma once

#include "model/map.h"

namespace velk {

// Which brushes are visited. All but Every leave out what the group filter leaves out.
enum class BrushFilter { Unselected, Selected, Visible, Every };

inline bool Takes(BrushFilter filter, const map& m, const brush& b) {
  if (filter == BrushFilter::Every) return true;
  const bool bySelection =
      filter == BrushFilter::Visible || b.selected() == (filter == BrushFilter::Selected);
  return bySelection && m.passesGroupFilter(b);
}

// Calls `callback` with every brush that the filter takes, from the last entity to the first and within each
// from the last brush to the first. It may destroy the brush it is given or move it elsewhere; its entity may
// go with it. The map is not marked modified.
template <typename Callback>
void VisitBrushes(map& m, BrushFilter filter, Callback&& callback) {
  for (int i = m.numentities() - 1; i >= 0; --i) {
    const entity* e = m.at(i);
    // Once the entity is gone another one stands at i, or none.
    for (int k = e->numbrushes() - 1; k >= 0 && m.at(i) == e; --k) {
      if (brush& b = *e->at(k); Takes(filter, m, b)) callback(b);
    }
  }
}

}  // namespace velk
