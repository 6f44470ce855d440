#include "desktop/views/plan_view_window.h"

#include <QMouseEvent>
#include <QPainter>

#include "commands/context_menus.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"
#include "desktop/views/pointer_events.h"
#include "desktop/views/qt_canvas.h"
#include "planview/draw_plan_view.h"

namespace velk {
namespace {

Colour ColourOf(const QColor& from) { return {from.red(), from.green(), from.blue()}; }

StripColours StripColoursOf(const QPalette& palette) {
  return {ColourOf(palette.color(QPalette::Window)), ColourOf(palette.color(QPalette::WindowText))};
}

QImage PictureOfStrip(Editor& editor, int view, double devicePixelRatio, const QPalette& palette) {
  const PlanView& record = editor.views().plans.views[static_cast<size_t>(view)];
  QImage image = MakeCanvasImage(record.clientWidth, kStripHeight, devicePixelRatio);
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  DrawHeaderStrip(canvas, record, editor.settings(), editor.documents().currentMap(),
                  editor.views().groupName(), StripColoursOf(palette));
  return image;
}

}  // namespace

QImage PictureOfPlanView(Editor& editor, int view, double devicePixelRatio, const QPalette& palette) {
  const PlanView& record = editor.views().plans.views[static_cast<size_t>(view)];
  QImage image = MakeCanvasImage(record.clientWidth, record.clientHeight, devicePixelRatio);
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  DrawPlanView(canvas, editor.views().planScene(StripColoursOf(palette)), view);
  return image;
}

TXYViewWindow::TXYViewWindow(Editor& editor, int view, QWidget* parent)
    : QWidget(parent), editor_(editor), view_(view) {
  setWindowTitle(kInitialCaption);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(160, 100);
  if (editor.settings().use_crosshair) setCursor(Qt::CrossCursor);
}

void TXYViewWindow::markStale() {
  stale_ = stripStale_ = true;
  update();
}

void TXYViewWindow::markStripStale() {
  stripStale_ = true;
  update(0, 0, width(), kStripHeight);
}

void TXYViewWindow::drawPicture() {
  const PlanView& record = editor_.views().plans.views[static_cast<size_t>(view_)];
  picture_ = PictureOfPlanView(editor_, view_, devicePixelRatioF(), palette());
  stale_ = false;
  stripStale_ = true;
  setWindowTitle(QString::fromLatin1(CaptionText(record, editor_.settings()).c_str()));
}

void TXYViewWindow::paintEvent(QPaintEvent*) {
  if (stale_ || picture_.devicePixelRatio() != devicePixelRatioF()) drawPicture();
  if (stripStale_) {
    strip_ = PictureOfStrip(editor_, view_, devicePixelRatioF(), palette());
    stripStale_ = false;
  }
  QPainter painter(this);
  painter.drawImage(0, 0, picture_);
  painter.drawImage(0, 0, strip_);
}

void TXYViewWindow::resizeEvent(QResizeEvent*) {
  editor_.views().resize(view_, width(), height());
  markStale();
}

void TXYViewWindow::focusInEvent(QFocusEvent*) { editor_.views().plans.current = view_; }

// The strip has the palette's colours.
void TXYViewWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) markStale();
}

void TXYViewWindow::mousePressEvent(QMouseEvent* event) {
  if (!IsEditorButton(event->button())) return;
  const PointerEvent press = PointerEventOf(*event);
  const std::optional<StripField> field = editor_.input().stripFieldAt(view_, press.at);
  const std::string menu = field ? StripMenuName(view_, *field) : "";
  editor_.input().press(view_, press);
  if (!menu.empty()) openMenu(menu, *field);
}

void TXYViewWindow::openMenu(const std::string& name, StripField field) {
  const auto menu = ContextMenu(editor_, name);
  const Pixel place = StripMenuPlace(field);
  if (menu) ShowMenu(*menu, *this, QPoint(place.x, place.y));
}

void TXYViewWindow::mouseMoveEvent(QMouseEvent* event) {
  editor_.input().move(view_, PointerEventOf(*event));
}

void TXYViewWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (!IsEditorButton(event->button())) return;
  const PointerEvent released = PointerEventOf(*event);
  if (editor_.input().release(view_, released)) ShowViewMenu(editor_, view_, *this, released.at);
}

void TXYViewWindow::wheelEvent(QWheelEvent* event) {
  const int steps = wheel_.notches(*event);
  if (steps != 0) {
    editor_.input().wheel(view_, PointerEventOf(event->position(), Qt::NoButton, event->modifiers()), steps);
  }
  event->accept();
}

}  // namespace velk
