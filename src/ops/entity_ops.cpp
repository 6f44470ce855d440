#include "ops/entity_ops.h"

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
    const std::optional<double> number = TakeNumber(text);
    if (!number) return std::nullopt;
    offset[axis] = float(RoundHalfAway(*number) - from[axis]);
  }
  return offset;
}

void MoveBox(entity& e, std::string_view origin) {
  const std::optional<vec3> offset = OffsetTo(origin, e.vectorOfKey("origin"));
  if (!offset) return;
  for (brush& b : e.brushes()) {
    b.translate(*offset);
    b.buildWindings();
  }
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

void SetPair(entity& e, std::string_view key, std::string_view value) {
  map& m = e.parent();
  m.modified = true;
  if (key == "origin" && !e.isModel && m.settings().careful_tools) MoveBox(e, value);
  e.setKey(key, value);
  if (key == "classname") FollowClass(e);
}

void RemovePair(entity& e, std::string_view key) {
  e.parent().modified = true;
  if (e.hasKey(key)) e.removeKeyPair(key);
}

void SelectEntity(map& m, entity& e) {
  m.MGPerform(Method::Deselect);
  for (brush& b : e.brushes()) b.select();
  m.setCurrentEntity(&e);
}

}  // namespace velk
