// The views' canvas over a QImage, with Qt's fonts.
#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <map>

#include "planview/raster_canvas.h"

namespace velk {

// An image of `width` by `height` of the editor's pixels at a screen's device pixel ratio.
QImage MakeCanvasImage(int width, int height, double devicePixelRatio);

class QtCanvas : public RasterCanvas {
 public:
  // The image must come from MakeCanvasImage, be shared with nobody and outlive the canvas.
  QtCanvas(QImage& image, const QString& fontFamily);

  void text(const std::string& text, Pixel at, int height, Colour colour, const Colour* background) override;
  int textWidth(const std::string& text, int height) const override;

 private:
  const QFont& font(int height) const;

  QPainter painter_;  // for text only; lines go straight into the pixels
  QString family_;
  mutable std::map<int, QFont> fonts_;
};

}  // namespace velk
