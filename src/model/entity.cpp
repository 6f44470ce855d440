#include "model/entity.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "base/error.h"
#include "base/numbers.h"
#include "base/text.h"
#include "model/map.h"

namespace velk {
namespace {

const std::string kNoValue;

constexpr std::string_view kOrigin = "origin";

// From here on looking through all pairs takes longer than an index.
constexpr size_t kManyPairs = 64;

}  // namespace

std::string_view WithoutLeadingBlanks(std::string_view key) {
  const auto start =
      std::find_if(key.begin(), key.end(), [](char c) { return static_cast<unsigned char>(c) > 32; });
  return key.substr(size_t(start - key.begin()));
}

entity::entity(map& parent) : parent_(&parent) {
  if (parent.counters()) ++parent.counters()->entitiesConstructed;
}

entity::~entity() {
  if (parent_->counters()) ++parent_->counters()->entitiesDestroyed;
}

std::weak_ptr<const void> entity::identity() {
  if (!identity_) identity_ = std::make_shared<int>(0);
  return identity_;
}

int entity::indexOf(const brush* b) const { return b && at(b->place_) == b ? b->place_ : -1; }

void entity::requireRoom(int count) const {
  if (numbrushes() + count > MAX_ENTITY_BRUSHES) Error("entity->addobject, too many objects");
}

brush& entity::addobject(std::unique_ptr<brush> added) {
  requireRoom();
  touch();
  added->owner = this;
  added->place_ = numbrushes();
  brushes_.push_back(std::move(added));
  return *brushes_.back();
}

std::unique_ptr<brush> entity::removeObject(const brush* b, std::unique_ptr<entity>* emptied) {
  const int index = indexOf(b);
  if (index < 0) return nullptr;
  touch();
  std::unique_ptr<brush> removed = std::exchange(brushes_[size_t(index)], nullptr);
  std::swap(brushes_[size_t(index)], brushes_.back());
  brushes_.pop_back();
  if (brush* moved = at(index)) moved->place_ = index;
  if (brushes_.empty() && emptied && !isWorld()) *emptied = parent_->removeEntity(this);
  return removed;
}

std::unique_ptr<brush> entity::replaceAt(int index, std::unique_ptr<brush> with) {
  touch();
  with->owner = this;
  with->place_ = index;
  std::swap(brushes_[size_t(index)], with);
  return with;
}

std::vector<std::unique_ptr<brush>> entity::takeBrushes() {
  touch();
  for (brush& b : brushes()) b.owner = nullptr;
  return std::exchange(brushes_, {});
}

void entity::setKey(std::string_view key, std::string_view value) {
  if (key.size() >= MAX_KEY) Error("setKey: %s > MAX_KEY", std::string(key).c_str());
  if (value.size() >= MAX_VALUE) Error("setKey: %s > MAX_VALUE", std::string(value).c_str());
  key = WithoutLeadingBlanks(key);
  if (key.empty()) return;
  if (const size_t place = placeOf(key); place < pairs_.size()) {
    if (pairs_[place].value == value) return;
    touch();
    pairs_[place].value = value;
  } else {
    touch();
    pairs_.push_back({std::string(key), std::string(value)});
  }
}

void entity::removeKeyPair(std::string_view key) {
  if (pairs_.empty()) return;
  places_.clear();
  if (std::erase_if(pairs_, [&](const KeyPair& pair) { return pair.key == key; }) > 0) {
    touch();
  } else {
    std::printf("WARNING: removeKeyPair: %s not found\n", std::string(key).c_str());
  }
}

const std::string& entity::valueOfKey(std::string_view key) const {
  if (key == kOrigin) {
    if (std::optional<std::string> origin = originText()) return origin_ = std::move(*origin);
  }
  const size_t place = placeOf(key);
  return place < pairs_.size() ? pairs_[place].value : kNoValue;
}

size_t entity::placeOf(std::string_view key) const {
  if (pairs_.size() < kManyPairs) {
    const auto found = std::ranges::find(pairs_, key, &KeyPair::key);
    return static_cast<size_t>(found - pairs_.begin());
  }
  for (size_t i = places_.size(); i < pairs_.size(); ++i) places_.emplace(pairs_[i].key, i);
  const auto found = places_.find(std::string(key));
  return found == places_.end() ? pairs_.size() : found->second;
}

vec3 entity::vectorOfKey(std::string_view key) const {
  std::string_view text = valueOfKey(key);
  vec3 v;
  for (int axis = 0; axis < 3; ++axis) {
    const std::optional<float> number = TakeFloat(text);
    if (!number) break;
    v[axis] = *number;
  }
  return v;
}

bool entity::isWorld() const { return parent_->world() == this; }

std::unique_ptr<entity> entity::copy(map& target) const {
  auto made = std::make_unique<entity>(target);
  made->isModel = isModel;
  made->pairs_ = pairs_;
  made->brushes_.reserve(brushes_.size());
  for (const auto& original : brushes_) {
    made->addobject(std::make_unique<brush>(*original)).buildWindings();
  }
  if (made->numbrushes() != numbrushes()) Error("Copying entity, counts didn't match");
  return made;
}

std::string entity::makeTargetName() {
  if (const std::string& given = valueOfKey("targetname"); !given.empty()) return given;
  std::int64_t largest = 0;
  for (int i = 1; i < parent_->numentities(); ++i) {
    const std::string& name = parent_->at(i)->valueOfKey("targetname");
    if (name.starts_with('t'))
      largest = std::max<std::int64_t>(largest, TextToInt(std::string_view(name).substr(1)));
  }
  std::string made = "t" + std::to_string(largest + 1);
  setKey("targetname", made);
  return made;
}

}  // namespace velk
