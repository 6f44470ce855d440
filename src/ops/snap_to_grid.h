// Putting the selection onto the grid.
#pragma once

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kSnapped[] = "Made selected snap to grid...";
// Of careful tools, added to that: how many brushes stay as they are.
inline constexpr char kTooThinToSnap[] = " %i too thin";

// Moves the axial faces of the selected brushes of visible groups onto grid lines; boxes of point entities
// and slanted faces stay. A face goes outward, even from a line to the next one; a brush that comes out
// invalid is destroyed. Careful: a face goes to the nearest line, and a brush of which nothing would be left
// stays as it is.
Outcome SnapSelectionToGrid(map& m, bool careful);

}  // namespace velk
