// Leak points in the camera view: a line over the picture, its start and end marked.
#pragma once

#include <span>

#include "base/canvas.h"
#include "camera/renderer.h"

namespace velk {

// `window` is the canvas in the editor's pixels, `picture` the size of the picture stretched over it in the
// flat and textured modes. Nothing in the map hides the line; what is behind the eye or beyond the far limit
// is not drawn.
void DrawLeakLine(Canvas& canvas, RenderSize window, RenderSize picture, const map& m,
                  const Settings& settings, const WireLens& lens, std::span<const vec3> points);

}  // namespace velk
