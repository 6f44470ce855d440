// Drawing a new box brush.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kNewBrushCode = 2;
inline constexpr char kNewBrushTitle[] = "Velk - New Brush";
inline constexpr char kShowGroup[] = "New Brush added to invisible group, make invisible group visible?";

// Begins with nothing selected, in an entity built of brushes. The box fills the work range in depth.
ToolStart StartNewBrush(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
