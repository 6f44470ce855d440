// Operations on entities as a whole and on their pairs. Each marks the map modified.
#pragma once

#include <string_view>

#include "model/map.h"

namespace velk {

// Whether the current entity's brushes can go back to the world: it is built of brushes, has a class name and
// is not the world.
bool CanRevert(const map& m);
// Moves all brushes of the current entity into the world, selected, and removes the entity; the world is
// current then. Fatal, with nothing changed, when the world has no room for them.
void RevertToWorld(map& m);

// With careful tools the world stays the world: without it a map would lose its brushes.
inline constexpr char kWorldKeepsClass[] = "The world keeps its class...";
bool KeepsItsClass(const entity& e, std::string_view key);

// Sets a pair as entity::setKey does. Brushes follow a new class's colour. With careful_tools "origin" moves
// the box of a fixed-size entity there, and "classname" keeps the origin and gives it the box of the new
// class.
void SetPair(entity& e, std::string_view key, std::string_view value);
// Removes a pair; one that is not there is passed over.
void RemovePair(entity& e, std::string_view key);

// Selects all brushes of the entity and nothing else; it is current then.
void SelectEntity(map& m, entity& e);

}  // namespace velk
