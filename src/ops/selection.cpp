#include "ops/selection.h"

#include <algorithm>

namespace velk {
namespace {

// Nothing farther is hit.
constexpr double kFarthestHit = 32767;

struct Candidate {
  brush* hit = nullptr;
  int face = -1;
  double t = kFarthestHit;

  // On equal distances the one offered later wins.
  void offer(brush& b, const brush::Hit& at) {
    if (at.t < 0 || at.t > t) return;
    hit = &b;
    face = at.face;
    t = at.t;
  }
};

// Calls `meet` with every brush that the ray hits.
template <typename Meet>
Candidate Nearest(const map& m, const vec3& start, const vec3& end, bool entitiesFirst, Meet&& meet) {
  Candidate best;
  for (int i = m.numentities() - 1; i >= 0; --i) {
    if (i == 0 && entitiesFirst && best.hit) break;
    for (brush& b : m.at(i)->brushes()) {
      if (!CanBeHit(m, b)) continue;
      const brush::Hit at = b.hitByRay(start, end);
      if (at.t >= 0) meet(b);
      best.offer(b, at);
    }
  }
  return best;
}

}  // namespace

void SelectByBox(map& m, bool inside) {
  if (m.totalSelected() != 1) return;
  brush* box = m.firstSelected();
  const vec3 mins = box->mins;
  const vec3 maxs = box->maxs;
  DestroyBrush(*box);
  m.MUSPerform(inside ? BrushMethod::selectInside(mins, maxs) : BrushMethod::selectTouching(mins, maxs));
}

bool ApplyTextureByRay(map& m, const vec3& start, const vec3& end, const texturedef& texture,
                       bool wholeBrush) {
  const Candidate best = Nearest(m, start, end, false, [](const brush&) {});
  if (!best.hit || !best.hit->owner->isModel) return false;
  m.modified = true;
  if (wholeBrush) {
    best.hit->setAllTexturedefs(texture);
  } else {
    best.hit->setTexturedef(texture, best.face);
  }
  return true;
}

RayPick PickByRay(const map& m, const vec3& start, const vec3& end, bool entitiesFirst) {
  const Candidate best = Nearest(m, start, end, entitiesFirst, [](const brush&) {});
  return {best.hit, best.face, false};
}

RayPick selectByRay(map& m, const vec3& start, const vec3& end, bool entitiesFirst) {
  m.hits.clear();
  const Candidate best = Nearest(m, start, end, entitiesFirst, [&](brush& b) { m.hits.add(b); });
  if (!best.hit) return {};
  brush& b = *best.hit;
  m.modified = true;
  b.setCurrentFace(best.face);
  if (b.owner != m.currentEntity()) {
    if (!m.settings().multi_select) m.MGPerform(Method::Deselect);
    m.setCurrentEntity(b.owner);
  }
  RayPick pick{&b, best.face, false};
  if (b.selected()) {
    b.deselect();
  } else {
    pick.firstOfSelection = m.totalSelected() == 0;
    b.select(true);
  }
  return pick;
}

bool Connect(map& m, const vec3& start, const vec3& end, RayPick* picked) {
  entity* from = m.currentEntity();
  if (!from || from->isWorld()) return false;
  const RayPick pick = selectByRay(m, start, end, true);
  if (picked) *picked = pick;
  entity* to = m.currentEntity();
  if (to == from || to->isWorld()) return false;
  from->setKey("target", to->makeTargetName());
  m.modified = true;
  return true;
}

}  // namespace velk
