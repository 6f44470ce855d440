// The part of a map's check that looks at entities and their keys.
#pragma once

#include <vector>

#include "build/check_map.h"

namespace velk {

// Unknown classes, entities without brushes or outside the world, no player start, targets that lead nowhere
// and names that nobody targets, keys twice, and lengths and counts near their limits, those of groups and
// wads too.
void CheckEntities(map& m, std::vector<CheckFinding>& findings);

}  // namespace velk
