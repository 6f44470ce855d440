// Reading wads again while maps are open.
#pragma once

#include "documents/door.h"
#include "textures/texture_manager.h"

namespace velk {

// Reads the wads again, builds the textures of all open maps anew and has faces look theirs up again. A wad
// that cannot be read stays as it was, and the user is told why. Nothing happens while a drag runs.
void ReloadWads(Documents& documents, Door& door, TextureManager& textures, const std::vector<Wad*>& wads);

}  // namespace velk
