// A texture dragged from the texture browser into the camera view.
#pragma once

#include "app/editor.h"

namespace velk {

// Ends the browser's drag at a pixel of the camera view: what was dragged becomes the current texture and is
// given to the face there, or, with `wholeBrush` and in the wire picture, to its brush. Nothing happens
// beside all brushes and on boxes of point entities.
void DropTexture(Editor& editor, Pixel at, bool wholeBrush);

}  // namespace velk
