// Moving the selection with the mouse.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kBrushDragCode = 10;

// Begins on a selected brush of a visible group.
ToolStart StartBrushDrag(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
