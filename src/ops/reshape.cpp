#include "ops/reshape.h"

#include <memory>
#include <utility>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "ops/solids/solid.h"

namespace velk {
namespace {

constexpr float kTallBottom = -2048;
constexpr float kTallTop = 2048;
constexpr float kShortTop = 16;

// The one selected brush, and the entity for what takes its place.
struct Seed {
  brush* at = nullptr;
  entity* home = nullptr;
  Outcome refusal;  // when there is none
};

Seed TakeSeed(map& m, bool careful) {
  if (m.totalSelected() != 1) return {nullptr, nullptr, Outcome::Said(kMustHaveOneSelected)};
  brush* b = m.firstSelected();
  if (careful && !b->owner->isModel) return {nullptr, nullptr, Outcome::Said(kPointBoxStays)};
  return {b, careful ? b->owner : m.world(), {}};
}

std::unique_ptr<brush> SelectedPart(const map& m, const Seed& seed) {
  auto part = std::make_unique<brush>(m.counters());
  part->owner = seed.home;
  part->setColor(ClassColour(*seed.home));
  part->setGroup(seed.at->group());
  part->select();
  return part;
}

// In an entity that would go with its last brush, the parts come before the seed goes.
void Replace(map& m, const Seed& seed, std::vector<std::unique_ptr<brush>> parts) {
  const size_t staying = size_t(seed.home->numbrushes()) - (seed.at->owner == seed.home ? 1 : 0);
  if (staying + parts.size() > size_t(MAX_ENTITY_BRUSHES)) Error("entity->addobject, too many objects");
  m.modified = true;
  const bool seedFirst = seed.home->isWorld();
  if (seedFirst) DestroyBrush(*seed.at);
  for (std::unique_ptr<brush>& part : parts) seed.home->addobject(std::move(part));
  if (!seedFirst) DestroyBrush(*seed.at);
}

// `shape` turns the bounds of the brush into those of the box.
template <typename Shape>
std::unique_ptr<brush> BoxFor(const map& m, const Seed& seed, Shape&& shape) {
  vec3 mins = seed.at->mins;
  vec3 maxs = seed.at->maxs;
  shape(mins, maxs);
  std::unique_ptr<brush> box = SelectedPart(m, seed);
  box->setBox(mins, maxs, seed.at->brushTexture());
  return box;
}

auto HeightOf(int height) {
  return [height](vec3& mins, vec3& maxs) { maxs.z = float(double(mins.z) + height); };
}

// Puts the box in the place of the brush.
template <typename Shape>
Outcome ReplaceByBox(map& m, bool careful, const char* status, Shape&& shape) {
  const Seed seed = TakeSeed(m, careful);
  if (!seed.at) return seed.refusal;
  std::vector<std::unique_ptr<brush>> parts;
  std::unique_ptr<brush> box = BoxFor(m, seed, shape);
  if (!box->invalid) parts.push_back(std::move(box));
  if (parts.empty() && careful) return Outcome::Said(kNoBoxFits);
  Replace(m, seed, std::move(parts));
  return Outcome::Drawn(Redraw::All, status);
}

vec3 Rounded(const vec3& p) {
  return {float(RoundHalfAway(p.x)), float(RoundHalfAway(p.y)), float(RoundHalfAway(p.z))};
}

face FaceThrough(const vec3& p0, const vec3& p1, const vec3& p2, const texturedef& texture) {
  face f;
  f.planepts[0] = p0;
  f.planepts[1] = p1;
  f.planepts[2] = p2;
  f.texture = texture;
  return f;
}

// The faces of the slab outside a face: that face turned inward, the same moved out, one for each edge.
std::vector<face> SlabFaces(const face& inner, int thickness, const texturedef& texture) {
  const winding& w = *inner.polygon;
  const auto at = [&](int i) { return w[i].position(); };
  const auto out = [&](int i) { return Rounded(MultiplyAdd(at(i), thickness, inner.facePlane.normal)); };
  std::vector<face> faces;
  faces.push_back(FaceThrough(at(0), at(2), at(1), texture));
  faces.push_back(FaceThrough(out(0), out(1), out(2), texture));
  for (int j = 0, before = w.count - 1; j < w.count; before = j++) {
    faces.push_back(FaceThrough(at(before), at(j), out(j), texture));
  }
  return faces;
}

struct Slabs {
  std::vector<std::unique_ptr<brush>> valid;
  int leftOut = 0;
};

Slabs MakeSlabs(const map& m, const Seed& seed, int thickness, bool careful) {
  Slabs slabs;
  if (seed.at->invalid) return slabs;
  const texturedef& texture = seed.at->brushTexture();
  for (const face& f : seed.at->faces()) {
    if (!f.polygon) continue;
    std::unique_ptr<brush> slab = SelectedPart(m, seed);
    slab->editFaces() = SlabFaces(f, thickness, texture);
    slab->buildWindings();
    if (careful ? !IsSolid(*slab) : slab->invalid) {
      ++slabs.leftOut;
    } else {
      slabs.valid.push_back(std::move(slab));
    }
  }
  return slabs;
}

}  // namespace

int SuggestedHeight(const map& m) { return Truncate(double(m.workHigh().z) - m.workLow().z); }

Outcome MakeTall(map& m, bool careful) {
  return ReplaceByBox(m, careful, kMadeTall, [](vec3& mins, vec3& maxs) {
    mins.z = kTallBottom;
    maxs.z = kTallTop;
  });
}

Outcome MakeShort(map& m, bool careful) {
  return ReplaceByBox(m, careful, kMadeShort, [](vec3& mins, vec3& maxs) {
    mins.z = 0;
    maxs.z = kShortTop;
  });
}

Outcome SetHeight(map& m, int height, bool careful) {
  if (height < 1) return Outcome::Said(kBadHeight);
  return ReplaceByBox(m, careful, kHeightSet, HeightOf(height));
}

std::vector<std::unique_ptr<brush>> BoxOfHeight(map& m, int height, bool careful) {
  std::vector<std::unique_ptr<brush>> boxes;
  const Seed seed = TakeSeed(m, careful);
  if (seed.at && height >= 1) boxes.push_back(BoxFor(m, seed, HeightOf(height)));
  return boxes;
}

Outcome ExtrudeSelection(map& m, int thickness, bool careful) {
  if (!IsWallThickness(thickness)) return careful ? Outcome::Said(kBadThickness) : Outcome{};
  const Seed seed = TakeSeed(m, careful);
  if (!seed.at) return seed.refusal;
  Slabs slabs = MakeSlabs(m, seed, thickness, careful);
  if (careful && slabs.valid.empty()) return Outcome::Said(kExtrudeNothing);
  std::string status = kExtruding;
  if (careful && slabs.leftOut > 0) status += Format(kLeftOut, slabs.leftOut);
  Replace(m, seed, std::move(slabs.valid));
  return Outcome::Drawn(Redraw::All, status);
}

std::vector<std::unique_ptr<brush>> ExtrudedSlabs(map& m, int thickness, bool careful) {
  const Seed seed = TakeSeed(m, careful);
  return seed.at && IsWallThickness(thickness) ? MakeSlabs(m, seed, thickness, careful).valid
                                               : std::vector<std::unique_ptr<brush>>{};
}

}  // namespace velk
