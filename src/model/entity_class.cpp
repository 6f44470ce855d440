// What entities take from their class: boxes, origins, colours.
#include "base/text.h"
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

// Where the class box of `e` must be put to start at `mins`, in whole units; `mins` itself for a class
// without a size.
vec3 OriginFor(const entity& e, const vec3& mins) {
  const EntityClass& found = e.entityClass();
  const vec3 offset = subtract(mins, {found.mins[0], found.mins[1], found.mins[2]});
  return {float(Truncate(offset.x)), float(Truncate(offset.y)), float(Truncate(offset.z))};
}

void SetOriginKey(entity& e, const vec3& origin) {
  e.setKey("origin", Format("%i %i %i", Truncate(origin.x), Truncate(origin.y), Truncate(origin.z)));
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
  const vec3 origin = seed ? OriginFor(*this, seed->mins) : vec3{};
  SetOriginKey(*this, origin);
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

void entity::updateOriginFromBox() {
  if (isModel || brushes_.empty()) return;
  SetOriginKey(*this, OriginFor(*this, brushes_.front()->mins));
}

}  // namespace velk
