// Qt's key events in the editor's terms.
#pragma once

#include <QKeyEvent>

#include "app/command.h"

namespace velk {

// The command bound to the key, or none. Keys of the number pad are told from the main ones whether Num
// Lock is on or off; one that has no command of its own does without Num Lock what the main key of that
// name does (0 is Ins, 1 End, 3 PgDn, '.' Del). A sign that needs Shift on the user's keyboard also fits a
// stroke without Shift.
const Command* CommandForKey(const QKeyEvent& event);

}  // namespace velk
