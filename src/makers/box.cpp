#include "makers/box.h"

#include <algorithm>

namespace velk {

Made MakeBox(const BoxParams& params, const texturedef& texture, int group, const MakerRules& rules) {
  const Seed seed{group, {}, {}, texture};
  vec3 widths = params.widths;
  for (int axis = 0; axis < 3; ++axis) widths[axis] = std::max(widths[axis], float(kLeastBoxWidth));
  Pieces pieces(seed, KeepingBy(rules));
  pieces.addBox(params.at, add(params.at, widths));
  return pieces.take();
}

}  // namespace velk
