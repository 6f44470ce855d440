// What a maker makes: brushes that have no place in a map yet, to be put into one or to be shown as they
// are.
#pragma once

#include <memory>
#include <vector>

#include "model/brush.h"

namespace velk {

struct Made {
  std::vector<std::unique_ptr<brush>> brushes;  // in their order, without owner and colour
  int leftOut = 0;                              // pieces that came out invalid or, made with care, not solid
  bool tooMany = false;                         // the maker stopped beyond what an entity can hold
};

// The settings that bear on making.
struct MakerRules {
  int gridsize = 8;      // world units, at least 1
  bool careful = false;  // pieces must be solid, in whole units, and meet; see each maker
};

}  // namespace velk
