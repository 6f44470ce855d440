#include "ops/solids/solid.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "geometry/winding.h"

namespace velk {
namespace {

constexpr int kFewestPolygons = 4;

// Six times the volume between a point and a polygon.
double SixfoldVolume(const winding& w, const vec3& point) {
  const auto at = [&](int i) { return subtract(w[i].position(), point); };
  double sum = 0;
  for (int i = 2; i < w.count; ++i) sum += dot(at(0), cross(at(i - 1), at(i)));
  return sum;
}

double Area(const winding& w) {
  vec3 sum;
  for (int i = 2; i < w.count; ++i) {
    sum = add(sum, cross(subtract(w[i - 1].position(), w[0].position()),
                         subtract(w[i].position(), w[0].position())));
  }
  return length(sum) / 2;
}

bool SamePlane(const plane& a, const plane& b) {
  constexpr double kNormalTolerance = 1e-4;
  return length(subtract(a.normal, b.normal)) < kNormalTolerance &&
         std::fabs(double(a.dist) - b.dist) < SIDE_EPSILON;
}

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

}  // namespace

int PolygonCount(const brush& b) {
  return int(std::ranges::count_if(b.faces(), [](const face& f) { return f.polygon != nullptr; }));
}

bool IsSolid(const brush& b) {
  if (b.invalid || PolygonCount(b) < kFewestPolygons) return false;
  return b.mins.x < b.maxs.x && b.mins.y < b.maxs.y && b.mins.z < b.maxs.z;
}

double Volume(const brush& b) {
  double sum = 0;
  for (const face& f : b.faces()) {
    if (f.polygon) sum += SixfoldVolume(*f.polygon, b.mins);
  }
  return sum < 0 ? -sum / 6 : sum / 6;
}

bool IsClosed(const brush& b) {
  const std::vector<Edge> edges = EdgesOf(b);
  return std::ranges::all_of(edges, [&](const Edge& edge) {
    return std::ranges::any_of(edges, [&](const Edge& other) { return edge.meets(other); });
  });
}

double Thickness(const brush& b) {
  double largest = 0;
  for (const face& f : b.faces()) {
    if (f.polygon) largest = std::max(largest, Area(*f.polygon));
  }
  return largest > 0 ? Volume(b) / largest : 0;
}

void DropEmptyFaces(brush& b) {
  std::erase_if(b.editFaces(), [](const face& f) { return !f.polygon; });
  b.setCurrentFace(std::max(std::min(b.currentFace(), b.numfaces() - 1), 0));
}

void AddFaces(brush& to, const brush& from) {
  for (const face& f : from.faces()) {
    const auto same = [&](const face& other) { return SamePlane(f.facePlane, other.facePlane); };
    if (f.polygon && std::ranges::none_of(to.faces(), same)) to.editFaces().push_back(f);
  }
}

}  // namespace velk
