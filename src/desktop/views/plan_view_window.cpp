#include "desktop/views/plan_view_window.h"

#include <QMouseEvent>
#include <QPainter>

#include "app/view_overlay.h"
#include "commands/context_menus.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"
#include "desktop/views/pointer_events.h"

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

// Without what stands over it for a moment.
QImage LastingPicture(Editor& editor, int view, double devicePixelRatio, const QPalette& palette) {
  const PlanView& record = editor.views().plans.views[static_cast<size_t>(view)];
  QImage image = MakeCanvasImage(record.clientWidth, record.clientHeight, devicePixelRatio);
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  editor.views().drawPlan(canvas, view, StripColoursOf(palette));
  return image;
}

}  // namespace

QImage PictureOfPlanView(Editor& editor, int view, double devicePixelRatio, const QPalette& palette) {
  QImage image = LastingPicture(editor, view, devicePixelRatio, palette);
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  DrawViewOverlay(canvas, editor, view, editor.input().hovered(view));
  return image;
}

TXYViewWindow::TXYViewWindow(Editor& editor, int view, QWidget* parent) : ViewWindow(editor, view, parent) {
  setWindowTitle(kInitialCaption);
  if (editor.settings().use_crosshair) setCursor(Qt::CrossCursor);
}

void TXYViewWindow::markStripStale() {
  stripStale_ = true;
  update(0, 0, width(), kStripHeight);
}

QImage TXYViewWindow::drawPicture() {
  const PlanView& record = editor().views().plans.views[static_cast<size_t>(view())];
  stripStale_ = true;
  setWindowTitle(QString::fromLatin1(CaptionText(record, editor().settings()).c_str()));
  return LastingPicture(editor(), view(), devicePixelRatioF(), palette());
}

void TXYViewWindow::drawOnTop(QPainter& painter) {
  if (stripStale_) {
    strip_ = PictureOfStrip(editor(), view(), devicePixelRatioF(), palette());
    stripStale_ = false;
  }
  painter.drawImage(0, 0, strip_);
}

void TXYViewWindow::focusInEvent(QFocusEvent*) { editor().input().makeCurrent(view()); }

// The strip has the palette's colours.
void TXYViewWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) markStale();
}

void TXYViewWindow::mousePressEvent(QMouseEvent* event) {
  const std::optional<StripField> field = editor().input().stripFieldAt(view(), PointerEventOf(*event).at);
  const std::string menu = field ? StripMenuName(view(), *field) : "";
  ViewWindow::mousePressEvent(event);
  if (IsEditorButton(event->button()) && !menu.empty()) openMenu(menu, *field);
}

void TXYViewWindow::openMenu(const std::string& name, StripField field) {
  const auto menu = ContextMenu(editor(), name);
  const Pixel place = StripMenuPlace(field);
  if (menu) ShowMenu(*menu, *this, QPoint(place.x, place.y));
}

}  // namespace velk
