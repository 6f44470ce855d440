#include "desktop/views/camera_window.h"

#include <QPainter>
#include <vector>

#include "app/view_overlay.h"
#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/views/palette_image.h"
#include "desktop/views/qt_canvas.h"

namespace velk {
namespace {

QString FontFamily(const Editor& editor) { return ShownText(editor.settings().velk_font); }

// The renderer's picture stretched over the whole image.
void DrawRendered(Editor& editor, QImage& image) {
  // A picture that the memory has no room for stays as it was.
  editor.door().trapped([&] { editor.views().renderCamera(); });
  const Renderer& renderer = editor.views().renderer;
  const QList<QRgb> colours = PaletteColours(editor.views().paletteWad());
  std::vector<int> columns(static_cast<size_t>(image.width()));
  for (int x = 0; x < image.width(); ++x) {
    columns[static_cast<size_t>(x)] =
        static_cast<int>(static_cast<qint64>(x) * renderer.width() / image.width());
  }
  for (int y = 0; y < image.height(); ++y) {
    const auto row = static_cast<qint64>(y) * renderer.height() / image.height();
    const unsigned char* from = renderer.frameBuffer().data() + row * renderer.width();
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) to[x] = colours[from[columns[static_cast<size_t>(x)]]];
  }
}

void DrawEmpty(const Editor& editor, QtCanvas& canvas, int width, int height) {
  const ViewColours& colours = editor.settings().colours;
  canvas.fill({0, 0, width, height}, colours.bgcolor);
  const std::string text = "Press \"New\" to Begin...";
  constexpr int kTextHeight = 14;
  canvas.text(text, {(width - canvas.textWidth(text, kTextHeight)) / 2, height / 2 - kTextHeight},
              kTextHeight, colours.fgcolor, nullptr);
}

// Without what stands over it for a moment.
QImage LastingPicture(Editor& editor, double devicePixelRatio) {
  const int width = editor.views().cameraWidth;
  const int height = editor.views().cameraHeight;
  editor.views().deviceScale = devicePixelRatio;
  QImage image = MakeCanvasImage(width, height, devicePixelRatio);
  const map* shown = editor.documents().currentMap();
  if (shown && editor.settings().drawmode != kWireMode) DrawRendered(editor, image);
  QtCanvas canvas(image, FontFamily(editor));
  if (!shown) {
    DrawEmpty(editor, canvas, width, height);
    return image;
  }
  if (editor.settings().drawmode == kWireMode) editor.views().drawWire(canvas);
  DrawCameraMarks(canvas, editor);
  return image;
}

}  // namespace

QImage PictureOfCamera(Editor& editor, double devicePixelRatio) {
  QImage image = LastingPicture(editor, devicePixelRatio);
  QtCanvas canvas(image, FontFamily(editor));
  DrawViewOverlay(canvas, editor, kCameraView, editor.input().hovered(kCameraView));
  return image;
}

TCameraWindow::TCameraWindow(Editor& editor, QWidget* parent) : ViewWindow(editor, kCameraView, parent) {
  showTitle();
}

void TCameraWindow::showTitle() { setWindowTitle(ShownText(WindowTitle(editor(), ToolWindow::Camera))); }

QImage TCameraWindow::drawPicture() { return LastingPicture(editor(), devicePixelRatioF()); }

void TCameraWindow::markStale() {
  progress_.clear();
  ViewWindow::markStale();
}

void TCameraWindow::keepProgress(const std::string& text, int left, int top) {
  progress_[{top, left}] = text;
}

void TCameraWindow::drawOnTop(QPainter& painter) {
  constexpr int kHeight = 12;  // pixels
  const ViewColours& colours = editor().settings().colours;
  QFont font(FontFamily(editor()));
  font.setPixelSize(kHeight);
  painter.setFont(font);
  painter.setPen(QtColour(colours.fgcolor));
  for (const auto& [place, text] : progress_) {
    const QString line = ShownText(text);
    const QSize size = painter.fontMetrics().size(Qt::TextSingleLine, line);
    const QRect area(QPoint(place.second, place.first), size);
    painter.fillRect(area, QtColour(colours.bgcolor));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, line);
  }
}

}  // namespace velk
