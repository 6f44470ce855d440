// Dragging the marker of a camera.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kCameraDragCode = 5;

// Begins on a marker, while markers are shown. The camera moves at the release and becomes the active one.
ToolStart StartCameraDrag(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
