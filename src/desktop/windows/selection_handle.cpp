#include "desktop/windows/selection_handle.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

namespace velk {

SelectionHandle::SelectionHandle(QWidget* parent) : QLabel(parent) {
  setMinimumWidth(1);
  setToolTip("Drag this onto a group to move the selection there");
}

void SelectionHandle::setLoaded(bool loaded) {
  if (loaded == loaded_) return;
  loaded_ = loaded;
  loaded ? setCursor(Qt::OpenHandCursor) : unsetCursor();
}

void SelectionHandle::mousePressEvent(QMouseEvent* event) { pressed_ = event->position().toPoint(); }

void SelectionHandle::mouseMoveEvent(QMouseEvent* event) {
  const int moved = (event->position().toPoint() - pressed_).manhattanLength();
  if (!loaded_ || !event->buttons().testFlag(Qt::LeftButton) || moved < QApplication::startDragDistance())
    return;
  auto* carried = new QMimeData;
  carried->setData(kSelectionMime, {});
  auto* drag = new QDrag(this);
  drag->setMimeData(carried);
  drag->exec(Qt::MoveAction);
}

}  // namespace velk
