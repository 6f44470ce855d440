// The compass over the camera picture: a ring in the top right corner whose needle stands where a click
// would turn the camera to its present heading.
#pragma once

#include "base/canvas.h"

namespace velk {

inline constexpr int kCompassInset = 25;   // of its centre from the right and top edges, pixels
inline constexpr int kCompassRadius = 20;  // of the ring

// yaw in radians. The needle points right on the screen at yaw 0 (looking along -y) and turns clockwise.
// All strokes are edged, so that they stand out from any picture.
void DrawCompass(Canvas& canvas, int canvasWidth, double yaw, Colour ring, Colour needle, Colour edge);

}  // namespace velk
