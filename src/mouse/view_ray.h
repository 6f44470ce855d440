// Where a press in a plan view points: its point, the ray through it along the view, and angles in the view.
#pragma once

#include "mouse/drag.h"
#include "ops/view_axes.h"

namespace velk {

struct PickRay {
  vec3 start;
  vec3 end;
};

// World units, off the grid.
inline ViewPoint PointUnder(const MouseContext& context, const PointerEvent& event) {
  return context.projection().screenToWorld(event.at);
}
ViewAxes AxesOf(const PlanView& view);
vec3 InWorld(const PlanView& view, ViewPoint at, double depth);
// Through the whole of the map, or `reach` to both sides of 0; it runs the way that the view looks.
PickRay RayAt(const PlanView& view, ViewPoint at, double reach = 4096);

// Of the direction (x, y): radians from -pi/2 to 3*pi/2, 0 along x, rising towards y.
double DirectionAngle(double x, double y);
// The same in degrees.
double DirectionDegrees(double x, double y);

}  // namespace velk
