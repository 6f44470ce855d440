// Align: the selected brushes move to one side, or to the middle, of what they span together.
#pragma once

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

enum class Alignment { Left, Right, Front, Back, Bottom, Top, Centre };

inline constexpr const char* kAligned[] = {
    "Aligned selected brushes left...",   "Aligned selected brushes right...",
    "Aligned selected brushes front...",  "Aligned selected brushes back...",
    "Aligned selected brushes bottom...", "Aligned selected brushes top...",
    "Aligned selected brushes centre..."};

// Left and right are the ends of x, front and back of y, bottom and top of z; the centre is that of all
// three. Each selected brush of a visible group moves by whole numbers.
Outcome AlignSelection(map& m, Alignment to);

}  // namespace velk
