// Files that nobody chose in a dialog just now: named on the command line, dropped on the window.
#pragma once

#include <string>

#include "app/editor.h"

namespace velk {

// What becomes of a file goes by its ending, in any case: ".mrg" is merged into the current map and ".bru"
// loaded into it, a new map when none is open; the points of ".pts" and ".lin" are shown when a map is open;
// everything else is opened as a map.
void OpenNamed(Editor& editor, const std::string& file);
// The same, but a map that is open already is shown.
void ShowNamed(Editor& editor, const std::string& file);

}  // namespace velk
