// Qt's mouse events in the editor's terms.
#pragma once

#include <QMouseEvent>

#include "mouse/pointer.h"

namespace velk {

PointerEvent PointerEventOf(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
PointerEvent PointerEventOf(const QMouseEvent& event);

// The left, middle or right one; the editor knows no others.
bool IsEditorButton(Qt::MouseButton button);

}  // namespace velk
