// Clicks in the camera view: selecting, applying and lifting textures, turning by the compass.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr int kCameraSelectCode = 4;
inline constexpr int kApplyToBrushCode = 7;
inline constexpr int kApplyToFaceCode = 8;
inline constexpr int kLiftTextureCode = 24;
inline constexpr int kLiftAndApplyCode = 25;

// Selects or deselects the brush under the press, in the wire picture by its edges.
ToolStart CameraSelectClick(const MouseContext& context, const PointerEvent& event);
ToolStart ApplyToBrushClick(const MouseContext& context, const PointerEvent& event);
ToolStart ApplyToFaceClick(const MouseContext& context, const PointerEvent& event);
ToolStart LiftTextureClick(const MouseContext& context, const PointerEvent& event);
// Lifts, and gives the texture to all selected brushes.
ToolStart LiftAndApplyClick(const MouseContext& context, const PointerEvent& event);

// A press of the left button on the compass, but for its very middle, turns the camera; before the bindings.
ToolStart CompassClick(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
