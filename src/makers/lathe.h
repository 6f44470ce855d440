// A profile turned about the y axis through the seed's middle: a shell of small brushes between two radii.
#pragma once

#include "geometry/profile.h"
#include "makers/pieces.h"

namespace velk {

struct LatheParams {
  int sectors = 5;  // around the axis, 2..100
  int inner = 100;  // what 1 in the profile means, in world units
  int outer = 200;
  double poleRadius = 0.1;  // profile points nearer to the axis are on it
};
inline constexpr int kFewestSectors = 2;
inline constexpr int kMostSectors = 100;

// From one point of the profile to the next, and there sector by sector.
Made Lathe(const Seed& seed, const Profile& profile, const LatheParams& params, const MakerRules& rules);

}  // namespace velk
