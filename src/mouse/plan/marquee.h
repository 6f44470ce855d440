// Selecting by a rectangle.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kMarqueeCode = 100;
inline constexpr char kMarqueeDone[] = "Selected %i brushes...";  // that lie in the rectangle

// Drawn to the right it takes the brushes that it encloses, to the left those that it touches; with SHIFT at
// the press besides what was selected.
ToolStart StartMarquee(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
