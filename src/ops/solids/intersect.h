// Intersect: what the selected brushes have in common.
#pragma once

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kIntersected[] = "Intersected %i brushes...";
inline constexpr char kNothingInCommon[] = "Selected brushes have nothing in common...";
inline constexpr char kMustHaveTwoSelected[] = "Must have at least two selected brushes...";

// Of the entity of the current brush: the selected brushes of visible groups give way to the part that lies
// in all of them. It keeps the textures of its faces, takes group and place of the first brush and is
// selected. When they have nothing in common nothing changes. More than 64 faces on the way are fatal
// "addFace: numfaces == MAX_FACES", and then nothing has been changed.
Outcome IntersectSelection(map& m);

}  // namespace velk
