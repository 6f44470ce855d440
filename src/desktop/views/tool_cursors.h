#pragma once

#include <QCursor>

#include "mouse/tool_cursor.h"

namespace velk {

// The toolkit's cursor for a shape; the idle one is a cross or the arrow.
QCursor QtCursorOf(CursorShape shape, bool crossWhenIdle, double devicePixelRatio);

}  // namespace velk
