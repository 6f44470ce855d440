// The shapes of the cursor: what a press would begin where the mouse rests, and what a drag is doing.
#pragma once

#include <functional>
#include <string_view>

#include "mouse/bindings.h"
#include "mouse/drag.h"

namespace velk {

enum class CursorShape { Idle, Draw, Move, Resize, Vertex, Turn, Clip, Pan, Refused };

// As scripts print it: "idle", "draw"...
const char* CursorName(CursorShape shape);

// Of a running operation; those without a name move the view.
CursorShape CursorOf(std::string_view operation);

// Before a press that has this binding, by the first of its operations that could begin. Idle without a
// binding and where a click has something to take; refused where nothing can begin.
CursorShape CursorBefore(const MouseContext& context, const PointerEvent& event, const MouseBinding* binding,
                         const std::function<bool()>& clickTakes);

}  // namespace velk
