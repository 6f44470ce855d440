#include "makers/prism.h"

#include <algorithm>

namespace velk {

PrismParams Limited(const PrismParams& params) {
  return {std::max(params.sides, kFewestSides), std::max(params.radius, 1)};
}

Made MakePrism(const Seed& seed, const PrismParams& params, const MakerRules& rules) {
  const int sides = std::clamp(params.sides, kFewestSides, kMostSides);
  const Seed fitted = FittedSeed(seed, rules);
  const vec3 middle = SnappedMiddle(fitted, rules.gridsize);
  const float low = fitted.mins.z;
  const float high = fitted.maxs.z;
  const std::vector<vec3> ring = RingAround(middle, sides, std::max(params.radius, kLeastPrismRadius));

  std::vector<FacePoints> faces{FacingUp(AtHeight(middle, high)), FacingDown(AtHeight(middle, low))};
  for (size_t k = 0; k + 1 < ring.size(); ++k) {
    faces.push_back({AtHeight(ring[k + 1], high), AtHeight(ring[k], high), AtHeight(ring[k], low)});
  }
  Pieces pieces(fitted, KeepingBy(rules));
  pieces.addSolid(faces);
  return pieces.take();
}

}  // namespace velk
