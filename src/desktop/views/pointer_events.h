// Qt's mouse events in the editor's terms.
#pragma once

#include <QMouseEvent>

#include "mouse/pointer.h"

namespace velk {

PointerEvent PointerEventOf(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
PointerEvent PointerEventOf(const QMouseEvent& event);

// Turns of a wheel as whole notches, positive ones away from the user.
class WheelNotches {
 public:
  int notches(const QWheelEvent& event);

 private:
  int rest_ = 0;  // eighths of a degree not yet turned into a notch
};

// The left, middle or right one; the editor knows no others.
bool IsEditorButton(Qt::MouseButton button);

}  // namespace velk
