#include "desktop/views/qt_canvas.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {

QImage MakeCanvasImage(int width, int height, double devicePixelRatio) {
  const int w = std::max(1, static_cast<int>(std::lround(width * devicePixelRatio)));
  const int h = std::max(1, static_cast<int>(std::lround(height * devicePixelRatio)));
  QImage image(w, h, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  return image;
}

QtCanvas::QtCanvas(QImage& image, const QString& fontFamily)
    : RasterCanvas(reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(),
                   image.bytesPerLine() / 4, image.devicePixelRatio()),
      painter_(&image),
      family_(fontFamily) {}

const QFont& QtCanvas::font(int height) const {
  const auto [entry, made] = fonts_.try_emplace(height, family_);
  if (made) entry->second.setPixelSize(std::max(1, height));
  return entry->second;
}

void QtCanvas::text(const std::string& text, Pixel at, int height, Colour colour, const Colour* background) {
  const QFontMetrics metrics(font(height));
  const QString shown = ShownText(text);
  painter_.setFont(font(height));
  if (background) {
    painter_.fillRect(at.x, at.y, metrics.horizontalAdvance(shown), metrics.height(),
                      QColor(background->red, background->green, background->blue));
  }
  painter_.setPen(QtColour(colour));
  painter_.drawText(at.x, at.y + metrics.ascent(), shown);
}

int QtCanvas::textWidth(const std::string& text, int height) const {
  return QFontMetrics(font(height)).horizontalAdvance(ShownText(text));
}

}  // namespace velk
