#include "desktop/windows/texture_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "app/texture_drop.h"
#include "base/error.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"
#include "desktop/views/camera_window.h"
#include "desktop/views/pointer_events.h"
#include "desktop/views/qt_canvas.h"
#include "panels/textures/draw_textures.h"

namespace velk {
namespace {

constexpr int kWheelStep = 120;   // eighths of a degree in one notch
constexpr int kDragDistance = 6;  // pixels, before the cursor shows what is dragged
constexpr int kDragPicture = 48;  // pixels a side

const ColourTable& ColoursOf(Editor& editor) {
  static const ColourTable kNone{};
  const Wad* wad = editor.views().paletteWad();
  return wad ? wad->colours : kNone;
}

PicturePixels PixelsOf(QImage& image) {
  return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(),
          image.bytesPerLine() / 4, image.devicePixelRatio()};
}

QPixmap DragPicture(Editor& editor, int place, double ratio) {
  const Texture& texture = editor.panels().textures.set().at(place).shown();
  const double scale = std::min(1.0, double(kDragPicture) / std::max(texture.width, texture.height));
  const ThumbnailSize size{std::max(1, int(texture.width * scale)), std::max(1, int(texture.height * scale)),
                           texture.width, texture.height};
  QImage image = MakeCanvasImage(size.width, size.height, ratio);
  const PicturePixels pixels = PixelsOf(image);
  DrawThumbnail(pixels, texture, ColoursOf(editor), size, {0, 0}, {0, 0, size.width, size.height});
  return QPixmap::fromImage(image);
}

}  // namespace

QImage PictureOfTextures(Editor& editor, double devicePixelRatio, bool header) {
  TexturePanel& panel = editor.panels().textures;
  QImage image = MakeCanvasImage(panel.width(), panel.height(), devicePixelRatio);
  if (image.isNull()) Error("Couldn't construct MemoryBitmap (Texture)");
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  const PicturePixels pixels = PixelsOf(image);
  const TextureDrawing drawing{canvas, pixels, ColoursOf(editor)};
  DrawTextures(panel, editor.settings(), drawing);
  if (header) {
    DrawTextureHeader(panel, editor.settings(), canvas);
    DrawMagnified(panel, editor.settings(), drawing);
  }
  return image;
}

QImage PictureOfMagnified(Editor& editor, double devicePixelRatio) {
  TexturePanel& panel = editor.panels().textures;
  const PixelRect area = MagnifierArea(panel, editor.settings());
  QImage image = MakeCanvasImage(area.width, area.height, devicePixelRatio);
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  const PicturePixels pixels = PixelsOf(image);
  DrawMagnified(panel, editor.settings(), {canvas, pixels, ColoursOf(editor)});
  return image;
}

TextureView::TextureView(Editor& editor, QWidget* parent) : QAbstractScrollArea(parent), editor_(editor) {
  setFrameShape(NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(80, 40);
}

Pixel TextureView::inPanel(const QPointF& at) const {
  return {static_cast<int>(at.x()),
          static_cast<int>(at.y()) + editor_.panels().textures.layout().headerHeight};
}

void TextureView::bounds() {
  const TextureLayout& layout = panel().layout();
  bounding_ = true;
  verticalScrollBar()->setRange(0, layout.scrollRange());
  verticalScrollBar()->setSingleStep(layout.cellHeight);
  verticalScrollBar()->setPageStep(layout.visibleRows * layout.cellHeight);
  verticalScrollBar()->setValue(panel().scroll());
  bounding_ = false;
}

void TextureView::refresh() {
  if (panel().drag() == TexturePanel::Drag::None) endDrag();
  bounds();
  viewport()->update();
}

void TextureView::paintEvent(QPaintEvent*) {
  bounds();
  const int header = panel().layout().headerHeight;
  QPainter painter(viewport());
  painter.drawImage(0, -header, PictureOfTextures(editor_, devicePixelRatioF(), false));
}

void TextureView::resizeEvent(QResizeEvent*) {
  panel().resize(viewport()->width(), viewport()->height() + panel().layout().headerHeight);
  refresh();
}

void TextureView::scrollContentsBy(int, int) {
  if (bounding_) return;
  panel().setScroll(verticalScrollBar()->value());
  viewport()->update();
}

void TextureView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Qt::KeyboardModifiers held = event->modifiers();
  from_ = event->position().toPoint();
  panel().press(inPanel(event->position()), held.testFlag(Qt::ShiftModifier),
                held.testFlag(Qt::ControlModifier));
  viewport()->update();
  Q_EMIT pointed();
}

// Once it is clear that this is no click, the texture hangs on the cursor.
void TextureView::showDrag(const QPoint& at) {
  const int place = panel().dragged();
  if (dragShown_ || place < 0 || panel().drag() == TexturePanel::Drag::Magnifier) return;
  if ((at - from_).manhattanLength() < kDragDistance) return;
  dragShown_ = true;
  viewport()->setCursor(QCursor(DragPicture(editor_, place, devicePixelRatioF()), 0, 0));
}

void TextureView::endDrag() {
  if (dragShown_) viewport()->unsetCursor();
  dragShown_ = false;
}

void TextureView::mouseMoveEvent(QMouseEvent* event) {
  const TexturePlace before = panel().over();
  panel().move(inPanel(event->position()));
  if (event->buttons() & Qt::LeftButton) showDrag(event->position().toPoint());
  if (dragShown_ && !(panel().over() == before)) viewport()->update();
  Q_EMIT pointed();
}

// Beside the camera view and the browser itself the drag ends without effect.
void TextureView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  endDrag();
  const QPoint global = event->globalPosition().toPoint();
  auto* camera = qobject_cast<TCameraWindow*>(QApplication::widgetAt(global));
  if (viewport()->rect().contains(event->position().toPoint()) ||
      panel().drag() == TexturePanel::Drag::Magnifier) {
    panel().release(inPanel(event->position()));
  } else if (camera) {
    const bool whole = event->modifiers().testAnyFlags(Qt::ShiftModifier | Qt::ControlModifier);
    DropTexture(editor_,
                PointerEventOf(camera->mapFromGlobal(event->globalPosition()), Qt::LeftButton, {}).at, whole);
  } else {
    panel().cancel();
  }
  refresh();
  Q_EMIT pointed();
}

void TextureView::wheelEvent(QWheelEvent* event) {
  if (!event->pixelDelta().isNull()) {
    panel().setScroll(panel().scroll() - event->pixelDelta().y());
  } else {
    panel().setScroll(panel().scroll() - event->angleDelta().y() * panel().layout().cellHeight / kWheelStep);
  }
  panel().move(inPanel(event->position()));
  refresh();
  Q_EMIT pointed();
  event->accept();
}

void TextureView::contextMenuEvent(QContextMenuEvent* event) {
  ShowMenu(panel().contextMenu(), *viewport(), event->pos());
}

void TextureView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || panel().drag() == TexturePanel::Drag::None) {
    QAbstractScrollArea::keyPressEvent(event);
    return;
  }
  panel().cancel();
  endDrag();
  refresh();
  Q_EMIT pointed();
}

bool TextureView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) {
    panel().leave();
    Q_EMIT pointed();
  }
  return QAbstractScrollArea::viewportEvent(event);
}

}  // namespace velk
