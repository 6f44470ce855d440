// Mouse input of the views as plain events.
#pragma once

#include "base/canvas.h"

namespace velk {

enum class MouseButton { Left = 0, Middle = 1, Right = 2 };

struct PointerEvent {
  Pixel at;                                // of the view
  MouseButton button = MouseButton::Left;  // of a press or release
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
};

}  // namespace velk
