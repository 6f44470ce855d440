// Commands on entities: made of the selection, given back to the world.
#pragma once

#include "app/editor.h"

namespace velk {

// Of the class in the entity window's chooser.
Outcome MakeEntityOfChosenClass(Editor& editor, map& m);
// Asks, then moves the current entity's brushes to the world.
Outcome AskRevert(Editor& editor, map& m);

}  // namespace velk
