#include "makers/box.h"

#include <algorithm>

namespace velk {

Made MakeBox(const BoxParams& params, const texturedef& texture, int group, const MakerRules& rules) {
  vec3 widths = params.widths;
  for (int axis = 0; axis < 3; ++axis) widths[axis] = std::max(widths[axis], float(kLeastBoxWidth));
  const Seed box = FittedSeed({group, params.at, add(params.at, widths), texture}, rules);
  Pieces pieces(box, KeepingBy(rules));
  pieces.addBox(box.mins, box.maxs);
  return pieces.take();
}

}  // namespace velk
