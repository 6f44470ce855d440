// The wire picture of a map from its active camera.
#pragma once

#include "base/canvas.h"
#include "camera/renderer.h"

namespace velk {

// Fills the canvas with the background colour and draws the edges of every brush that is not hidden nor in
// a group switched off: selected ones in the selection colour, others in the foreground colour.
void DrawWire(Canvas& canvas, RenderSize canvasSize, const RenderScene& scene);

// The edges of one brush.
void RenderWireBrush(Canvas& canvas, RenderSize canvasSize, const map& m, const Settings& settings,
                     const WireLens& lens, const brush& b, bool selected);

// The brush whose wire edges pass nearest to the pixel, within `reach` pixels; none when there is none
// there. Among equals the nearest to the eye.
brush* PickWireBrush(RenderSize canvasSize, map& m, const Settings& settings, const WireLens& lens, Pixel at,
                     int reach);

}  // namespace velk
