// Entities: key/value pairs and the brushes that give them shape.
#pragma once

#include <memory>
#include <optional>
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
struct KeptEntity;

inline constexpr int MAX_KEY = 64;  // bytes with the terminator
inline constexpr int MAX_VALUE = 128;
inline constexpr int MAX_ENTITY_BRUSHES = 4096;

struct KeyPair {
  std::string key;
  std::string value;
};

// A key as a pair keeps it: leading bytes up to 32 are dropped.
std::string_view WithoutLeadingBlanks(std::string_view key);

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
  void destroyBrushes() {
    touch();
    brushes_.clear();
  }
  // Hands over all brushes; the entity stays in its list.
  std::vector<std::unique_ptr<brush>> takeBrushes();
  Pointees<brush> brushes() const { return Pointees(brushes_); }
  std::unique_ptr<brush> replaceAt(int index, std::unique_ptr<brush> with);

  // Pairs, newest first, as they are written; in place of the value of "origin" see originText.
  Reversed<KeyPair> pairs() const { return Reversed(pairs_); }
  // The same, oldest first.
  const std::vector<KeyPair>& pairsInOrder() const { return pairs_; }
  // A key of 64 characters or more is fatal "setKey: %s > MAX_KEY", a value of 128 or more "setKey: %s >
  // MAX_VALUE". Leading bytes up to 32 of the key are dropped; an empty key is ignored.
  void setKey(std::string_view key, std::string_view value);
  // An absent key warns on standard output, unless there are no pairs at all.
  void removeKeyPair(std::string_view key);
  bool hasKey(std::string_view key) const { return placeOf(key) < pairs_.size(); }
  // "" when the key is absent; for "origin" what originText says, which holds until the next such call.
  const std::string& valueOfKey(std::string_view key) const;
  // Missing components stay 0.
  vec3 vectorOfKey(std::string_view key) const;

  // What the last snapshot kept of the entity, and whether something of that changed since: pairs, the list
  // of brushes, or one of them.
  const std::shared_ptr<const KeptEntity>& kept() const { return kept_; }
  bool changedSinceKept() const { return changed_; }
  void setKept(std::shared_ptr<const KeptEntity> kept) {
    kept_ = std::move(kept);
    changed_ = false;
  }
  void touch() { changed_ = true; }

  // Expires with the entity; made when first asked for.
  std::weak_ptr<const void> identity();

  const EntityClass& entityClass() const;
  bool isWorld() const;

  // A copy in `target` (not added to its list), its pairs in the same order, its brushes rebuilt.
  std::unique_ptr<entity> copy(map& target) const;

  // The entity's "targetname", made as "t<n>" from the largest in the map when it has none.
  std::string makeTargetName();

  // Sets "classname"; a fixed-size class also gets "origin" and its box at the first selected brush, or at
  // the map's origin when none is selected.
  void setClass(std::string_view classname);
  // Adds the box of the entity's class at `origin`, 16 units a side for an unknown class.
  void makeClassBox(const vec3& origin);
  // "origin" of a fixed-size entity as its box stands, which is what its file says whatever the pair holds:
  // the box's mins less the class mins, those of an unknown class being 0. Whole numbers that would put the
  // box there, otherwise truncated. None for other entities, and when the box is beyond the model's range.
  std::optional<std::string> originText() const;

 private:
  friend class map;
  // Where the key's pair is in `pairs_`; its size when there is none.
  size_t placeOf(std::string_view key) const;

  map* parent_;
  int place_ = -1;  // in the map's list, when it is there
  std::vector<std::unique_ptr<brush>> brushes_;
  std::vector<KeyPair> pairs_;  // oldest first
  // Places of the oldest pairs by key, as many as have been looked for; unused while there are few pairs.
  mutable std::unordered_map<std::string, size_t> places_;
  mutable std::string origin_;  // what valueOfKey last made of the box
  std::shared_ptr<const int> identity_;
  std::shared_ptr<const KeptEntity> kept_;
  bool changed_ = true;
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
