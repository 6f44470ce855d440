// Whether a brush is a real solid, and how large it is.
#pragma once

#include "model/brush.h"

namespace velk {

// True when the brush is valid, at least four of its faces have polygons and its bounds have an extent on
// every axis. A brush that was pressed flat counts as valid, but is no solid.
bool IsSolid(const brush& b);

int PolygonCount(const brush& b);

// Of a solid brush, in cubic units.
double Volume(const brush& b);

}  // namespace velk
