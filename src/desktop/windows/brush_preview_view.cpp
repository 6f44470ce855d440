#include "desktop/windows/brush_preview_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "base/text.h"
#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/views/palette_image.h"

namespace velk {
namespace {

constexpr int kPixelsAStep = 6;
constexpr int kWheelStep = 120;
constexpr int kTextHeight = 10;

QString PointText(const char* name, const vec3& at) {
  return ShownText(Format("%s %g %g %g", name, double(at.x), double(at.y), double(at.z)));
}

}  // namespace

BrushPreviewView::BrushPreviewView(Editor& editor, QWidget* parent) : QWidget(parent), editor_(editor) {
  setMinimumSize(60, 60);
  setMaximumSize(std::max(60, editor.settings().camera_w), std::max(60, editor.settings().camera_h));
  setToolTip("Drag to turn, wheel to zoom, click for a face");
}

QSize BrushPreviewView::sizeHint() const {
  return {editor_.settings().camera_w, editor_.settings().camera_h};
}

void BrushPreviewView::refresh() {
  editor_.panels().brush.updatedPreview();
  update();
}

RenderSize BrushPreviewView::pictureSize() const {
  const double scale = devicePixelRatioF();
  return {std::max(1, static_cast<int>(width() * scale)), std::max(1, static_cast<int>(height() * scale))};
}

void BrushPreviewView::drawEdges(QPainter& painter) {
  const ViewColours& colours = editor_.settings().colours;
  const double scale = devicePixelRatioF();
  painter.save();
  painter.scale(1 / scale, 1 / scale);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const BrushPreview::Edge& edge : preview().edges(pictureSize())) {
    if (!edge.current && preview().isSolid()) continue;
    painter.setPen(QPen(QtColour(edge.current ? colours.color_curfacecolor : colours.fgcolor),
                        (edge.current ? 2 : 1) * scale));
    painter.drawLine(edge.from.x, edge.from.y, edge.to.x, edge.to.y);
  }
  painter.restore();
}

// The angles, and the corners of the bounds when they are wanted.
void BrushPreviewView::drawTexts(QPainter& painter) {
  QFont small = font();
  small.setPixelSize(kTextHeight);
  painter.setFont(small);
  painter.setPen(QtColour(editor_.settings().colours.fgcolor));
  const QRect text = rect().adjusted(4, 2, -4, -2);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom, ShownText(preview().readout()));
  const brush* shown = editor_.documents().currentMap()->firstSelected();
  if (!editor_.settings().camera_minmax || !shown) return;
  painter.drawText(text, Qt::AlignLeft | Qt::AlignTop,
                   PointText("min", shown->mins) + '\n' + PointText("max", shown->maxs));
}

void BrushPreviewView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QtColour(editor_.settings().colours.bgcolor));
  if (preview().empty() || !editor_.documents().currentMap()) return;
  if (preview().isSolid()) {
    preview().render(editor_.views().currentAssets(), pictureSize());
    painter.drawImage(QRectF(rect()), PaletteImage(preview().renderer(), editor_.views().paletteWad()));
  }
  drawEdges(painter);
  drawTexts(painter);
}

void BrushPreviewView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->position().toPoint();
  turned_ = {};
  dragged_ = false;
}

void BrushPreviewView::mouseMoveEvent(QMouseEvent* event) {
  const QPoint moved = event->position().toPoint() - pressed_;
  if (moved.manhattanLength() >= QApplication::startDragDistance()) dragged_ = true;
  const QPoint steps = moved / kPixelsAStep;
  if (!dragged_ || steps == turned_) return;
  preview().turn(turned_.x() - steps.x(), steps.y() - turned_.y());
  turned_ = steps;
  update();
}

void BrushPreviewView::mouseReleaseEvent(QMouseEvent* event) {
  if (dragged_ || event->button() != Qt::LeftButton || !editor_.documents().currentMap()) return;
  const double scale = devicePixelRatioF();
  const Pixel at{static_cast<int>(event->position().x() * scale),
                 static_cast<int>(event->position().y() * scale)};
  const int face = preview().faceAt(editor_.views().currentAssets(), pictureSize(), at);
  if (face >= 0) editor_.panels().brush.pick(face);
}

void BrushPreviewView::wheelEvent(QWheelEvent* event) {
  wheelRest_ += event->angleDelta().y();
  const int notches = wheelRest_ / kWheelStep;
  wheelRest_ -= notches * kWheelStep;
  if (notches != 0) preview().zoom(notches);
  update();
  event->accept();
}

}  // namespace velk
