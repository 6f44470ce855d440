// Marks drawn over the finished picture of a plan view.
#pragma once

#include <utility>

#include "planview/draw_plan_view.h"

namespace velk {

// The faces of a brush that the view shows, as outlines.
void MarkBrush(Canvas& canvas, const PlanScene& scene, int view, const brush& b, const Pen& pen);
// Lines between points of the world.
void MarkLines(Canvas& canvas, const PlanScene& scene, int view, std::span<const std::pair<vec3, vec3>> lines,
               const Pen& pen);

}  // namespace velk
