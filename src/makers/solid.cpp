#include "makers/solid.h"

#include <algorithm>
#include <vector>

namespace velk {
namespace {

// Cubic units; what has less is flat.
constexpr double kLeastVolume = 0.1;
// World units between corners that are one; cutting moves them by a few tenths of a unit at most.
constexpr double kSameCorner = 0.3;

bool SameCorner(const WindingPoint& a, const WindingPoint& b) {
  const vec3 apart = subtract(a.position(), b.position());
  return dot(apart, apart) <= kSameCorner * kSameCorner;
}

struct Edge {
  const WindingPoint* from;
  const WindingPoint* to;
  // Along the same edge, the other way round.
  bool meets(const Edge& other) const { return SameCorner(*from, *other.to) && SameCorner(*to, *other.from); }
};

std::vector<Edge> EdgesOf(const brush& b) {
  std::vector<Edge> edges;
  for (const face& f : b.faces()) {
    if (!f.polygon) continue;
    const winding& w = *f.polygon;
    for (int i = 0; i < w.count; ++i) edges.push_back({&w[i], &w[(i + 1) % w.count]});
  }
  return edges;
}

// Of every polygon each edge is one of another's too.
bool IsClosed(const brush& b) {
  const std::vector<Edge> edges = EdgesOf(b);
  return std::ranges::all_of(edges, [&](const Edge& edge) {
    return std::ranges::any_of(edges, [&](const Edge& other) { return edge.meets(other); });
  });
}

double Area(const winding& w) {
  vec3 sum;
  for (int i = 2; i < w.count; ++i) {
    sum = add(sum, cross(subtract(w[i - 1].position(), w[0].position()),
                         subtract(w[i].position(), w[0].position())));
  }
  return length(sum) / 2;
}

double Volume(const brush& b) {
  double volume = 0;
  for (const face& f : b.faces()) {
    if (f.polygon) volume += Area(*f.polygon) * -DistanceTo(f.facePlane, b.mins) / 3;
  }
  return volume;
}

}  // namespace

bool IsSolid(const brush& b) { return !b.invalid && Volume(b) >= kLeastVolume && IsClosed(b); }

}  // namespace velk
