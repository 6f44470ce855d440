// Seeds: the brush that a maker fills with something else, and the one place where makers touch a map.
#pragma once

#include <string>

#include "base/outcome.h"
#include "makers/made.h"
#include "model/map.h"

namespace velk {

inline constexpr const char* kNotOneSelected = "Must only have one selected brush...";
inline constexpr const char* kNothingMade = "Nothing valid comes of these values, brush kept...";

// What makers need of the brush.
struct Seed {
  int group = 0;
  vec3 mins;
  vec3 maxs;
  texturedef texture;  // of face 0, for all faces made
};

// The brush selected, when it is the only one in the map; otherwise none.
brush* OnlySelected(map& m);

Seed SeedOf(const brush& b);
// With care, the seed with its bounds in whole units, as files hold them; else as it is.
Seed FittedSeed(Seed seed, const MakerRules& rules);

// Removes the brush from its entity, which goes when it was its last, and destroys it.
Seed TakeSeed(map& m, brush& b);

// The entity that what is made goes to.
enum class MadeFor {
  World,
  Current,     // the map's current entity
  SeedsOwner,  // the one that the seed is in; the world for a seed of a fixed-size entity
};
entity& OwnerFor(map& m, const brush& seed, MadeFor what);

// Gives the brushes to the entity, in order and selected. Fatal, with nothing added, when it has no room
// for all.
void PlaceBrushes(map& m, entity& owner, Made made);

struct Replacing {
  MadeFor owner = MadeFor::World;
  bool careful = false;  // keep the seed when nothing was made; count what was left out
  std::string status;    // when it was done
  const char* nothing = kNothingMade;
};
// Puts what was made in place of the seed. A seed leaves before its successors come when these go to the
// world, else after them. Fatal, with the map unchanged, when the entity has no room.
Outcome ReplaceSeed(map& m, brush& seed, Made made, const Replacing& how);

}  // namespace velk
