// Pulling a corner of the one selected brush.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kVertexDragCode = 13;

// Only while drag_vertex is on, near a corner where at least three faces meet.
ToolStart StartVertexDrag(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
