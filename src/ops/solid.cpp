#include "ops/solid.h"

#include <algorithm>

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

}  // namespace velk
