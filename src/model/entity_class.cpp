// What entities take from their class: boxes, origins, colours.
#include <cmath>

#include "base/text.h"
#include "geometry/polygon.h"
#include "model/entity.h"
#include "model/map.h"

namespace velk {
namespace {

struct Box {
  vec3 mins;
  vec3 maxs;
};

Box ClassBox(const entity& e) {
  const EntityClass& found = e.entityClass();
  if (!e.parent().classes().isKnown(found)) return {{-8, -8, -8}, {8, 8, 8}};
  return {{found.mins[0], found.mins[1], found.mins[2]}, {found.maxs[0], found.maxs[1], found.maxs[2]}};
}

// Where the class box begins when it stands at 0 0 0; there itself for a class without a size.
vec3 LowOf(const EntityClass& entityClass) {
  return {entityClass.mins[0], entityClass.mins[1], entityClass.mins[2]};
}

vec3 Truncated(const vec3& v) { return {float(Truncate(v.x)), float(Truncate(v.y)), float(Truncate(v.z))}; }

// What settling a box's corners and moving them leave uncertain.
constexpr float kUncertain = 0.004f;

// The whole number from which a box whose class begins at `low` begins at `mins`; none when there is none.
std::optional<int> WholeOrigin(float mins, float low) {
  const double whole = RoundHalfAway(double(mins) - low);
  if (std::fabs(Settled(float(whole + low)) - mins) < kUncertain) return Truncate(whole);
  return std::nullopt;
}

std::string OriginText(const vec3& origin) {
  return Format("%i %i %i", Truncate(origin.x), Truncate(origin.y), Truncate(origin.z));
}

}  // namespace

const EntityClass& entity::entityClass() const {
  return parent_->classes().findByName(valueOfKey("classname"));
}

vec3 ClassColour(const entity& e) {
  const EntityClass& found = e.entityClass();
  return {found.color[0], found.color[1], found.color[2]};
}

void entity::setClass(std::string_view classname) {
  isModel = true;
  setKey("classname", classname);
  const EntityClass& found = entityClass();
  if (!parent_->classes().isKnown(found) || !found.fixedSize) return;
  const brush* seed = parent_->firstSelected();
  const vec3 origin = seed ? Truncated(subtract(seed->mins, LowOf(found))) : vec3{};
  setKey("origin", OriginText(origin));
  makeClassBox(origin);
}

void entity::makeClassBox(const vec3& origin) {
  const Box box = ClassBox(*this);
  isModel = false;
  texturedef texture;
  texture.name = "entity";
  auto made = std::make_unique<brush>(parent_->counters());
  made->initBox(*this, add(origin, box.mins), add(origin, box.maxs), texture);
  addobject(std::move(made));
}

std::optional<std::string> entity::originText() const {
  if (isModel || brushes_.empty() || brushes_.front()->invalid) return std::nullopt;
  const vec3& mins = brushes_.front()->mins;
  const vec3 low = LowOf(entityClass());
  vec3 origin = subtract(mins, low);
  for (int axis = 0; axis < 3; ++axis) {
    if (const std::optional<int> whole = WholeOrigin(mins[axis], low[axis])) origin[axis] = float(*whole);
  }
  return OriginText(origin);
}

}  // namespace velk
