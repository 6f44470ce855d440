#include "ops/make_entity.h"

namespace velk {
namespace {

constexpr float kSeedSize = 8;

// Whether fixed-size entities join groups.
bool JoinsGroups(const map& m) { return m.settings().careful_tools && m.settings().groupmode; }

brush& AddSeed(map& m, const vec3& at, int group) {
  texturedef texture;
  texture.name = "entity";
  auto seed = std::make_unique<brush>(m.counters());
  seed->initBox(*m.world(), at, add(at, {kSeedSize, kSeedSize, kSeedSize}), texture);
  seed->select(true);
  if (JoinsGroups(m)) seed->setGroup(group);
  return m.world()->addobject(std::move(seed));
}

// Something selected that a class built of brushes could take: in group mode all of the selection may be out
// of reach.
bool AnyWithinReach(const map& m) {
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      if (b.selected() && m.passesGroupFilter(b)) return true;
    }
  }
  return false;
}

// The box takes the place of the selection. A hidden group keeps the dispatcher from a seed of ours.
void Replace(map& m, entity& made, brush* seed) {
  const brush* replaced = m.firstSelected();
  if (replaced && JoinsGroups(m)) made.at(0)->setGroup(replaced->group());
  if (seed && !m.passesGroupFilter(*seed)) DestroyBrush(*seed);
  m.MSPerform(Method::Delete);
  made.at(0)->select(true);
}

}  // namespace

MadeEntity MakeEntity(map& m, std::string_view classname, std::optional<vec3> seedAt, int group) {
  if (!m.world() || !m.worldIsCurrent()) return {};
  const EntityClass& found = m.classes().findByName(classname);
  const bool fixedSize = m.classes().isKnown(found) && found.fixedSize;
  const bool seeded = m.selectedCount() > 0;
  if (!fixedSize && (!seeded || !AnyWithinReach(m))) return {EntityMaking::NeedsSeed, nullptr};
  m.requireRoom();
  brush* seed = seeded ? nullptr : &AddSeed(m, seedAt.value_or(m.activeCamera().origin), group);

  auto made = std::make_unique<entity>(m);
  made->setClass(classname);
  m.modified = true;
  if (fixedSize) {
    Replace(m, *made, seed);
  } else {
    m.MSPerform(BrushMethod::moveTo(*made));
    if (made->numbrushes() == 0) return {EntityMaking::NeedsSeed, nullptr};
  }
  entity& added = m.addobject(std::move(made));
  m.setCurrentEntity(&added);
  return {EntityMaking::Made, &added};
}

}  // namespace velk
