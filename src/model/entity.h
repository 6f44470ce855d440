// Entities: key/value pairs and the brushes that give them shape.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "entities/entity_class.h"
#include "model/brush.h"
#include "model/ranges.h"

namespace velk {

class map;

inline constexpr int MAX_KEY = 64;  // bytes with the terminator
inline constexpr int MAX_VALUE = 128;
inline constexpr int MAX_ENTITY_BRUSHES = 4096;

struct KeyPair {
  std::string key;
  std::string value;
};

class entity {
 public:
  // Belongs to `parent` from the start, whether or not it is in its list yet.
  explicit entity(map& parent);
  ~entity();
  entity(const entity&) = delete;
  entity& operator=(const entity&) = delete;

  map& parent() const { return *parent_; }

  // The brushes are the entity's own (world, doors, triggers); false: one box of a fixed-size class.
  bool isModel = false;
  const entity* source = nullptr;  // in a copy: the entity copied

  // Brushes, owned. A 4097th is fatal "entity->addobject, too many objects".
  int numbrushes() const { return static_cast<int>(brushes_.size()); }
  brush* at(int index) const {
    return index >= 0 && index < numbrushes() ? brushes_[static_cast<size_t>(index)].get() : nullptr;
  }
  int indexOf(const brush* b) const;  // -1 when it is not there
  brush& addobject(std::unique_ptr<brush> added);
  // Fatal as addobject is when there is no room for so many: before something is taken out of its place to
  // be added.
  void requireRoom(int count = 1) const;
  // Takes the brush out; the last one moves into its slot. None when it is not in the list. An entity
  // other than the world that is left empty leaves the map's list and is handed over in `emptied`, for the
  // caller to destroy; when that is null it stays in the map, empty.
  std::unique_ptr<brush> removeObject(const brush* b, std::unique_ptr<entity>* emptied);
  void destroyBrushes() { brushes_.clear(); }
  // Hands over all brushes; the entity stays in its list.
  std::vector<std::unique_ptr<brush>> takeBrushes() { return std::exchange(brushes_, {}); }
  Pointees<brush> brushes() const { return Pointees(brushes_); }
  std::unique_ptr<brush> replaceAt(int index, std::unique_ptr<brush> with);

  // Pairs, newest first, as they are written.
  Reversed<KeyPair> pairs() const { return Reversed(pairs_); }
  // The same, oldest first.
  const std::vector<KeyPair>& pairsInOrder() const { return pairs_; }
  // A key of 64 characters or more is fatal "setKey: %s > MAX_KEY", a value of 128 or more "setKey: %s >
  // MAX_VALUE". Leading bytes up to 32 of the key are dropped; an empty key is ignored.
  void setKey(std::string_view key, std::string_view value);
  // An absent key warns on standard output, unless there are no pairs at all.
  void removeKeyPair(std::string_view key);
  // "" when the key is absent.
  const std::string& valueOfKey(std::string_view key) const;
  // Missing components stay 0.
  vec3 vectorOfKey(std::string_view key) const;

  // Expires with the entity; made when first asked for.
  std::weak_ptr<const void> identity();

  const EntityClass& entityClass() const;
  bool isWorld() const;

  enum class Copy { Rebuilt, ForUndo, PairsOnly };
  // A copy in `target` (not added to its list), its pairs in the same order. Brushes are rebuilt, or left
  // without polygons for undo.
  std::unique_ptr<entity> copy(map& target, Copy kind) const;

  // The entity's "targetname", made as "t<n>" from the largest in the map when it has none.
  std::string makeTargetName();

  // Sets "classname"; a fixed-size class also gets "origin" and its box at the first selected brush, or at
  // the map's origin when none is selected.
  void setClass(std::string_view classname);
  // Adds the box of the entity's class at `origin`, 16 units a side for an unknown class.
  void makeClassBox(const vec3& origin);
  // "origin" of a fixed-size entity: its box's mins less the class mins, truncated; the box's mins when the
  // class is unknown.
  void updateOriginFromBox();

 private:
  friend class map;
  // Where the key's pair is in `pairs_`; its size when there is none.
  size_t placeOf(std::string_view key) const;

  map* parent_;
  std::vector<std::unique_ptr<brush>> brushes_;
  std::vector<KeyPair> pairs_;  // oldest first
  // Places of the oldest pairs by key, as many as have been looked for; unused while there are few pairs.
  mutable std::unordered_map<std::string, size_t> places_;
  std::shared_ptr<const int> identity_;
};

// The colour in which brushes of the entity's class are drawn flat.
vec3 ClassColour(const entity& e);

// Removes the brush from its entity and destroys it. A valid one leaves its depth as the map's work range;
// an entity other than the world that is left empty is removed from the map and destroyed.
void DestroyBrush(brush& b);
// The same, but the brush is handed over; its owner is none when that was destroyed.
std::unique_ptr<brush> RemoveFromEntity(brush& b);
// Moves the brush into `target`, taking its class colour. With multi_select on, brushes of fixed-size
// entities stay.
void MoveToEntity(brush& b, entity& target);

}  // namespace velk
