#include "model/map.h"

#include <algorithm>
#include <utility>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

// Work range values must lie above the one, below the other.
constexpr float kLowestWork = -2048;
constexpr float kHighestWork = 2048;

constexpr float kNoBound = 32765;

}  // namespace

map::map(const Settings& settings, const EntityClassList& classes, ObjectCounters* counters)
    : settings_(settings), classes_(classes), counters_(counters) {}

// Brushes handed over to others must not keep a list that goes.
map::~map() { hits.clear(); }

int map::indexOf(const entity* e) const { return e && at(e->place_) == e ? e->place_ : -1; }

void map::requireRoom(int count) const {
  if (numentities() + count > MAX_ENTITIES) Error("map->addobject, too many brushes on entity...");
}

entity& map::addobject(std::unique_ptr<entity> added) {
  requireRoom();
  added->place_ = numentities();
  entities_.push_back(std::move(added));
  modified = true;
  return *entities_.back();
}

std::unique_ptr<entity> map::removeEntity(const entity* e) {
  modified = true;
  const int index = indexOf(e);
  if (index < 1) return nullptr;
  std::unique_ptr<entity> removed = std::exchange(entities_[size_t(index)], nullptr);
  std::swap(entities_[size_t(index)], entities_.back());
  entities_.pop_back();
  if (entity* moved = at(index)) moved->place_ = index;
  if (currentEntity_ == e) setCurrentEntity(world());
  return removed;
}

void map::setCurrentEntity(entity* e) {
  modified = true;
  currentEntity_ = e;
}

brush* map::firstSelected() const {
  const auto selectedOf = [](const entity& e) -> brush* {
    for (brush& b : e.brushes()) {
      if (b.selected()) return &b;
    }
    return nullptr;
  };
  const entity* current = currentEntity();
  if (!current) return nullptr;
  if (brush* found = selectedOf(*current)) return found;
  for (int i = numentities() - 1; i >= 0; --i) {
    if (at(i) == current) continue;
    if (brush* found = selectedOf(*at(i))) return found;
  }
  return nullptr;
}

int map::selectedCount() const {
  const entity* current = currentEntity();
  return current ? int(std::ranges::count_if(current->brushes(), &brush::selected)) : 0;
}

int map::totalSelected() const {
  int count = 0;
  for (const entity& e : entities()) count += int(std::ranges::count_if(e.brushes(), &brush::selected));
  return count;
}

int map::brushCount() const {
  int count = 0;
  for (const entity& e : entities()) count += e.numbrushes();
  return count;
}

vec3 map::selectionCentre() const {
  const bool selectedOnly = selectedCount() > 0;
  vec3 low{kNoBound, kNoBound, kNoBound};
  vec3 high{-kNoBound, -kNoBound, -kNoBound};
  for (const entity& e : entities()) {
    for (const brush& b : e.brushes()) {
      if (!passesGroupFilter(b) || (selectedOnly && !b.selected())) continue;
      WidenBounds(low, high, b);
    }
  }
  return {float((double(low.x) + high.x) / 2), float((double(low.y) + high.y) / 2),
          float((double(low.z) + high.z) / 2)};
}

void map::setWorkLow(const vec3& low) {
  modified = true;
  for (int axis = 0; axis < 3; ++axis) {
    if (low[axis] > kLowestWork) workLow_[axis] = float(Snap(low[axis], settings_.gridsize));
  }
}

void map::setWorkHigh(const vec3& high) {
  modified = true;
  for (int axis = 0; axis < 3; ++axis) {
    if (high[axis] < kHighestWork) workHigh_[axis] = float(Snap(high[axis], settings_.gridsize));
  }
}

void map::setWorkRange(const vec3& low, const vec3& high) {
  workLow_ = low;
  workHigh_ = high;
}

bool map::matchesFilter(const brush& b) const {
  const ViewFilter& filter = settings_.filter;
  if (b.owner && b.owner->isWorld()) {
    if (filter.omitWorld) return true;
  } else if (b.owner) {
    if (filter.omitEntities) return true;
    if (filter.omitLights && b.owner->valueOfKey("classname").starts_with("light")) return true;
  }
  const std::string& texture = b.brushTexture().name;
  return (filter.omitClip && EqualNoCase(texture, "clip")) || (filter.omitWater && texture.starts_with('*'));
}

void map::initNew(const std::string& wads) {
  clearEntities();
  groups.clear();
  auto made = std::make_unique<entity>(*this);
  made->setClass("worldspawn");
  made->setKey("wad", wads);
  setCurrentEntity(&addobject(std::move(made)));
  modified = false;
}

std::vector<std::unique_ptr<entity>> map::takeEntities() {
  hits.clear();
  currentEntity_ = nullptr;
  return std::exchange(entities_, {});
}

}  // namespace velk
