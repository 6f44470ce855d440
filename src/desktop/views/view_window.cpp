#include "desktop/views/view_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include "app/view_overlay.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"
#include "desktop/views/pointer_events.h"
#include "desktop/views/tool_cursors.h"

namespace velk {

ViewWindow::ViewWindow(Editor& editor, int view, QWidget* parent)
    : QWidget(parent), editor_(editor), view_(view) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(160, 100);
}

void ViewWindow::markStale() {
  stale_ = true;
  update();
}

void ViewWindow::paintEvent(QPaintEvent*) {
  if (stale_ || picture_.devicePixelRatio() != devicePixelRatioF()) {
    picture_ = drawPicture();
    stale_ = false;
    if (underMouse()) showCursor();  // what is there became another, or a drag ended
  }
  QPainter painter(this);
  const FacePick hovered = editor_.input().hovered(view_);
  if (HasOverlay(editor_, hovered)) {
    QImage shown = picture_;
    QtCanvas canvas(shown, ShownText(editor_.settings().velk_font));
    DrawViewOverlay(canvas, editor_, view_, hovered);
    painter.drawImage(0, 0, shown);
  } else {
    painter.drawImage(0, 0, picture_);
  }
  drawOnTop(painter);
}

void ViewWindow::resizeEvent(QResizeEvent*) {
  editor_.views().resize(view_, width(), height());
  markStale();
}

// Another highlight, and the shape of the cursor, where they became others.
void ViewWindow::showCursor() {
  const FacePick pick = editor_.input().hovered(view_);
  const std::pair<const void*, int> hovered{pick.hit, pick.face};
  if (hovered != std::exchange(hovered_, hovered)) update();
  const CursorShape shape = editor_.input().cursor(view_);
  if (shape == std::exchange(cursor_, shape)) return;
  setCursor(QtCursorOf(shape, editor_.settings().use_crosshair && view_ != kCameraView, devicePixelRatioF()));
}

// A modifier key changes what a press would begin where the mouse rests. The event says what was held before.
void ViewWindow::takeModifiers(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = QGuiApplication::queryKeyboardModifiers();
  const bool counts =
      event.key() == Qt::Key_Shift || event.key() == Qt::Key_Control || event.key() == Qt::Key_Alt;
  if (!counts || !underMouse() || editor_.input().pointer().drag()) return;
  editor_.input().move(view_, PointerEventOf(mapFromGlobal(QCursor::pos()), Qt::NoButton, modifiers));
  showCursor();
}

void ViewWindow::keyPressEvent(QKeyEvent* event) {
  takeModifiers(*event);
  QWidget::keyPressEvent(event);
}

void ViewWindow::keyReleaseEvent(QKeyEvent* event) {
  takeModifiers(*event);
  QWidget::keyReleaseEvent(event);
}

void ViewWindow::leaveEvent(QEvent*) {
  editor_.input().left(view_);
  showCursor();
}

void ViewWindow::mousePressEvent(QMouseEvent* event) {
  if (IsEditorButton(event->button())) editor_.input().press(view_, PointerEventOf(*event));
  showCursor();
}

void ViewWindow::mouseMoveEvent(QMouseEvent* event) {
  editor_.input().move(view_, PointerEventOf(*event));
  showCursor();
}

void ViewWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (!IsEditorButton(event->button())) return;
  const PointerEvent released = PointerEventOf(*event);
  const bool asksForMenu = editor_.input().release(view_, released);
  showCursor();
  if (asksForMenu) ShowViewMenu(editor_, view_, *this, released.at);
}

void ViewWindow::wheelEvent(QWheelEvent* event) {
  const int steps = wheel_.notches(*event);
  if (steps != 0) {
    editor_.input().wheel(view_, PointerEventOf(event->position(), Qt::NoButton, event->modifiers()), steps);
  }
  event->accept();
}

}  // namespace velk
