#include "ops/solids/merge.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "ops/solids/replace_brushes.h"
#include "ops/solids/solid.h"
#include "ops/solids/split_by_face.h"
#include "ops/transform.h"

namespace velk {
namespace {

// More brushes than this are not tried all at once.
constexpr size_t kMostAtOnce = 32;
// Pieces thinner than this are what rounding leaves between brushes that touch, in world units.
constexpr double kSliver = 0.1;

using Parts = std::vector<const brush*>;

bool AllBehind(const plane& p, const brush& b) {
  return std::ranges::all_of(b.faces(), [&](const face& f) {
    return !f.polygon || std::all_of(f.polygon->begin(), f.polygon->end(), [&](const WindingPoint& corner) {
      return DistanceTo(p, corner.position()) <= SIDE_EPSILON;
    });
  });
}

// The solid of those planes that have all parts behind them; it holds them all.
std::unique_ptr<brush> Hull(const Parts& parts) {
  std::unique_ptr<brush> hull = FreshCopy(*parts.front());
  hull->editFaces().clear();
  for (const brush* part : parts) AddFaces(*hull, *part);
  std::erase_if(hull->editFaces(), [&](const face& f) {
    return std::ranges::any_of(parts, [&](const brush* part) { return !AllBehind(f.facePlane, *part); });
  });
  hull->buildWindings();
  DropEmptyFaces(*hull);
  return IsSolid(*hull) ? std::move(hull) : nullptr;
}

// What of a piece lies outside the part goes to `outside`.
void CutAway(std::unique_ptr<brush> piece, const brush& part, std::vector<std::unique_ptr<brush>>& outside) {
  for (const face& f : part.faces()) {
    if (!f.polygon) continue;
    SplitParts split = splitByFace(f, *piece);
    if (split.front && Thickness(*split.front) > kSliver) outside.push_back(std::move(split.front));
    if (!split.back) return;
    piece = std::move(split.back);
  }
}

// Whether the parts leave nothing of the hull.
bool Fill(const brush& hull, const Parts& parts) {
  std::vector<std::unique_ptr<brush>> left;
  left.push_back(FreshCopy(hull));
  left.back()->buildWindings();
  for (const brush* part : parts) {
    std::vector<std::unique_ptr<brush>> outside;
    for (std::unique_ptr<brush>& piece : left) CutAway(std::move(piece), *part, outside);
    left = std::move(outside);
  }
  return left.empty();
}

// None when the union is not convex, or has too many faces on the way.
std::unique_ptr<brush> Union(const Parts& parts) {
  const ErrorTrap trap;
  try {
    std::unique_ptr<brush> hull = Hull(parts);
    return hull && Fill(*hull, parts) ? std::move(hull) : nullptr;
  } catch (const TrappedError&) {
    return nullptr;
  }
}

bool Touch(const brush& a, const brush& b) {
  for (int axis = 0; axis < 3; ++axis) {
    if (a.mins[axis] > b.maxs[axis] || b.mins[axis] > a.maxs[axis]) return false;
  }
  return true;
}

// A brush of the list, and what it has become so far.
struct Merging {
  brush* old;
  std::unique_ptr<brush> now;  // none: still itself
  bool gone = false;

  const brush& shape() const { return now ? *now : *old; }
};

bool Absorb(Merging& a, Merging& b) {
  if (b.gone || !Touch(a.shape(), b.shape())) return false;
  std::unique_ptr<brush> both = Union({&a.shape(), &b.shape()});
  if (!both) return false;
  a.now = std::move(both);
  b.gone = true;
  return true;
}

// One brush takes in the others again and again until none fits any more.
void MergePairs(std::vector<Merging>& all) {
  for (bool merged = true; merged;) {
    merged = false;
    for (size_t i = 0; i < all.size(); ++i) {
      for (size_t k = i + 1; k < all.size() && !all[i].gone; ++k) merged |= Absorb(all[i], all[k]);
    }
  }
}

bool MergeAll(std::vector<Merging>& all) {
  if (all.size() < 2 || all.size() > kMostAtOnce) return false;
  Parts parts;
  for (const Merging& one : all) parts.push_back(one.old);
  all.front().now = Union(parts);
  if (!all.front().now) return false;
  for (size_t i = 1; i < all.size(); ++i) all[i].gone = true;
  return true;
}

std::vector<Merging> MergeOf(const map& m, const entity& e) {
  std::vector<Merging> all;
  for (brush& b : e.brushes()) {
    if (b.selected() && m.passesGroupFilter(b) && IsSolid(b)) all.push_back({&b, nullptr});
  }
  if (!MergeAll(all)) MergePairs(all);
  return all;
}

}  // namespace

Outcome MergeSelection(map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  std::vector<Replacement> changes;
  int unions = 0;
  for (const entity& e : m.entities()) {
    if (!e.isModel) continue;
    for (Merging& one : MergeOf(m, e)) {
      if (!one.now && !one.gone) continue;
      Replacement& change = changes.emplace_back(Replacement{one.old, {}});
      if (one.gone) continue;
      change.by.push_back(std::move(one.now));
      ++unions;
    }
  }
  if (unions == 0) return Outcome::Said(kNothingToMerge);
  const int merged = int(changes.size());
  ReplaceBrushes(m, std::move(changes));
  return Outcome::Drawn(Redraw::All, Format(kMerged, merged, unions));
}

}  // namespace velk
