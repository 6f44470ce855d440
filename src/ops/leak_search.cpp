#include "ops/leak_search.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "geometry/winding.h"

namespace velk {
namespace {

// Boxes this far apart on some axis are not compared.
constexpr double kNearBoxes = 2;

bool FarApart(const brush& a, const brush& b) {
  for (int axis = 0; axis < 3; ++axis) {
    if (double(b.mins[axis]) - a.maxs[axis] >= kNearBoxes) return true;
    if (double(a.mins[axis]) - b.maxs[axis] >= kNearBoxes) return true;
  }
  return false;
}

vec3 Negated(const vec3& v) { return {-v.x, -v.y, -v.z}; }

// Whether an edge of `a` has all of `b` on its outer side. Both lie in nearly the same plane.
bool EdgeSeparates(const winding& a, const vec3& normal, const winding& b) {
  for (int i = 0; i < a.count; ++i) {
    const vec3 from = a[i].position();
    vec3 outward = cross(normal, subtract(a[(i + 1) % a.count].position(), from));
    normalize(outward);
    if (std::all_of(b.begin(), b.end(), [&](const WindingPoint& p) {
          return dot(subtract(p.position(), from), outward) >= -SIDE_EPSILON;
        })) {
      return true;
    }
  }
  return false;
}

bool LieOver(const face& f, const face& g) {
  return f.polygon && g.polygon && !EdgeSeparates(*f.polygon, f.facePlane.normal, *g.polygon) &&
         !EdgeSeparates(*g.polygon, g.facePlane.normal, *f.polygon);
}

}  // namespace

std::string LeakPair::question() const { return Format(kLeakPrompt, normalDifference, distance); }

vec3 LeakPair::centre() const { return scale(add(add(a->mins, a->maxs), add(b->mins, b->maxs)), 0.25); }

LeakSearch::LeakSearch(map& m, bool careful) : map_(m), careful_(careful) {}

std::optional<LeakPair> LeakSearch::next() {
  while (faces_ >= 0 || nextBrushes()) {
    if (nextFaces(last_)) return last_;
  }
  return std::nullopt;
}

// Moves on to brushes that lie near to each other; false at the end.
bool LeakSearch::nextBrushes() {
  for (; entity_ < map_.numentities(); ++entity_, a_ = b_ = 0) {
    const entity& e = *map_.at(entity_);
    if (!e.isModel) continue;
    for (; a_ < e.numbrushes(); b_ = ++a_) {
      const brush& a = *e.at(a_);
      while (++b_ < e.numbrushes()) {
        if (FarApart(a, *e.at(b_)) || (careful_ && (a.invalid || e.at(b_)->invalid))) continue;
        last_.a = e.at(a_);
        last_.b = e.at(b_);
        faces_ = 0;
        return true;
      }
    }
  }
  return false;
}

// The next faces of the two brushes that make a pair; false, and on to other brushes, when there are none.
bool LeakSearch::nextFaces(LeakPair& pair) {
  const int columns = pair.b->numfaces();
  const int count = pair.a->numfaces() * columns;
  while (faces_ < count) {
    pair.faceOfA = faces_ / columns;
    pair.faceOfB = faces_ % columns;
    ++faces_;
    if (compare(pair)) return true;
  }
  faces_ = -1;
  return false;
}

bool LeakSearch::compare(LeakPair& pair) const {
  const face& f = pair.a->faces()[size_t(pair.faceOfA)];
  const face& g = pair.b->faces()[size_t(pair.faceOfB)];
  const Settings& settings = map_.settings();
  pair.distance = std::fabs(double(f.facePlane.dist) + g.facePlane.dist);
  if (pair.distance >= settings.distance_epsilon) return false;
  pair.normalDifference = length(subtract(Negated(g.facePlane.normal), f.facePlane.normal));
  if (pair.normalDifference <= settings.min_epsilon || pair.normalDifference >= settings.max_epsilon) {
    return false;
  }
  return !careful_ || LieOver(f, g);
}

void LeakSearch::conformPair() {
  const face& f = last_.a->faces()[size_t(last_.faceOfA)];
  face& g = last_.b->editFaces()[size_t(last_.faceOfB)];
  for (int i = 0; i < 3; ++i) g.planepts[i] = f.planepts[2 - i];
  const bool wasInvalid = last_.b->invalid;
  last_.b->buildWindings();
  map_.modified = true;
  ++conformed_;
  if (last_.b->invalid && !wasInvalid) ++becameInvalid_;
}

void LeakSearch::conformAll() {
  while (next()) conformPair();
}

std::string LeakSearch::summary() const { return Format(kLeakSummary, conformed_, becameInvalid_); }

}  // namespace velk
