// Putting other brushes in the place of some.
#pragma once

#include <memory>
#include <vector>

#include "model/map.h"

namespace velk {

// Of one brush; without any in its place it is destroyed.
struct Replacement {
  brush* old = nullptr;
  std::vector<std::unique_ptr<brush>> by;
};

// Carries all of them out: the first new brush takes the old one's place in its entity, the others go to the
// end of the list. An entity that would have too many is fatal "entity->addobject, too many objects", and
// then nothing has been changed.
void ReplaceBrushes(map& m, std::vector<Replacement> all);

}  // namespace velk
