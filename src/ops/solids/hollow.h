// Hollow: the selected brushes become shells.
#pragma once

#include <memory>
#include <vector>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kHollowed[] = "Hollowed %i brushes...";
inline constexpr char kTooThinToHollow[] = " %i too thin";  // added to that

// Puts walls of that thickness (world units, kThinnestWall to kThickestWall; otherwise it says so)
// inside the selected brushes of visible groups, in place of them, selected. Brushes that leave no room
// inside, and boxes of point entities, stay as they are.
Outcome HollowSelection(map& m, int thickness);
// The walls that it would put there, in no list.
std::vector<std::unique_ptr<brush>> HollowWalls(map& m, int thickness);

}  // namespace velk
