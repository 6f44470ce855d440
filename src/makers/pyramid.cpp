#include "makers/pyramid.h"

#include <algorithm>

#include "base/text.h"

namespace velk {

PyramidParams Limited(const PyramidParams& params) {
  return {std::max(params.sides, kFewestSides), std::max(params.radius, 1), std::max(params.height, 1)};
}

Made MakePyramid(const Seed& seed, const PyramidParams& params, const MakerRules& rules) {
  const int sides = std::clamp(params.sides, kFewestSides, kMostSides);
  const int height = std::max(params.height, kLeastPyramidHeight);
  const Seed fitted = FittedSeed(seed, rules);
  const vec3 middle = SnappedMiddle(fitted, rules.gridsize);
  const float low = fitted.mins.z;
  const vec3 apex = AtHeight(middle, Truncate(double(low) + height));
  const std::vector<vec3> ring = RingAround(middle, sides, std::max(params.radius, kLeastPyramidRadius));

  std::vector<FacePoints> faces{FacingDown(AtHeight(middle, low))};
  for (size_t k = 0; k + 1 < ring.size(); ++k) {
    faces.push_back({AtHeight(ring[k], low), AtHeight(ring[k + 1], low), apex});
  }
  Pieces pieces(fitted, KeepingBy(rules));
  pieces.addSolid(faces);
  return pieces.take();
}

}  // namespace velk
