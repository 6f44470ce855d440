#include "desktop/system/escape_watch.h"

#include <QApplication>
#include <QKeyEvent>

namespace velk {
namespace {

constexpr int kShortWork = 200;  // ms
constexpr int kBetweenLooks = 30;

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

void EscapeWatch::begin() {
  pressed_ = false;
  begun_.start();
  looked_.start();
}

bool EscapeWatch::due() const { return looked_.elapsed() >= kBetweenLooks; }

bool EscapeWatch::pressed() {
  if (pressed_ || !due()) return pressed_;
  looked_.start();
  if (begun_.elapsed() < kShortWork) return false;
  qApp->installEventFilter(this);
  QApplication::processEvents();
  qApp->removeEventFilter(this);
  return pressed_;
}

// An accepted override is a key and no shortcut.
bool EscapeWatch::eventFilter(QObject*, QEvent* event) {
  if (!IsInput(event->type())) return false;
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    pressed_ = true;
  }
  event->setAccepted(event->type() == QEvent::ShortcutOverride);
  return true;
}

}  // namespace velk
