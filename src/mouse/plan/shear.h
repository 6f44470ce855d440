// Shearing the one selected brush: the faces towards the viewer move, their neighbours lean.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kShearCode = 12;

ToolStart StartShear(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
