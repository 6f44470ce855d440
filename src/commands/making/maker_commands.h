// Handlers of the commands that make brushes: they check the selection, ask for the values, which they
// remember, and put what the makers built into the map.
#pragma once

#include <optional>

#include "app/editor.h"
#include "commands/making/result_preview.h"

namespace velk {

// What the box says when an entity or the map has no room for what was made.
inline constexpr char kCannotMake[] = "Velk - Cannot Make";
inline constexpr char kNoRoomForMade[] =
    "The map has no room for the result: an entity holds 4096 brushes, a brush 64 faces, a map 1024 "
    "entities.\n\n";

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
