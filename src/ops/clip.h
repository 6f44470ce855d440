// The clipper: two or three points in a plan view define a plane, which cuts the selected brushes.
#pragma once

#include <optional>

#include "base/outcome.h"
#include "model/map.h"
#include "ops/view_axes.h"

namespace velk {

inline constexpr char kClipFlipped[] = "Clipper flipped...";
inline constexpr char kClipCarved[] = "Carved...";
inline constexpr char kClipSplit[] = "Split...";
inline constexpr char kClipNoPlane[] = "No clip plane...";           // with careful tools
inline constexpr char kClipMovedUp[] = "Clip point %i moved up...";  // the index, from 0
inline constexpr char kClipMovedDown[] = "Clip point %i moved down...";
inline constexpr char kClipChosen[] = "Selecting clip point # %i...";  // the number, from 1
inline constexpr char kClipHidden[] = "Hiding clip points";
inline constexpr char kAllDeselected[] = "Deselected all brushes/entities";

// The largest distance on each axis, in world units, at which a press takes hold of a clip point.
inline constexpr double kClipReach = 10;

// The face that two or three points make: the third of two lies 16 units along `depthAxis`, the axis that
// the current plan view looks along (2 without one). None with fewer points or with all on a line. Carve
// keeps what is behind the face.
std::optional<face> makeClipFace(const clipper& clip, int depthAxis);

// Places a clip point at (u, v), snapped to the grid, in the depth of `planCenter`; a fourth one starts
// anew. On a point that is there already, moves that one to the other end of the work range instead. In a
// view along y the first two points are swapped, so that Carve keeps the same side in all views: what lies
// to the right of the way from the first point to the second.
Outcome addClipPoint(map& m, const ViewAxes& axes, double u, double v, const vec3& planCenter);

// A drag of one clip point or of all three from its press to its end. Positions are world units on the
// view's axes; depths stay.
class ClipDrag {
 public:
  ClipDrag(const clipper& clip, const ViewAxes& axes, int index, bool all);

  // By the offset from the press to where the mouse is.
  void move(clipper& clip, double du, double dv) const;
  // Snaps what was dragged to the grid.
  void finish(clipper& clip, int gridsize) const;
  // Puts everything back.
  void cancel(clipper& clip) const { clip = before_; }

 private:
  bool drags(int index) const { return all_ || index == index_; }

  clipper before_;
  ViewAxes axes_;
  int index_;
  bool all_;
};

// The first clip point that a press at (u, v) takes hold of; -1 for none.
int HitClipPoint(const clipper& clip, const ViewAxes& axes, double u, double v);
// Start a drag: of the point hit, which becomes the current one, or of the plane. None, and nothing
// changed, when no point is near.
std::optional<ClipDrag> dragClipPoint(clipper& clip, const ViewAxes& axes, double u, double v);
std::optional<ClipDrag> dragClipPlane(const clipper& clip, const ViewAxes& axes, double u, double v);

// Turns the plane round.
Outcome FlipClipper(clipper& clip);
// Move the current point along z by the grid size.
Outcome MoveClipPointUp(map& m);
Outcome MoveClipPointDown(map& m);
// `index` is 0 to 2.
Outcome ChooseClipPoint(clipper& clip, int index);
// Takes the clip points away; when there are none, deselects everything and makes the world current.
Outcome HideClipPointsOrDeselect(map& m);

// Cuts one brush down to what is behind the face; it is invalid when that is nothing. A full brush is fatal
// "addFace: numfaces == MAX_FACES".
void cutBrush(brush& b, const face& clipFace);
// The same, and gives what is in front; none when that is nothing. The new brush is in no list yet.
std::unique_ptr<brush> SplitBrush(brush& b, const face& clipFace);

// Cut the selected brushes of visible groups by the clip plane and take the clip points away. Carve keeps
// what is behind the plane, Split both parts. Brushes of which nothing is left are destroyed. Careful: says
// so and keeps the points when there is no plane, and leaves the boxes of point entities alone.
Outcome CarveSelection(map& m, int depthAxis, bool careful);
Outcome SplitSelection(map& m, int depthAxis, bool careful);

}  // namespace velk
