// Files that nobody chose in a dialog just now: named on the command line, dropped on the window.
#pragma once

#include <string>

#include "app/editor.h"

namespace velk {

// Opens a map.
void OpenNamed(Editor& editor, const std::string& file);
// The same, but a map that is open already is shown.
void ShowNamed(Editor& editor, const std::string& file);

}  // namespace velk
