#include "makers/cylinder.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "base/text.h"

namespace velk {
namespace {

// One segment after the other, between two rings of points.
class Segments {
 public:
  Segments(const Seed& seed, const vec3& middle, int sides, const CylinderParams& params, Keeping keeping)
      : inner_(RingAround(middle, sides, params.inner)),
        outer_(RingAround(middle, sides, params.outer)),
        pieces_(seed, keeping) {}

  // False when no more are wanted.
  bool addStrip(double bottom, double top) {
    for (size_t k = 0; k + 1 < inner_.size() && !pieces_.full(); ++k) add(k, bottom, top);
    return !pieces_.full();
  }
  // Strips that have no height.
  void leaveOut(std::int64_t strips) {
    const auto segments = strips * static_cast<std::int64_t>(inner_.size() - 1);
    pieces_.leaveOut(static_cast<int>(std::min<std::int64_t>(segments, INT_MAX / 2)));
  }
  Made take() { return pieces_.take(); }

 private:
  void add(size_t k, double bottom, double top) {
    const vec3 ia = AtHeight(inner_[k], top);
    const vec3 ib = AtHeight(inner_[k + 1], top);
    const vec3 oa = AtHeight(outer_[k], top);
    const vec3 ob = AtHeight(outer_[k + 1], top);
    const auto low = [&](const vec3& p) { return AtHeight(p, bottom); };
    const FacePoints faces[] = {{ia, ib, low(ib)},           {ob, oa, low(oa)}, {ia, oa, ob},
                                {low(ob), low(oa), low(ia)}, {oa, ia, low(ia)}, {ib, ob, low(ob)}};
    pieces_.addSolid(faces);
  }

  std::vector<vec3> inner_;
  std::vector<vec3> outer_;
  Pieces pieces_;
};

void AddEvenStrips(Segments& segments, const Seed& seed, int strips, int gridsize) {
  const double start = Snap(seed.mins.z, gridsize);
  const double height = RoundHalfAway((double(seed.maxs.z) - seed.mins.z) / strips);
  for (int j = 0; j < strips; ++j) {
    if (!segments.addStrip(start + j * height, start + (j + 1.0) * height)) return;
  }
}

void AddFittingStrips(Segments& segments, const Seed& seed, int strips) {
  const double bottom = seed.mins.z;
  const double height = seed.maxs.z - bottom;
  const int count = std::min(strips, static_cast<int>(std::max(height, 1.0)));
  segments.leaveOut(strips - count);
  const auto edge = [&](int j) { return RoundHalfAway(bottom + j * height / count); };
  for (int j = 0; j < count; ++j) {
    if (!segments.addStrip(edge(j), edge(j + 1))) return;
  }
}

}  // namespace

CylinderParams Limited(const CylinderParams& params) {
  CylinderParams limited{std::max(params.sides, kFewestSides), std::max(params.strips, 1),
                         std::clamp(params.inner, 1, INT_MAX - 1), params.outer};
  limited.outer = std::max(limited.outer, limited.inner + 1);
  return limited;
}

Made MakeCylinder(const Seed& seed, const CylinderParams& params, const MakerRules& rules) {
  const int sides = std::clamp(params.sides, kFewestSides, kMostSides);
  const int strips = std::max(params.strips, 1);
  const Seed fitted = FittedSeed(seed, rules);
  Segments segments(fitted, SnappedMiddle(fitted, rules.gridsize), sides, params, KeepingBy(rules));
  if (rules.careful) {
    AddFittingStrips(segments, fitted, strips);
  } else {
    AddEvenStrips(segments, fitted, strips, rules.gridsize);
  }
  return segments.take();
}

}  // namespace velk
