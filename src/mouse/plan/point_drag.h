// Dragging plane points of one brush: what the drags of faces, edges and corners share.
#pragma once

#include <vector>

#include "mouse/drag.h"

namespace velk {

// A plane point of a brush, by the numbers of face and point.
struct PlanePoint {
  int face = 0;
  int point = 0;
};

// Adds the three plane points of a face.
void AddFacePoints(std::vector<PlanePoint>& points, int face);

// Takes out faces without polygon and destroys a brush that is no solid; whether it is still there.
bool CleanUpBrush(brush& b);

// The one selected brush; none when there are several or none, or when it is hidden.
brush* OnlyShownSelected(const map& m);

struct PointDragKind {
  int code = 0;
  const char* undoName = "";
  bool snaps = true;
};
// Saves the undo copy of the tool. The brush may be changed afterwards.
void BeginPointDrag(const MouseContext& context, const PointDragKind& kind);
// The drag of these points, at least one.
ToolStart DragPoints(brush& b, std::vector<PlanePoint> points, const PointDragKind& kind);

}  // namespace velk
