// The search box of the texture browser: words in any order, "#used", "#wad:NAME".
#pragma once

#include <string>
#include <vector>

#include "textures/texture_set.h"

namespace velk {

// What the textures of a map are looked at for.
struct TextureFilterSource {
  const TextureSet& set;
  const std::vector<int>& uses;  // faces that use each texture of the set; may be empty: none does
};

// The places in the set of the textures that have all words in their names (a frame's name counts, too), in
// the order of the set. "#used" leaves those that faces use, "#wad:NAME" those of wads with NAME in their
// file's name. Letter case does not count; without words all are left.
std::vector<int> FilterTextures(const TextureFilterSource& source, const std::string& search);

// Whether the words ask for the uses.
bool AsksForUses(const std::string& search);

// The faces of the map that use each texture of the set, frames counted for their animation.
std::vector<int> CountTextureUses(const map& m, const TextureSet& set);

}  // namespace velk
