// What the entity window reads off entities and their classes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/map.h"

namespace velk {

// A pair of all the entities that are edited; one that not all of them have alike differs.
struct SharedPair {
  std::string key;
  std::string value;  // of the first of them
  bool differs = false;
};

// In the order of the first one's pairs, then what only others have. "origin" says what the box says.
std::vector<SharedPair> SharedPairs(const std::vector<entity*>& edited);
// "\"%s\" - \"%s\"", with dots for values that differ.
std::string PairText(const SharedPair& pair);

// The text without the characters that the fields for keys and values do not take.
std::string FieldText(std::string_view text);

// The keys that the class's text names: what stands in double quotes in it, in its order, each once.
std::vector<std::string> KeysNamedBy(const EntityClass& entityClass);

// An entity that another points to, or that points to it, by "target" or "killtarget" and "targetname".
struct EntityLink {
  entity* other = nullptr;
  bool pointsTo = false;  // the one asked about points to the other
  std::string name;       // the target name
};
std::vector<EntityLink> LinksOf(const entity& e);

// A colour as a pair holds it: three numbers, up to 1 or up to 255. None when it does not read.
std::optional<Colour> ColourOfValue(std::string_view value);
// The colour as text, in the range that `old` has; up to 1 when that is no colour.
std::string ValueOfColour(Colour colour, std::string_view old);

}  // namespace velk
