// Finding a brush's corner under the mouse.
#pragma once

#include "model/brush.h"
#include "ops/view_axes.h"
#include "settings/settings.h"

namespace velk {

// How far from a corner a press may be: select_delta, at most half a grid step as the view shows it, at
// least 1. With careful tools never less than select_delta pixels of the view.
double VertexPickRadius(const Settings& settings);

// Whether a corner of the brush lies within `radius` (world units) of the point, by its coordinates on the
// two axes that a view of that orientation shows. The current face is asked first. An invalid brush has no
// corners.
bool pickVertex(const brush& b, const vec3& point, int orientation, double radius);

}  // namespace velk
