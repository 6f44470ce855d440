#include "ops/entity_ops.h"

#include "base/numbers.h"
#include "base/text.h"

namespace velk {
namespace {

void FollowClass(entity& e) {
  const vec3 colour = ClassColour(e);
  for (brush& b : e.brushes()) b.setColor(colour);
}

// The offset from one origin to another; none when the text does not hold three numbers.
std::optional<vec3> OffsetTo(std::string_view text, const vec3& from) {
  vec3 offset;
  for (int axis = 0; axis < 3; ++axis) {
    const std::optional<float> number = TakeFloat(text);
    if (!number) return std::nullopt;
    offset[axis] = float(RoundHalfAway(*number) - from[axis]);
  }
  return offset;
}

void Translate(entity& e, const vec3& offset) {
  for (brush& b : e.brushes()) {
    b.translate(offset);
    b.buildWindings();
  }
}

void MoveBox(entity& e, std::string_view origin) {
  const std::optional<vec3> offset = OffsetTo(origin, e.vectorOfKey("origin"));
  if (offset) Translate(e, *offset);
}

// The box of the class that the entity is of now; that of a class without one stays as large as it was.
void TakeClassBox(entity& e, const vec3& origin) {
  const EntityClass& found = e.entityClass();
  if (!e.parent().classes().isKnown(found) || !found.fixedSize) {
    Translate(e, subtract(origin, e.vectorOfKey("origin")));
    return;
  }
  const texturedef texture = e.at(0)->brushTexture();
  e.at(0)->initBox(e, add(origin, {found.mins[0], found.mins[1], found.mins[2]}),
                   add(origin, {found.maxs[0], found.maxs[1], found.maxs[2]}), texture);
}

}  // namespace

bool CanRevert(const map& m) {
  const entity* e = m.currentEntity();
  return e && !e->isWorld() && e->isModel && !e->valueOfKey("classname").empty();
}

void RevertToWorld(map& m) {
  if (!CanRevert(m)) return;
  entity& reverted = *m.currentEntity();
  entity& world = *m.world();
  world.requireRoom(reverted.numbrushes());
  for (std::unique_ptr<brush>& taken : reverted.takeBrushes()) {
    brush& b = world.addobject(std::move(taken));
    b.setColor(ClassColour(world));
    b.select();
  }
  m.removeEntity(&reverted);
  m.setCurrentEntity(&world);
}

bool KeepsItsClass(const entity& e, std::string_view key) {
  return key == "classname" && e.isWorld() && e.parent().settings().careful_tools;
}

void SetPair(entity& e, std::string_view key, std::string_view value) {
  map& m = e.parent();
  const std::string_view kept = WithoutLeadingBlanks(key);
  if (KeepsItsClass(e, kept)) return;
  m.modified = true;
  const bool fits = !e.isModel && e.at(0) && m.settings().careful_tools;
  if (kept == "origin" && fits) MoveBox(e, value);
  const vec3 origin = e.vectorOfKey("origin");
  e.setKey(key, value);
  if (kept != "classname") return;
  if (fits) TakeClassBox(e, origin);
  FollowClass(e);
}

void RemovePair(entity& e, std::string_view key) {
  if (KeepsItsClass(e, key)) return;
  e.parent().modified = true;
  if (e.hasKey(key)) e.removeKeyPair(key);
}

void SelectEntity(map& m, entity& e) {
  m.MGPerform(Method::Deselect);
  for (brush& b : e.brushes()) b.select();
  m.setCurrentEntity(&e);
}

}  // namespace velk
