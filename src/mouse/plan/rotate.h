// Turning the selection about its middle, shown by copies until the release.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kRotateCode = 3;

// Begins near a corner of any brush of a visible group, with something selected. Careful: the turn starts
// where the mouse is, instead of along the view's first axis.
ToolStart StartRotate(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
