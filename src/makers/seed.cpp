#include "makers/seed.h"

#include "base/text.h"

namespace velk {
namespace {

void RoundAll(vec3& v) {
  for (int axis = 0; axis < 3; ++axis) v[axis] = float(RoundHalfAway(v[axis]));
}

int CountOf(const Made& made) {
  return made.tooMany ? MAX_ENTITY_BRUSHES + 1 : static_cast<int>(made.brushes.size());
}

// What the seed's leaving comes before: the order in the entity's list depends on it.
bool LeavesFirst(MadeFor what) { return what == MadeFor::World; }

std::string StatusOf(const Made& made, const Replacing& how) {
  if (!how.careful || made.leftOut == 0) return how.status;
  return how.status + Format(" %i left out...", made.leftOut);
}

}  // namespace

brush* OnlySelected(map& m) { return m.totalSelected() == 1 ? m.firstSelected() : nullptr; }

Seed SeedOf(const brush& b) { return {b.group(), b.mins, b.maxs, b.brushTexture()}; }

Seed FittedSeed(Seed seed, const MakerRules& rules) {
  if (!rules.careful) return seed;
  RoundAll(seed.mins);
  RoundAll(seed.maxs);
  return seed;
}

Seed TakeSeed(map& m, brush& b) {
  m.modified = true;
  Seed seed = SeedOf(b);
  DestroyBrush(b);
  return seed;
}

entity& OwnerFor(map& m, const brush& seed, MadeFor what) {
  entity* owner = m.world();
  if (what == MadeFor::Current) owner = m.currentEntity();
  if (what == MadeFor::SeedsOwner && seed.owner->isModel) owner = seed.owner;
  return *owner;
}

void PlaceBrushes(map& m, entity& owner, Made made) {
  owner.requireRoom(CountOf(made));
  m.modified = true;
  const vec3 colour = ClassColour(owner);
  for (std::unique_ptr<brush>& b : made.brushes) {
    b->setColor(colour);
    b->select();
    brush& added = owner.addobject(std::move(b));
    // The polygons of a brush without owner take no account of the setting.
    if (m.settings().texture_alignment != 0 && added.numfaces() > 0) added.buildWindings();
  }
}

Outcome ReplaceSeed(map& m, brush& seed, Made made, const Replacing& how) {
  if (how.careful && made.brushes.empty() && !made.tooMany) return Outcome::Said(how.nothing);
  const std::string status = StatusOf(made, how);
  entity& owner = OwnerFor(m, seed, how.owner);
  if (LeavesFirst(how.owner)) {
    owner.requireRoom(CountOf(made) - (seed.owner == &owner ? 1 : 0));
    TakeSeed(m, seed);
    PlaceBrushes(m, owner, std::move(made));
  } else {
    PlaceBrushes(m, owner, std::move(made));
    TakeSeed(m, seed);
  }
  return Outcome::Drawn(Redraw::All, status);
}

}  // namespace velk
