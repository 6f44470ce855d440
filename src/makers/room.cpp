#include "makers/room.h"

namespace velk {
namespace {

// The seed's box cut down, or stretched out, to the slab between two places on an axis.
void AddWall(Pieces& pieces, const Seed& seed, int axis, float from, float to) {
  vec3 low = seed.mins;
  vec3 high = seed.maxs;
  low[axis] = from;
  high[axis] = to;
  pieces.addBox(low, high);
}

void AddLowWall(Pieces& pieces, const Seed& seed, int axis, int thickness) {
  AddWall(pieces, seed, axis, float(double(seed.mins[axis]) - thickness), seed.mins[axis]);
}

void AddHighWall(Pieces& pieces, const Seed& seed, int axis, int thickness) {
  AddWall(pieces, seed, axis, seed.maxs[axis], float(double(seed.maxs[axis]) + thickness));
}

}  // namespace

Made MakeRoom(const Seed& seed, int thickness, const MakerRules& rules) {
  const Seed fitted = FittedSeed(seed, rules);
  Pieces pieces(fitted, KeepingBy(rules));
  for (const int axis : {0, 1}) {
    AddLowWall(pieces, fitted, axis, thickness);
    AddHighWall(pieces, fitted, axis, thickness);
  }
  AddHighWall(pieces, fitted, 2, thickness);
  AddLowWall(pieces, fitted, 2, thickness);
  return pieces.take();
}

}  // namespace velk
