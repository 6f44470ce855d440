#include "planview/plan_marks.h"

#include "planview/view_painter.h"

namespace velk {

void MarkBrush(Canvas& canvas, const PlanScene& scene, int view, const brush& b, const Pen& pen) {
  ViewPainter painter(canvas, scene, view);
  for (const face& f : b.faces()) {
    if (f.polygon) painter.outline(pen, f.polygon->points(), f.polygon->count);
  }
}

void MarkLines(Canvas& canvas, const PlanScene& scene, int view, std::span<const std::pair<vec3, vec3>> lines,
               const Pen& pen) {
  ViewPainter painter(canvas, scene, view);
  for (const auto& [from, to] : lines) {
    const vec3 ends[] = {from, to};
    painter.outline(pen, ends, 2);
  }
}

}  // namespace velk
