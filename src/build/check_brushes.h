// The part of a map's check that looks at brushes.
#pragma once

#include <vector>

#include "build/check_map.h"

namespace velk {

// Invalid, degenerate, twice in one place, thinner than a unit, with plane points that a file cannot hold or
// beyond the world's limits, with many faces, and faces without a texture that a wad has.
void CheckBrushes(map& m, const TextureSet& textures, std::vector<CheckFinding>& findings);

}  // namespace velk
