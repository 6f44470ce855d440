// Pictures of the renderer, which are in palette indices, as Qt's images.
#pragma once

#include <QImage>

#include "camera/renderer.h"
#include "textures/wad.h"

namespace velk {

// The 256 colours of the wad's palette, black without one.
QList<QRgb> PaletteColours(const Wad* wad);

// The renderer's last picture in the wad's palette, black without one. It shares the renderer's pixels.
QImage PaletteImage(const Renderer& renderer, const Wad* palette);

}  // namespace velk
