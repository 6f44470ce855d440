// The game's light table.
#pragma once

#include <array>
#include <memory>

#include "textures/wad.h"

namespace velk {

// 64 rows of 256 palette indices, the brightest row first: row = light level, column = unlit colour.
inline constexpr int COLORMAP_ROWS = 64;
using ColormapTable = std::array<unsigned char, COLORMAP_ROWS * PALETTE_COLOURS>;

// Reads "colormap.lmp" from the folder of the entity definitions, or a file the user chooses. None when
// the file is too short: nothing is shaded then. Fatal: "You must select a valid colormap.lmp file."
// when nothing was chosen, "Invalid colormap.lmp file." when the file is not there.
std::unique_ptr<ColormapTable> loadColormap(const WadServices& services);

}  // namespace velk
