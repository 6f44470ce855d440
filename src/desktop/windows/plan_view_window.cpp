#include "desktop/windows/plan_view_window.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include "commands/dispatch.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/windows/pointer_events.h"
#include "desktop/windows/qt_canvas.h"
#include "planview/draw_plan_view.h"

namespace velk {
namespace {

constexpr int kWheelStep = 120;  // eighths of a degree in one notch

Colour ColourOf(const QColor& from) { return {from.red(), from.green(), from.blue()}; }

}  // namespace

QImage PictureOfPlanView(Editor& editor, int view, double devicePixelRatio, const QPalette& palette) {
  const PlanView& record = editor.planViews().views[static_cast<size_t>(view)];
  QImage image = MakeCanvasImage(record.clientWidth, record.clientHeight, devicePixelRatio);
  QtCanvas canvas(image, ShownText(editor.settings().velk_font));
  const StripColours strip{ColourOf(palette.color(QPalette::Window)),
                           ColourOf(palette.color(QPalette::WindowText))};
  drawPlanView(canvas, editor.planScene(strip), view);
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
  stale_ = true;
  update();
}

void TXYViewWindow::drawPicture() {
  const PlanView& record = editor_.planViews().views[static_cast<size_t>(view_)];
  picture_ = PictureOfPlanView(editor_, view_, devicePixelRatioF(), palette());
  stale_ = false;
  setWindowTitle(QString::fromLatin1(captionText(record, editor_.settings()).c_str()));
}

void TXYViewWindow::paintEvent(QPaintEvent*) {
  if (stale_ || picture_.devicePixelRatio() != devicePixelRatioF()) drawPicture();
  QPainter painter(this);
  painter.drawImage(0, 0, picture_);
}

void TXYViewWindow::resizeEvent(QResizeEvent*) {
  PlanView& record = editor_.planViews().views[static_cast<size_t>(view_)];
  record.clientWidth = width();
  record.clientHeight = height();
  markStale();
}

void TXYViewWindow::focusInEvent(QFocusEvent*) { editor_.planViews().current = view_; }

// The strip has the palette's colours.
void TXYViewWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) markStale();
}

void TXYViewWindow::follow(const PointerOutcome& outcome) {
  if (outcome.redrawStrip) markStale();
}

void TXYViewWindow::openMenu(const StripMenu& menu) {
  QMenu popup(this);
  for (const ViewMenuItem& item : menu.items) {
    if (item.separator) {
      popup.addSeparator();
      continue;
    }
    QAction* action = popup.addAction(QString::fromLatin1(item.label.c_str()));
    const Command* command = FindCommand(item.command);
    action->setEnabled(command && IsEnabled(editor_, *command));
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
    if (command)
      connect(action, &QAction::triggered, this, [this, command] { RunCommand(editor_, *command); });
  }
  popup.exec(mapToGlobal(QPoint(menu.at.x, menu.at.y)));
}

void TXYViewWindow::mousePressEvent(QMouseEvent* event) {
  if (!IsEditorButton(event->button())) return;
  editor_.planViews().current = view_;
  const PointerEvent press = PointerEventOf(*event);
  if (press.at.y < kStripHeight) {
    const std::optional<StripField> field = stripFieldAt(width(), press.at);
    if (!field) return;
    if (const auto menu = stripMenu(*field, editor_.settings(), editor_.currentMap())) openMenu(*menu);
    if (*field == StripField::Direction) {
      editor_.flipPlanView(view_);
      markStale();  // without a map, too
    }
    return;
  }
  follow(editor_.pressPlanView(view_, press));
}

void TXYViewWindow::mouseMoveEvent(QMouseEvent* event) {
  follow(editor_.movePlanView(view_, PointerEventOf(*event)));
}

void TXYViewWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (IsEditorButton(event->button())) follow(editor_.releasePlanView(view_, PointerEventOf(*event)));
}

void TXYViewWindow::wheelEvent(QWheelEvent* event) {
  wheelRest_ += event->angleDelta().y();
  const int steps = wheelRest_ / kWheelStep;
  wheelRest_ -= steps * kWheelStep;
  if (steps != 0) {
    follow(editor_.wheelPlanView(view_, PointerEventOf(event->position(), Qt::NoButton, event->modifiers()),
                                 steps));
  }
  event->accept();
}

}  // namespace velk
