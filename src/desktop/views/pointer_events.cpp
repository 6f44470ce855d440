#include "desktop/views/pointer_events.h"

namespace velk {

PointerEvent PointerEventOf(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  PointerEvent event;
  event.at = {static_cast<int>(at.x()), static_cast<int>(at.y())};
  if (button == Qt::MiddleButton) event.button = MouseButton::Middle;
  if (button == Qt::RightButton) event.button = MouseButton::Right;
  event.shift = modifiers.testFlag(Qt::ShiftModifier);
  event.ctrl = modifiers.testFlag(Qt::ControlModifier);
  event.alt = modifiers.testFlag(Qt::AltModifier);
  return event;
}

PointerEvent PointerEventOf(const QMouseEvent& event) {
  return PointerEventOf(event.position(), event.button(), event.modifiers());
}

// With Alt held, Qt takes a wheel for one that turns sideways.
int WheelNotches::notches(const QWheelEvent& event) {
  constexpr int kNotch = 120;
  rest_ += event.angleDelta().y() != 0 ? event.angleDelta().y() : event.angleDelta().x();
  const int whole = rest_ / kNotch;
  rest_ -= whole * kNotch;
  return whole;
}

bool IsEditorButton(Qt::MouseButton button) {
  return button == Qt::LeftButton || button == Qt::MiddleButton || button == Qt::RightButton;
}

}  // namespace velk
