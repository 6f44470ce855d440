// The picture of the texture browser's contents.
#pragma once

#include "base/canvas.h"
#include "panels/textures/texture_panel.h"
#include "panels/textures/thumbnail_painter.h"

namespace velk {

// Canvas and pixels are of one picture, of the panel's size.
struct TextureDrawing {
  Canvas& canvas;
  const PicturePixels& pixels;
  const ColourTable& colours;
};

// Rows and grid; what is above them stays.
void DrawTextures(TexturePanel& panel, const Settings& settings, const TextureDrawing& drawing);
// The label and the five numbers, for pictures without the window's own fields.
void DrawTextureHeader(TexturePanel& panel, const Settings& settings, Canvas& canvas);
// The room of a magnified texture: the header; with careful tools as much as the texture takes.
PixelRect MagnifierArea(TexturePanel& panel, const Settings& settings);
void DrawMagnified(TexturePanel& panel, const Settings& settings, const TextureDrawing& drawing);

}  // namespace velk
