// Visiting the brushes of a map, until the model does it.
#pragma once

#include "model/map.h"

#if __has_include("model/visit.h")
#include "model/visit.h"
#else

namespace velk {

enum class BrushFilter { Unselected, Selected, Visible, Every };

inline bool Takes(BrushFilter filter, const map& m, const brush& b) {
  if (filter == BrushFilter::Every) return true;
  return (filter == BrushFilter::Visible || b.selected() == (filter == BrushFilter::Selected)) &&
         m.passesGroupFilter(b);
}

// From the last entity to the first and within each from the last brush to the first; the callback may
// destroy its brush.
template <typename Callback>
void VisitBrushes(map& m, BrushFilter filter, Callback&& callback) {
  for (int i = m.numentities() - 1; i >= 0; --i) {
    const entity* e = m.at(i);
    for (int k = e->numbrushes() - 1; k >= 0 && m.at(i) == e; --k) {
      if (brush& b = *e->at(k); Takes(filter, m, b)) callback(b);
    }
  }
}

}  // namespace velk

#endif
