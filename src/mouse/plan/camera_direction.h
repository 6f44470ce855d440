// Turning the active camera by the way the mouse goes, in a view from above; with careful tools to where the
// mouse goes from the press, in every view.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kCameraDirectionCode = 1;

ToolStart StartCameraDirection(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
