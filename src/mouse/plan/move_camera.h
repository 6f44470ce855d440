// Bringing the views, and with them the active camera, to a point.
#pragma once

#include "mouse/drag.h"

namespace velk {

// The camera stays where cameras are locked.
ToolStart MoveCameraClick(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
