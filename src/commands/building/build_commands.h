// From the map to the level: batch files, the launcher, builds in the build window, and the check before.
#pragma once

#include "app/editor.h"

namespace velk {

// Saves the map and starts a batch file by its stem: "super".
Outcome RunBatch(Editor& editor, map& m, const char* stem);
// Saves the map and starts the outside launcher.
Outcome LaunchBuilder(Editor& editor, map& m);

// The build window.
Outcome ShowBuildWindow(Editor& editor);
Outcome StartBuild(Editor& editor, map& m);
Outcome StopBuild(Editor& editor);
bool BuildRuns(const Editor& editor);
// Starts the program that the profiles name with the level; asks for it when there is none.
Outcome Play(Editor& editor, map& m);
Outcome CheckMapNow(Editor& editor, map& m);

}  // namespace velk
