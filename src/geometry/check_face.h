// Whether polygons are acceptable as faces.
#pragma once

#include "geometry/check_face.h"
#include "geometry/face.h"

namespace velk {

// True when the face's winding is acceptable: corners within COORD_LIMIT, on the face's plane, edges not
// shorter than SIDE_EPSILON. Fatal: "CheckFace: no winding", "CheckFace: %i points",
// "CheckFace: non-convex".
bool CheckFace(const face& f);

}  // namespace velk
