// The way that a compiler found out of the level, in the camera view: a red line with a green start and a red
// end. Nothing in the map hides it.
#pragma once

#include <span>

#include "camera/live/camera_marks.h"

namespace velk {

void DrawLeakLine(Canvas& canvas, CameraMarks& marks, std::span<const vec3> points);

}  // namespace velk
