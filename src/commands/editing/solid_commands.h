// Commands that make other solids of the selected brushes, or put them in line.
#pragma once

#include "app/editor.h"
#include "ops/align.h"

namespace velk {

// Walls are as thick as those of rooms.
Outcome Hollow(Editor& editor, map& m);
Outcome Merge(Editor& editor, map& m);
Outcome Intersect(Editor& editor, map& m);
Outcome Flatten(Editor& editor, map& m);
Outcome Align(Editor& editor, map& m, Alignment to);

}  // namespace velk
