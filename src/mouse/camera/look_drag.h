// Moving the camera by dragging in its view.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kLookCode = 100;
inline constexpr int kPanCode = 101;
inline constexpr int kFlyCode = 102;

// The eye turns to where the mouse goes.
ToolStart StartLook(const MouseContext& context, const PointerEvent& event);
// The eye slides across its view, which follows the mouse.
ToolStart StartPan(const MouseContext& context, const PointerEvent& event);
// The eye goes forward with the mouse going up, back and to the sides.
ToolStart StartFly(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
