// Commands that turn, mirror, scale, move and reshape the selection, and those of the clipper.
#pragma once

#include "app/editor.h"

namespace velk {

// axis: 0 x, 1 y, 2 z.
Outcome MirrorOn(Editor& editor, map& m, int axis);
Outcome QuarterTurnOn(Editor& editor, map& m, int axis);
// Each asks for its numbers.
Outcome AskRotate(Editor& editor, map& m);
Outcome AskScale(Editor& editor, map& m);
Outcome AskCopyMove(Editor& editor, map& m);
Outcome AskHeight(Editor& editor, map& m);
Outcome ExtrudeBrush(Editor& editor, map& m);
Outcome TallBrush(Editor& editor, map& m);
Outcome ShortBrush(Editor& editor, map& m);
Outcome SnapToGrid(Editor& editor, map& m);
Outcome Subtract(Editor& editor, map& m);

Outcome FlipClipPlane(Editor& editor, map& m);
Outcome CarveByClipPlane(Editor& editor, map& m);
Outcome SplitByClipPlane(Editor& editor, map& m);
Outcome RaiseClipPoint(Editor& editor, map& m);
Outcome LowerClipPoint(Editor& editor, map& m);
// index: 0..2.
Outcome ChooseClipPointAt(Editor& editor, map& m, int index);

}  // namespace velk
