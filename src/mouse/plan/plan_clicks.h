// What is done with the brush under a press in a plan view: selecting, texturing, connecting entities.
#pragma once

#include "mouse/drag.h"

namespace velk {

ToolStart SelectClick(const MouseContext& context, const PointerEvent& event);
ToolStart TextureBrushClick(const MouseContext& context, const PointerEvent& event);
ToolStart TextureFaceClick(const MouseContext& context, const PointerEvent& event);
// Not while the world is current.
ToolStart EntityConnectClick(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
