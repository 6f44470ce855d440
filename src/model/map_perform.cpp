// The dispatchers, which apply a brush method to a class of brushes.
#include "base/error.h"
#include "model/map.h"
#include "model/visit.h"

namespace velk {
namespace {

void Dispatch(map& m, BrushFilter filter, const BrushMethod& method, const char* dispatcher) {
  if (!method.isKnown()) Error("%s Unknown method...", dispatcher);
  m.modified = true;
  // SetHidden: the view filter is asked wherever brushes are shown, so that there is nothing to set.
  VisitBrushes(m, filter, method);
}

}  // namespace

void map::MUSPerform(const BrushMethod& method) {
  Dispatch(*this, BrushFilter::Unselected, method, "MUSPerform");
}

void map::MSPerform(const BrushMethod& method) {
  Dispatch(*this, BrushFilter::Selected, method, "MSPerform");
}

void map::MAPerform(const BrushMethod& method) { Dispatch(*this, BrushFilter::Visible, method, "MAPerform"); }

void map::MGPerform(const BrushMethod& method) { Dispatch(*this, BrushFilter::Every, method, "MGPerform"); }

}  // namespace velk
