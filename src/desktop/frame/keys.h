// Qt's key events in the editor's terms.
#pragma once

#include <QKeyEvent>

#include "commands/key_stroke.h"

namespace velk {

KeyStroke StrokeOf(const QKeyEvent& event);

}  // namespace velk
