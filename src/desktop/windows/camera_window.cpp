#include "desktop/windows/camera_window.h"

#include <QPainter>

#include "camera/compass.h"
#include "camera/wire.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/windows/pointer_events.h"
#include "desktop/windows/qt_canvas.h"

namespace velk {
namespace {

constexpr int kWireMode = 0;

QString FontFamily(const Editor& editor) { return ShownText(editor.settings().velk_font); }

QList<QRgb> ColourTable(const Wad* wad) {
  QList<QRgb> table(256, qRgb(0, 0, 0));
  for (int i = 0; i < 256 && wad; ++i) {
    const unsigned char* entry = wad->palette.data() + i * 3;
    table[i] = qRgb(entry[0], entry[1], entry[2]);
  }
  return table;
}

// The renderer's picture stretched over the whole image.
void DrawRendered(Editor& editor, QImage& image) {
  editor.views().renderCamera();
  const Renderer& renderer = editor.views().renderer;
  QImage rendered(renderer.frameBuffer().data(), renderer.width(), renderer.height(), renderer.width(),
                  QImage::Format_Indexed8);
  rendered.setColorTable(ColourTable(editor.views().paletteWad()));
  QPainter painter(&image);
  painter.drawImage(
      QRectF(0, 0, image.deviceIndependentSize().width(), image.deviceIndependentSize().height()), rendered);
}

void DrawEmpty(const Editor& editor, QtCanvas& canvas, int width, int height) {
  const ViewColours& colours = editor.settings().colours;
  canvas.fill({0, 0, width, height}, colours.bgcolor);
  const std::string text = "Press \"New\" to Begin...";
  constexpr int kTextHeight = 14;
  canvas.text(text, {(width - canvas.textWidth(text, kTextHeight)) / 2, height / 2 - kTextHeight},
              kTextHeight, colours.fgcolor, nullptr);
}

void DrawOverlays(const Editor& editor, const map& shown, QtCanvas& canvas, int width) {
  const ViewColours& colours = editor.settings().colours;
  DrawCompass(canvas, width, shown.activeCamera().yaw, colours.fgcolor, colours.color_activecamera,
              colours.bgcolor);
}

}  // namespace

QImage PictureOfCamera(Editor& editor, double devicePixelRatio) {
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
  if (editor.settings().drawmode == kWireMode) {
    DrawWire(canvas, {width, height}, *shown, editor.settings(), editor.views().lens);
  }
  const Views& views = editor.views();
  if (!views.ghosts.empty()) {
    DrawWireGhosts(canvas, {width, height}, views.renderSize(), editor.views().cameraScene(), views.ghosts,
                   kGhostColour);
  }
  DrawOverlays(editor, *shown, canvas, width);
  return image;
}

TCameraWindow::TCameraWindow(Editor& editor, QWidget* parent) : QWidget(parent), editor_(editor) {
  showTitle();
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(160, 100);
}

void TCameraWindow::markStale() {
  stale_ = true;
  progress_.clear();
  update();
}

void TCameraWindow::keepProgress(const std::string& text, int left, int top) {
  progress_[{top, left}] = text;
}

// The picture with the lines on it.
QImage TCameraWindow::pictureInProgress() const {
  constexpr int kHeight = 12;
  const ViewColours& colours = editor_.settings().colours;
  QImage image = picture_.copy();
  QtCanvas canvas(image, FontFamily(editor_));
  for (const auto& [place, text] : progress_) {
    canvas.text(text, {place.second, place.first}, kHeight, colours.fgcolor, &colours.bgcolor);
  }
  return image;
}

void TCameraWindow::showTitle() { setWindowTitle(ShownText(WindowTitle(editor_, ToolWindow::Camera))); }

void TCameraWindow::paintEvent(QPaintEvent*) {
  if (stale_ || picture_.devicePixelRatio() != devicePixelRatioF()) {
    picture_ = PictureOfCamera(editor_, devicePixelRatioF());
    stale_ = false;
  }
  QPainter painter(this);
  painter.drawImage(0, 0, progress_.empty() ? picture_ : pictureInProgress());
}

void TCameraWindow::resizeEvent(QResizeEvent*) {
  editor_.views().resize(kCameraView, width(), height());
  markStale();
}

void TCameraWindow::mousePressEvent(QMouseEvent* event) {
  if (IsEditorButton(event->button())) editor_.input().press(kCameraView, PointerEventOf(*event));
}

void TCameraWindow::mouseMoveEvent(QMouseEvent* event) {
  editor_.input().move(kCameraView, PointerEventOf(*event));
}

void TCameraWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (IsEditorButton(event->button())) editor_.input().release(kCameraView, PointerEventOf(*event));
}

}  // namespace velk
