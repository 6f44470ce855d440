// What is looked for before a map is compiled.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/map.h"
#include "textures/texture_set.h"

namespace velk {

struct CheckFinding {
  // The one sure mend: the brush goes, faces that bound nothing go, the entity goes.
  enum class Mend { None, RemoveBrush, RemoveFaces, RemoveEntity };
  std::string text;
  int entityNumber = -1;  // -1: of the map as a whole
  int brushNumber = -1;   // -1: of the entity as a whole
  int face = -1;
  Mend mend = Mend::None;
  // What it is about, while it exists.
  entity* owner = nullptr;
  brush* found = nullptr;
  std::weak_ptr<const void> identity{};

  bool stillThere() const { return entityNumber < 0 || !identity.expired(); }
};

// Everything found, brushes first, in the order of the map. Without textures (no wad at all) faces are not
// looked up. Nothing of the map is changed.
std::vector<CheckFinding> CheckMap(map& m, const TextureSet& textures);

// Does the finding's mend; false when there is none or its object is gone.
bool MendFinding(map& m, const CheckFinding& finding);

}  // namespace velk
