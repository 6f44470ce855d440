// The selected-brush window: what is selected, and the faces of the current brush.
#pragma once

#include <string>
#include <vector>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

// "[%i] Selected" and the bounds of the current brush; `m` none without a map.
std::string BrushReadout(map* m);

// One line a face of the current brush, columns parted by tabs; empty without one.
struct FaceLines {
  std::vector<std::string> lines;
  int current = -1;
};
FaceLines FacesOfCurrentBrush(map* m);

// Makes a face of the current brush the current one.
Outcome ChooseFace(map& m, int index);

}  // namespace velk
