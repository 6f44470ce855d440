#include "desktop/windows/palette_image.h"

namespace velk {
namespace {

QList<QRgb> PaletteOf(const Wad* wad) {
  QList<QRgb> table(256, qRgb(0, 0, 0));
  for (int i = 0; i < 256 && wad; ++i) {
    const unsigned char* entry = wad->palette.data() + i * 3;
    table[i] = qRgb(entry[0], entry[1], entry[2]);
  }
  return table;
}

}  // namespace

QImage PaletteImage(const Renderer& renderer, const Wad* palette) {
  QImage image(renderer.frameBuffer().data(), renderer.width(), renderer.height(), renderer.width(),
               QImage::Format_Indexed8);
  image.setColorTable(PaletteOf(palette));
  return image;
}

}  // namespace velk
