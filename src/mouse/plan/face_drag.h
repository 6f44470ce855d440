// Dragging faces of the one selected brush.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kFaceDragCode = 9;
inline constexpr int kCurrentFaceDragCode = 11;

// The faces that look towards the press, across the view or nearly so; a press inside the brush begins
// nothing.
ToolStart StartFaceDrag(const MouseContext& context, const PointerEvent& event);
// The current face.
ToolStart StartCurrentFaceDrag(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
