// Subtract: carves the selected brushes out of the other brushes of the current entity.
#pragma once

#include <functional>
#include <string>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kSubtracting[] = "Subtracting selection...";
inline constexpr char kBoxesDoNotCut[] = "Boxes of point entities do not cut...";
inline constexpr char kNothingToSubtract[] = "Must have at least one selected brush...";  // careful tools
inline constexpr char kSubtractStopped[] = "Subtraction stopped...";
// Shown while it runs, at these pixels of the camera view's picture.
inline constexpr char kSubtractProgress[] = "[Subtracting %i/%i]   ";
inline constexpr char kCutProgress[] = "Cutting [%i/%i]     ";
inline constexpr int kProgressLeft = 2;
inline constexpr int kSubtractProgressTop = 2;
inline constexpr int kCutProgressTop = 22;

// Hears what is being done and at which height to show it; false stops the subtraction.
using SubtractProgress = std::function<bool(const std::string& text, int top)>;

// Replaces every unselected brush that overlaps a selected one by the pieces of it that lie outside. In
// group mode brushes of hidden groups stay whole. The subtractors stay, selected, behind the pieces; of the
// others the order is turned round once for each subtractor and once more. An entity that is left empty
// goes, and the world becomes current. `progress` may be empty. Stopped, or ended by a fatal error (a brush
// of more than 64 faces, an entity of more than 4096 brushes), it leaves the map as it was. Careful: with
// nothing selected, or only the box of a point entity, it says so and changes nothing.
Outcome subtractSelection(map& m, bool careful, const SubtractProgress& progress = {});

}  // namespace velk
