// Handlers of the commands that make brushes: they check the selection, ask for the values, which they
// remember, and put what the makers built into the map.
#pragma once

#include <optional>

#include "app/editor.h"
#include "commands/making/result_preview.h"

namespace velk {

// The thickness of walls: the grid size, or what the user says (query_wall_width), who is shown meanwhile
// what `make` builds. None on Cancel.
std::optional<int> WallThickness(Editor& editor, const std::function<Brushes(int thickness)>& make);

Outcome MakeStairsInPlace(Editor& editor, map& m);
Outcome MakeRoomInPlace(Editor& editor, map& m);
Outcome MakeArchInPlace(Editor& editor, map& m);
Outcome MakeSphereInPlace(Editor& editor, map& m);
Outcome MakeCylinderInPlace(Editor& editor, map& m);
Outcome MakePrismInPlace(Editor& editor, map& m);
Outcome MakePyramidInPlace(Editor& editor, map& m);
Outcome MakeLightsInPlace(Editor& editor, map& m);
// Asks for the file with the profile first.
Outcome RevolveInPlace(Editor& editor, map& m);
// From numbers alone.
Outcome CreateBrush(Editor& editor, map& m);

}  // namespace velk
