// Placing the clipper's points and dragging one or all of them.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kClipPointDragCode = 15;
inline constexpr int kClipPlaneDragCode = 16;

ToolStart AddClipPointClick(const MouseContext& context, const PointerEvent& event);
// Begin near a clip point.
ToolStart StartClipPointDrag(const MouseContext& context, const PointerEvent& event);
ToolStart StartClipPlaneDrag(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
