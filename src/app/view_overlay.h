// What stands over the pictures of the views for a moment: the marks of a running drag, the size of what it
// draws, and what a click would take.
#pragma once

#include "app/editor.h"

namespace velk {

// Whether there is anything to draw over a view; `hovered` as its input says.
bool HasOverlay(const Editor& editor, const FacePick& hovered);
void DrawViewOverlay(Canvas& canvas, Editor& editor, int view, const FacePick& hovered);

// What lasts: the ghosts of an open dialog, the leak line, the clip points and the compass. A map must be
// open.
void DrawCameraMarks(Canvas& canvas, Editor& editor);

}  // namespace velk
