// Dragging faces of the one selected brush.
#pragma once

#include <optional>

#include "mouse/drag.h"

namespace velk {

inline constexpr int kFaceDragCode = 9;
inline constexpr int kCurrentFaceDragCode = 11;

// A point that the faces to be dragged look at, asked for with the press in a plan view: far before the
// brush, with careful tools in the depth of its middle; then a face that leans does not count where the brush
// itself is under the press. None there.
std::optional<vec3> FaceDragPoint(const MouseContext& context, const brush& b, ViewPoint press);

// The faces that look towards the press, across the view or nearly so; a press inside the brush begins
// nothing.
ToolStart StartFaceDrag(const MouseContext& context, const PointerEvent& event);
// The current face.
ToolStart StartCurrentFaceDrag(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
