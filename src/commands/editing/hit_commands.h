// Commands on the hits of the last pick.
#pragma once

#include "app/editor.h"

namespace velk {

// Selects or deselects the hit of that number, which becomes the current one.
Outcome ToggleHitBrush(Editor& editor, map& m, int number);
Outcome SelectAllHits(Editor& editor, map& m);
Outcome NextHit(Editor& editor, map& m);
Outcome PreviousHit(Editor& editor, map& m);

}  // namespace velk
