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

// Whether the polygons leave no gap: each edge of one is an edge of another, too.
bool IsClosed(const brush& b);

// The volume over the area of the largest polygon: how thick a sliver is.
double Thickness(const brush& b);

// Takes out the faces without polygon.
void DropEmptyFaces(brush& b);

// Adds the faces of `from` that have polygons and lie in no plane that is there already; `to` must be
// rebuilt.
void AddFaces(brush& to, const brush& from);

}  // namespace velk
