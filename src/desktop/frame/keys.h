// Qt's key events in the editor's terms.
#pragma once

#include <QKeyEvent>

#include "commands/command.h"

namespace velk {

// The command that the key gives, or none.
const Command* CommandForKey(const QKeyEvent& event);

}  // namespace velk
