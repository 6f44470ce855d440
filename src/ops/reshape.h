// Giving the one selected brush another shape: a tall, a short or an exact box, or a room around it.
#pragma once

#include <memory>
#include <vector>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kMustHaveOneSelected[] = "Must only have one selected brush...";
inline constexpr char kPointBoxStays[] = "Boxes of point entities keep their size...";  // careful tools
inline constexpr char kMadeTall[] = "Made selected brush tall...";
inline constexpr char kMadeShort[] = "Made selected brush short...";
inline constexpr char kHeightTitle[] = "Set Brush Height";  // of the input box, and of the undo copy
inline constexpr char kHeightPrompt[] = "Enter height for brush...";
inline constexpr char kHeightSet[] = "Resized height of selected brush...";
inline constexpr char kNoBoxFits[] = "Nothing valid comes of it, brush kept...";  // careful tools
inline constexpr char kBadHeight[] = "Bad height...";
inline constexpr char kExtruding[] = "Extruding selected brush...";
inline constexpr char kExtrudeNothing[] = "Nothing to extrude...";  // careful tools
// Of careful tools, added to that: how many slabs came out invalid.
inline constexpr char kLeftOut[] = " %i left out";
// Of walls of any kind, in world units: asked for with the query_wall_width setting, else the grid's size.
inline constexpr char kWallTitle[] = "Set Wall Thickness";
inline constexpr char kWallPrompt[] = "Enter wall thickness (1-1024)...";
inline constexpr char kBadThickness[] = "Bad thickness...";
inline constexpr int kThinnestWall = 1;
inline constexpr int kThickestWall = 1024;
// Walls of other thicknesses are not made.
inline bool IsWallThickness(int units) { return units >= kThinnestWall && units <= kThickestWall; }

// What the input box of the height shows at first.
int SuggestedHeight(const map& m);

// With exactly one brush selected anywhere, a box takes its place, with its group and its first face's
// texture, in the world and selected; otherwise they say so and change nothing. Careful: the box is put in
// the entity that the brush was in, and a brush without bounds stays, as do the boxes of point entities.
// Tall and short keep the bounds on x and y; the height starts at the brush's bottom.
Outcome MakeTall(map& m, bool careful);
Outcome MakeShort(map& m, bool careful);
Outcome SetHeight(map& m, int height, bool careful);
// The box that would come of it, in no list; none without one selected brush.
std::vector<std::unique_ptr<brush>> BoxOfHeight(map& m, int height, bool careful);

// Puts a slab of that thickness on the outside of every face of the one selected brush, in place of the
// brush, all selected. A thickness out of range does nothing. Careful: as above; slabs that come out invalid
// are counted.
Outcome ExtrudeSelection(map& m, int thickness, bool careful);
// The slabs that it would put there, in no list.
std::vector<std::unique_ptr<brush>> ExtrudedSlabs(map& m, int thickness, bool careful);

}  // namespace velk
