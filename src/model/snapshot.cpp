#include "model/snapshot.h"

#include <algorithm>
#include <unordered_map>

namespace velk {
namespace {

constexpr size_t kPageSize = 64;  // brushes

bool same(const texturedef& a, const texturedef& b) {
  return a.rotate == b.rotate && a.shift[0] == b.shift[0] && a.shift[1] == b.shift[1] &&
         a.scale[0] == b.scale[0] && a.scale[1] == b.scale[1] && a.name == b.name;
}

bool same(const face& a, const face& b) {
  return VecEqual(a.planepts[0], b.planepts[0]) && VecEqual(a.planepts[1], b.planepts[1]) &&
         VecEqual(a.planepts[2], b.planepts[2]) && same(a.texture, b.texture);
}

bool same(const brush& b, const BrushShape& shape) {
  return b.group() == shape.group && VecEqual(b.color(), shape.color) &&
         std::equal(b.faces().begin(), b.faces().end(), shape.faces.begin(), shape.faces.end(),
                    [](const face& x, const face& y) { return same(x, y); });
}

bool same(const std::vector<KeyPair>& a, const std::vector<KeyPair>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const KeyPair& x, const KeyPair& y) { return x.key == y.key && x.value == y.value; });
}

bool same(const KeptPage& a, const KeptPage& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const KeptBrush& x, const KeptBrush& y) {
    return x.shape == y.shape && x.currentFace == y.currentFace && x.selected == y.selected;
  });
}

// Of entities that share what did not change.
bool same(const KeptEntity& a, const KeptEntity& b) {
  return a.isModel == b.isModel && a.pairs == b.pairs && a.pages == b.pages;
}

bool sameShapes(const std::shared_ptr<const KeptPage>& a, const std::shared_ptr<const KeptPage>& b) {
  return a == b || std::equal(a->begin(), a->end(), b->begin(), b->end(),
                              [](const KeptBrush& x, const KeptBrush& y) { return x.shape == y.shape; });
}

bool sameContents(const std::shared_ptr<const KeptEntity>& a, const std::shared_ptr<const KeptEntity>& b) {
  return a == b ||
         (a->isModel == b->isModel && (a->pairs == b->pairs || same(*a->pairs, *b->pairs)) &&
          std::equal(a->pages.begin(), a->pages.end(), b->pages.begin(), b->pages.end(), sameShapes));
}

bool same(const group& a, const group& b) {
  return a.name == b.name && a.visible == b.visible && a.colour == b.colour;
}

std::shared_ptr<const BrushShape> shapeOf(brush& b) {
  if (!b.kept || !same(b, *b.kept)) {
    b.kept = std::make_shared<BrushShape>(BrushShape{b.faces(), b.color(), b.group()});
  }
  return b.kept;
}

KeptBrush keep(brush& b) { return {shapeOf(b), b.currentFace(), b.selected()}; }

// The value itself, or the earlier one when that is equal, so that both snapshots share it.
template <typename T>
std::shared_ptr<const T> shared(const T& value, const std::shared_ptr<const T>& earlier) {
  return earlier && same(value, *earlier) ? earlier : std::make_shared<const T>(value);
}

template <typename T>
std::shared_ptr<const T> at(const std::vector<std::shared_ptr<const T>>& list, size_t index) {
  return index < list.size() ? list[index] : nullptr;
}

std::shared_ptr<const KeptEntity> keep(entity& e, const std::shared_ptr<const KeptEntity>& earlier) {
  KeptEntity kept;
  kept.isModel = e.isModel;
  kept.pairs = shared(e.pairsInOrder(), earlier ? earlier->pairs : nullptr);
  KeptPage page;
  for (brush& b : e.brushes()) {
    page.push_back(keep(b));
    if (page.size() < kPageSize && &b != e.at(e.numbrushes() - 1)) continue;
    kept.pages.push_back(shared(page, earlier ? at(earlier->pages, kept.pages.size()) : nullptr));
    page.clear();
  }
  return shared(kept, earlier);
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
  unchanged->setCurrentFace(kept.currentFace);
  unchanged->select(kept.selected);
  return unchanged;
}

std::unique_ptr<entity> restored(map& m, const KeptEntity& kept, BrushPool& pool) {
  auto made = std::make_unique<entity>(m);
  made->isModel = kept.isModel;
  for (const KeyPair& pair : *kept.pairs) made->setKey(pair.key, pair.value);
  for (const auto& page : kept.pages) {
    for (const KeptBrush& from : *page) made->addobject(fromPool(pool, from, *made));
  }
  return made;
}

}  // namespace

KeptEntity KeepBrush(const entity& owner, brush& b) {
  return {std::make_shared<const std::vector<KeyPair>>(owner.pairsInOrder()),
          {std::make_shared<const KeptPage>(KeptPage{keep(b)})},
          owner.isModel};
}

std::unique_ptr<brush> RestoreBrush(entity& owner, const KeptBrush& kept) {
  auto made = std::make_unique<brush>(owner.parent().counters());
  made->owner = &owner;
  made->editFaces() = kept.shape->faces;
  made->setColor(kept.shape->color);
  made->setGroup(kept.shape->group);
  made->kept = kept.shape;
  made->setCurrentFace(kept.currentFace);
  made->select(kept.selected);
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
    const auto earlier = previous ? at(previous->entities, static_cast<size_t>(i)) : nullptr;
    taken.entities.push_back(keep(*m.at(i), earlier));
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
  for (const auto& kept : snapshot.entities) m.addobject(restored(m, *kept, pool));
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
  if (a.groups.count() != b.groups.count()) return false;
  for (int i = 0; i < a.groups.count(); ++i) {
    if (!same(a.groups.at(i), b.groups.at(i))) return false;
  }
  return std::equal(a.entities.begin(), a.entities.end(), b.entities.begin(), b.entities.end(), sameContents);
}

}  // namespace velk
