// Leak points: shown from a file, hidden, and flown along.
#pragma once

#include <string>

#include "app/editor.h"

namespace velk {

Outcome LoadLeaks(Editor& editor, map& m);
// A file that has no points leaves none shown.
Outcome ShowLeakFile(Editor& editor, const std::string& path);
Outcome StopLeaks(Editor& editor, map& m);
bool LeaksShown(const Editor& editor);
// The camera goes to the next point, or the one before (-1), and looks along the trail.
Outcome StepLeak(Editor& editor, map& m, int by);

}  // namespace velk
