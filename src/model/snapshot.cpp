#include "model/snapshot.h"

#include <algorithm>
#include <unordered_map>

namespace velk {
namespace {

constexpr size_t kPageSize = 64;  // brushes

bool Same(const std::vector<KeyPair>& a, const std::vector<KeyPair>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const KeyPair& x, const KeyPair& y) { return x.key == y.key && x.value == y.value; });
}

// One object, or equal ones.
bool SameShape(const KeptBrush& a, const KeptBrush& b) { return a.shape == b.shape || *a.shape == *b.shape; }

bool SameShapes(const std::shared_ptr<const KeptPage>& a, const std::shared_ptr<const KeptPage>& b) {
  return a == b || std::equal(a->begin(), a->end(), b->begin(), b->end(), SameShape);
}

bool SameEntity(const std::shared_ptr<const KeptEntity>& a, const std::shared_ptr<const KeptEntity>& b) {
  return a == b ||
         (a->isModel == b->isModel && (a->pairs == b->pairs || Same(*a->pairs, *b->pairs)) &&
          std::equal(a->pages.begin(), a->pages.end(), b->pages.begin(), b->pages.end(), SameShapes));
}

std::uint32_t NameIn(std::vector<std::string>& names, const std::string& name) {
  const auto found = std::ranges::find(names, name);
  const auto place = static_cast<std::uint32_t>(found - names.begin());
  if (found == names.end()) names.push_back(name);
  return place;
}

KeptFace Keep(const face& f, std::vector<std::string>& names) {
  const texturedef& t = f.texture;
  return {{f.planepts[0], f.planepts[1], f.planepts[2]},
          t.rotate,
          {t.shift[0], t.shift[1]},
          {t.scale[0], t.scale[1]},
          NameIn(names, t.name)};
}

const std::shared_ptr<const BrushShape>& ShapeOf(brush& b) {
  if (b.kept) return b.kept;
  auto made = std::make_shared<BrushShape>();
  made->faces.reserve(b.faces().size());
  for (const face& f : b.faces()) made->faces.push_back(Keep(f, made->names));
  made->color = b.color();
  made->group = b.group();
  b.kept = std::move(made);
  return b.kept;
}

KeptBrush Keep(brush& b) { return {ShapeOf(b), b.currentFace(), b.selected()}; }

bool IsAsKept(const brush& b, const KeptBrush& kept) {
  return b.kept == kept.shape && b.currentFace() == kept.currentFace && b.selected() == kept.selected;
}

bool IsAsKept(const entity& e, size_t first, size_t count, const KeptPage& page) {
  if (page.size() != count) return false;
  for (size_t i = 0; i < count; ++i) {
    if (!IsAsKept(*e.at(static_cast<int>(first + i)), page[i])) return false;
  }
  return true;
}

// The page as it was kept last, when it is still so.
std::shared_ptr<const KeptPage> PageOf(const entity& e, size_t number, const KeptEntity* earlier) {
  const size_t first = number * kPageSize;
  const size_t count = std::min(kPageSize, static_cast<size_t>(e.numbrushes()) - first);
  if (earlier && number < earlier->pages.size() && IsAsKept(e, first, count, *earlier->pages[number])) {
    return earlier->pages[number];
  }
  auto page = std::make_shared<KeptPage>();
  page->reserve(count);
  for (size_t i = 0; i < count; ++i) page->push_back(Keep(*e.at(static_cast<int>(first + i))));
  return page;
}

std::shared_ptr<const KeptEntity> Keep(entity& e) {
  const KeptEntity* earlier = e.kept().get();
  if (earlier && !e.changedSinceKept() && earlier->isModel == e.isModel) return e.kept();
  auto kept = std::make_shared<KeptEntity>();
  kept->isModel = e.isModel;
  kept->pairs = earlier && Same(e.pairsInOrder(), *earlier->pairs)
                    ? earlier->pairs
                    : std::make_shared<const std::vector<KeyPair>>(e.pairsInOrder());
  const size_t pages = (static_cast<size_t>(e.numbrushes()) + kPageSize - 1) / kPageSize;
  kept->pages.reserve(pages);
  for (size_t i = 0; i < pages; ++i) kept->pages.push_back(PageOf(e, i, earlier));
  e.setKept(kept);
  return kept;
}

// What a map holds that is as it was kept: whole entities, and brushes of the others.
struct Unchanged {
  std::unordered_map<const KeptEntity*, std::unique_ptr<entity>> entities;
  std::unordered_multimap<const BrushShape*, std::unique_ptr<brush>> brushes;
};

// Takes out what the snapshot wants back as it is.
Unchanged TakeUnchanged(map& m, const MapSnapshot& wanted) {
  std::unordered_map<const KeptEntity*, bool> isWanted;
  for (const auto& kept : wanted.entities) isWanted[kept.get()] = true;
  Unchanged taken;
  for (std::unique_ptr<entity>& e : m.takeEntities()) {
    if (e->kept() && !e->changedSinceKept() && isWanted.contains(e->kept().get())) {
      taken.entities.emplace(e->kept().get(), std::move(e));
      continue;
    }
    for (std::unique_ptr<brush>& b : e->takeBrushes()) {
      const BrushShape* shape = b->kept.get();
      if (shape) taken.brushes.emplace(shape, std::move(b));
    }
  }
  return taken;
}

std::unique_ptr<brush> Restored(Unchanged& unchanged, const KeptBrush& kept, entity& owner) {
  auto found = unchanged.brushes.extract(kept.shape.get());
  if (found.empty()) return RestoreBrush(owner, kept);
  std::unique_ptr<brush> b = std::move(found.mapped());
  b->setCurrentFace(kept.currentFace);
  b->select(kept.selected);
  return b;
}

std::unique_ptr<entity> Restored(map& m, const std::shared_ptr<const KeptEntity>& kept,
                                 Unchanged& unchanged) {
  if (auto found = unchanged.entities.extract(kept.get()); !found.empty()) return std::move(found.mapped());
  auto made = std::make_unique<entity>(m);
  made->isModel = kept->isModel;
  for (const KeyPair& pair : *kept->pairs) made->setKey(pair.key, pair.value);
  for (const auto& page : kept->pages) {
    for (const KeptBrush& from : *page) made->addobject(Restored(unchanged, from, *made));
  }
  made->setKept(kept);
  return made;
}

// The parts of a snapshot by their addresses.
class Parts {
 public:
  explicit Parts(const MapSnapshot& of) {
    for (const auto& e : of.entities) entities_.push_back(e.get());
    std::ranges::sort(entities_);
  }
  bool hasEntity(const KeptEntity* e) const { return std::ranges::binary_search(entities_, e); }

 private:
  std::vector<const KeptEntity*> entities_;
};

// The pages and shapes of entities that are not among `shared`, each once.
struct Pieces {
  std::vector<const KeptPage*> pages;
  std::vector<const BrushShape*> shapes;

  void sort() {
    const auto sortOnce = [](auto& list) {
      std::ranges::sort(list);
      list.erase(std::unique(list.begin(), list.end()), list.end());
    };
    sortOnce(pages);
    sortOnce(shapes);
  }
};

template <typename Wanted>
Pieces PiecesOf(const MapSnapshot& of, const Parts& without, Wanted&& wanted) {
  Pieces pieces;
  for (const auto& e : of.entities) {
    if (without.hasEntity(e.get())) continue;
    for (const auto& page : e->pages) {
      if (wanted(page.get())) pieces.pages.push_back(page.get());
    }
  }
  for (const KeptPage* page : pieces.pages) {
    for (const KeptBrush& b : *page) pieces.shapes.push_back(b.shape.get());
  }
  pieces.sort();
  return pieces;
}

size_t BytesOf(const BrushShape& shape) {
  constexpr size_t kAllocations = 64;  // what three of them and the counts of references take
  return sizeof(BrushShape) + kAllocations + shape.faces.capacity() * sizeof(KeptFace) +
         shape.names.capacity() * sizeof(std::string);
}

}  // namespace

bool KeptFace::operator==(const KeptFace& other) const {
  return VecEqual(points[0], other.points[0]) && VecEqual(points[1], other.points[1]) &&
         VecEqual(points[2], other.points[2]) && rotate == other.rotate && shift[0] == other.shift[0] &&
         shift[1] == other.shift[1] && scale[0] == other.scale[0] && scale[1] == other.scale[1] &&
         name == other.name;
}

bool BrushShape::operator==(const BrushShape& other) const {
  return group == other.group && VecEqual(color, other.color) && faces == other.faces && names == other.names;
}

KeptEntity KeepBrush(const entity& owner, brush& b) {
  return {std::make_shared<const std::vector<KeyPair>>(owner.pairsInOrder()),
          {std::make_shared<const KeptPage>(KeptPage{Keep(b)})},
          owner.isModel};
}

std::unique_ptr<brush> RestoreBrush(entity& owner, const KeptBrush& kept) {
  const BrushShape& shape = *kept.shape;
  auto made = std::make_unique<brush>(owner.parent().counters());
  made->owner = &owner;
  std::vector<face>& faces = made->editFaces();
  faces.resize(shape.faces.size());
  for (size_t i = 0; i < faces.size(); ++i) {
    const KeptFace& from = shape.faces[i];
    std::copy_n(from.points, 3, faces[i].planepts);
    faces[i].texture = {
        shape.names[from.name], from.rotate, {from.shift[0], from.shift[1]}, {from.scale[0], from.scale[1]}};
  }
  made->setColor(shape.color);
  made->setGroup(shape.group);
  made->setCurrentFace(kept.currentFace);
  made->select(kept.selected);
  made->buildWindings();
  made->kept = kept.shape;
  return made;
}

std::unique_ptr<entity> RestoreEntity(map& m, const KeptEntity& kept) {
  Unchanged none;
  return Restored(m, std::make_shared<const KeptEntity>(kept), none);
}

MapSnapshot TakeSnapshot(const map& m) {
  MapSnapshot taken;
  taken.entities.reserve(static_cast<size_t>(m.numentities()));
  for (entity& e : m.entities()) taken.entities.push_back(Keep(e));
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
  Unchanged unchanged = TakeUnchanged(m, snapshot);
  for (const auto& kept : snapshot.entities) m.addobject(Restored(m, kept, unchanged));
  m.setCurrentEntity(m.at(std::max(snapshot.currentEntity, 0)));
  m.groups = snapshot.groups;
  m.clip = snapshot.clip;
  if (withCameras) {
    m.cameras = snapshot.cameras;
    m.currentCamera = snapshot.currentCamera;
  }
  m.setWorkRange(snapshot.workLow, snapshot.workHigh);
  m.modified = snapshot.modified || snapshot.saves != m.saves;
}

bool SameContents(const MapSnapshot& a, const MapSnapshot& b) {
  return a.groups == b.groups &&
         std::equal(a.entities.begin(), a.entities.end(), b.entities.begin(), b.entities.end(), SameEntity);
}

size_t BytesOfItsOwn(const MapSnapshot& a, const MapSnapshot& b) {
  const Parts partsOfA(a);
  const Parts partsOfB(b);
  const Pieces others = PiecesOf(b, partsOfA, [](const KeptPage*) { return true; });
  const Pieces own = PiecesOf(
      a, partsOfB, [&](const KeptPage* page) { return !std::ranges::binary_search(others.pages, page); });
  size_t bytes = sizeof(MapSnapshot) + a.entities.capacity() * sizeof(a.entities[0]);
  for (const auto& e : a.entities) {
    if (!partsOfB.hasEntity(e.get())) bytes += sizeof(KeptEntity) + e->pages.capacity() * sizeof(e->pages[0]);
  }
  for (const KeptPage* page : own.pages) bytes += sizeof(KeptPage) + page->capacity() * sizeof(KeptBrush);
  for (const BrushShape* shape : own.shapes) {
    if (!std::ranges::binary_search(others.shapes, shape)) bytes += BytesOf(*shape);
  }
  return bytes;
}

}  // namespace velk
