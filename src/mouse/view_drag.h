// Moving and zooming a view with the mouse: outside the bindings, for buttons that none claims.
#pragma once

#include "mouse/drag.h"

namespace velk {

// Drags the view along with the cursor, by the middle button where the settings say so.
ToolStart StartViewDrag(const MouseContext& context, const PointerEvent& event);

// One scale step a notch, positive ones in; the world point under the pixel stays where it is.
Outcome ZoomAt(const MouseContext& context, Pixel at, int notches);

// The camera goes one step of the settings a notch along its view.
Outcome FlyBy(const MouseContext& context, int notches);

}  // namespace velk
