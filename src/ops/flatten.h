// Flatten to grid: whole numbers for the plane points of the selection, as a file holds them.
#pragma once

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kFlattened[] = "Flattened faces of %i brushes...";
inline constexpr char kWouldBreak[] = " would break:";  // added to that, with the brushes
inline constexpr char kBrokenBrush[] = " [e%i/b%i]";    // numbers of entity and brush, from 0
inline constexpr char kMoreBroken[] = " and %i more";   // after the first five

// Rounds every plane point of the selected brushes of visible groups. Brushes that would become invalid or
// lose a face stay as they are and are named; they stay alone selected, so that they can be mended.
Outcome FlattenSelection(map& m);

}  // namespace velk
