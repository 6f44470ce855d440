// The kit's textures, by family. Each function appends its own to the list.
#pragma once

#include <string>
#include <vector>

#include "surface.h"

namespace velk::kit {

struct NamedImage {
  std::string name;  // upper case, at most 15 characters
  Image image;
};
using Catalogue = std::vector<NamedImage>;

void AddWalls(Catalogue& catalogue);
void AddFloors(Catalogue& catalogue);
void AddMetals(Catalogue& catalogue);
void AddWoods(Catalogue& catalogue);
void AddDoors(Catalogue& catalogue);
void AddLights(Catalogue& catalogue);
void AddSwitches(Catalogue& catalogue);
void AddLiquids(Catalogue& catalogue);
void AddSkies(Catalogue& catalogue);
void AddSpecials(Catalogue& catalogue);

}  // namespace velk::kit
