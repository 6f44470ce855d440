#include "model/snapshot.h"

#include <algorithm>
#include <unordered_map>

namespace velk {
namespace {

bool same(const texturedef& a, const texturedef& b) {
  return a.rotate == b.rotate && a.shift[0] == b.shift[0] && a.shift[1] == b.shift[1] &&
         a.scale[0] == b.scale[0] && a.scale[1] == b.scale[1] && a.name == b.name;
}

bool same(const face& a, const face& b) {
  return VecEqual(a.planepts[0], b.planepts[0]) && VecEqual(a.planepts[1], b.planepts[1]) &&
         VecEqual(a.planepts[2], b.planepts[2]) && same(a.texture, b.texture);
}

bool same(const brush& b, const BrushShape& shape) {
  return b.group == shape.group && VecEqual(b.color, shape.color) &&
         std::equal(b.faces.begin(), b.faces.end(), shape.faces.begin(), shape.faces.end(),
                    [](const face& x, const face& y) { return same(x, y); });
}

bool same(const std::vector<KeyPair>& a, const std::vector<KeyPair>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const KeyPair& x, const KeyPair& y) { return x.key == y.key && x.value == y.value; });
}

bool same(const std::vector<KeptBrush>& a, const std::vector<KeptBrush>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const KeptBrush& x, const KeptBrush& y) {
    return x.shape == y.shape && x.currentFace == y.currentFace && x.selected == y.selected &&
           x.hidden == y.hidden;
  });
}

bool sameShapes(const std::vector<KeptBrush>& a, const std::vector<KeptBrush>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const KeptBrush& x, const KeptBrush& y) { return x.shape == y.shape; });
}

bool same(const group& a, const group& b) {
  return a.name == b.name && a.visible == b.visible && a.colour == b.colour;
}

std::shared_ptr<const BrushShape> shapeOf(brush& b) {
  if (!b.kept || !same(b, *b.kept)) {
    b.kept = std::make_shared<BrushShape>(BrushShape{b.faces, b.color, b.group});
  }
  return b.kept;
}

// The value itself, or the earlier one when that is equal, so that both snapshots share it.
template <typename T>
std::shared_ptr<const T> shared(T value, const std::shared_ptr<const T>* earlier) {
  if (earlier && *earlier && same(value, **earlier)) return *earlier;
  return std::make_shared<const T>(std::move(value));
}

KeptEntity keep(entity& e, const KeptEntity* earlier) {
  std::vector<KeptBrush> brushes;
  brushes.reserve(static_cast<size_t>(e.numbrushes()));
  for (brush& b : e.brushes()) brushes.push_back({shapeOf(b), b.currentFace, b.selected, b.hidden});
  return {shared(e.pairsInOrder(), earlier ? &earlier->pairs : nullptr),
          shared(std::move(brushes), earlier ? &earlier->brushes : nullptr), e.isModel};
}

// The map's brushes as they are, by their shapes.
using BrushPool = std::unordered_multimap<const BrushShape*, std::unique_ptr<brush>>;

BrushPool takeUnchanged(map& m) {
  BrushPool pool;
  for (entity& e : m.entities()) {
    for (std::unique_ptr<brush>& b : e.takeBrushes()) {
      if (!b->kept || !same(*b, *b->kept)) continue;
      const BrushShape* shape = b->kept.get();
      pool.emplace(shape, std::move(b));
    }
  }
  return pool;
}

std::unique_ptr<brush> fromPool(BrushPool& pool, const KeptBrush& kept, entity& owner) {
  const auto found = pool.find(kept.shape.get());
  if (found == pool.end()) return RestoreBrush(owner, kept);
  std::unique_ptr<brush> unchanged = std::move(found->second);
  pool.erase(found);
  unchanged->currentFace = kept.currentFace;
  unchanged->selected = kept.selected;
  unchanged->hidden = kept.hidden;
  return unchanged;
}

std::unique_ptr<entity> restored(map& m, const KeptEntity& kept, BrushPool& pool) {
  auto made = std::make_unique<entity>(m);
  made->isModel = kept.isModel;
  for (const KeyPair& pair : *kept.pairs) made->setKey(pair.key, pair.value);
  for (const KeptBrush& from : *kept.brushes) made->addobject(fromPool(pool, from, *made));
  return made;
}

}  // namespace

KeptEntity KeepBrush(const entity& owner, brush& b) {
  const std::vector<KeptBrush> one{{shapeOf(b), b.currentFace, b.selected, b.hidden}};
  return {std::make_shared<const std::vector<KeyPair>>(owner.pairsInOrder()),
          std::make_shared<const std::vector<KeptBrush>>(one), owner.isModel};
}

std::unique_ptr<brush> RestoreBrush(entity& owner, const KeptBrush& kept) {
  auto made = std::make_unique<brush>(owner.parent().counters());
  made->owner = &owner;
  made->faces = kept.shape->faces;
  made->color = kept.shape->color;
  made->group = kept.shape->group;
  made->kept = kept.shape;
  made->currentFace = kept.currentFace;
  made->selected = kept.selected;
  made->hidden = kept.hidden;
  made->buildWindings();
  return made;
}

std::unique_ptr<entity> RestoreEntity(map& m, const KeptEntity& kept) {
  BrushPool none;
  return restored(m, kept, none);
}

MapSnapshot TakeSnapshot(map& m, const MapSnapshot* previous) {
  MapSnapshot taken;
  taken.entities.reserve(static_cast<size_t>(m.numentities()));
  for (int i = 0; i < m.numentities(); ++i) {
    const auto index = static_cast<size_t>(i);
    const bool earlier = previous && index < previous->entities.size();
    taken.entities.push_back(keep(*m.at(i), earlier ? &previous->entities[index] : nullptr));
  }
  taken.currentEntity = m.indexOf(m.currentEntity());
  taken.groups = m.groups;
  taken.clip = m.clip;
  taken.cameras = m.cameras;
  taken.currentCamera = m.currentCamera;
  taken.workLow = m.workLow();
  taken.workHigh = m.workHigh();
  taken.modified = m.modified;
  taken.saves = m.saves;
  return taken;
}

void RestoreSnapshot(map& m, const MapSnapshot& snapshot, bool withCameras) {
  m.hits.clear();
  BrushPool pool = takeUnchanged(m);
  m.clearEntities();
  for (const KeptEntity& kept : snapshot.entities) m.addobject(restored(m, kept, pool));
  m.setCurrentEntity(m.at(std::max(snapshot.currentEntity, 0)));
  m.groups = snapshot.groups;
  m.clip = snapshot.clip;
  if (withCameras) {
    m.cameras = snapshot.cameras;
    m.currentCamera = snapshot.currentCamera;
  }
  m.setWorkRange(snapshot.workLow, snapshot.workHigh);
  m.modified = snapshot.modified || snapshot.saves != m.saves;
  m.notify(MapNotice::Groups);
}

bool SameContents(const MapSnapshot& a, const MapSnapshot& b) {
  const auto sameEntity = [](const KeptEntity& x, const KeptEntity& y) {
    return x.isModel == y.isModel && (x.pairs == y.pairs || same(*x.pairs, *y.pairs)) &&
           (x.brushes == y.brushes || sameShapes(*x.brushes, *y.brushes));
  };
  if (a.groups.count() != b.groups.count()) return false;
  for (int i = 0; i < a.groups.count(); ++i) {
    if (!same(a.groups.at(i), b.groups.at(i))) return false;
  }
  return std::equal(a.entities.begin(), a.entities.end(), b.entities.begin(), b.entities.end(), sameEntity);
}

}  // namespace velk
