// What stands over the pictures of the views for a moment: the marks of a running drag, the size of what it
// draws, and what a click would take.
#pragma once

#include "app/editor.h"

namespace velk {

// Whether there is anything to draw over a view.
bool HasOverlay(Editor& editor, int view);
void DrawPlanOverlay(Canvas& canvas, Editor& editor, int view);
void DrawCameraOverlay(Canvas& canvas, Editor& editor);

// What lasts: the compass and the clip points. A map must be open.
void DrawCameraMarks(Canvas& canvas, Editor& editor);

}  // namespace velk
