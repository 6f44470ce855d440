// Shifting, stretching and turning the texture of the face under the mouse in the camera view.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kShiftTextureCode = 1;
inline constexpr int kStretchTextureCode = 2;
inline constexpr int kRotateTextureCode = 3;

// Begin on a face of the flat or textured picture.
ToolStart StartShiftTexture(const MouseContext& context, const PointerEvent& event);
ToolStart StartStretchTexture(const MouseContext& context, const PointerEvent& event);
ToolStart StartRotateTexture(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
