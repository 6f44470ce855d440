// Merge: selected brushes that make up one convex solid become one brush.
#pragma once

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kMerged[] = "Merged %i brushes into %i...";
inline constexpr char kNothingToMerge[] = "Nothing to merge...";

// Of every entity: all selected brushes of visible groups when their union is convex, otherwise one pair
// after the other. A union keeps its faces' textures, takes group and place of its first brush and is
// selected. Boxes of point entities, and unions of more than 64 faces, are left alone.
Outcome MergeSelection(map& m);

}  // namespace velk
