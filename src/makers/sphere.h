// A hollow sphere about the seed's middle, its poles on the y axis.
#pragma once

#include "makers/lathe.h"
#include "makers/maker_texts.h"

namespace velk {

inline constexpr MakerTexts kSphereTexts{"Make Sphere", "Made selected brush into a sphere...",
                                         "Couldn't create sphere..."};
inline constexpr int kMostStrips = 99;

struct SphereParams {
  int horizontal = 5;  // strips around the axis
  int vertical = 5;    // strips from pole to pole
  int inner = 100;     // radii in world units, the outer at least one larger
  int outer = 200;
};
inline constexpr MakerField kSphereFields[] = {{"horizontal", "Horizontal Strips", 1, kMostStrips},
                                               {"vertical", "Vertical Strips", 1, kMostStrips},
                                               {"inner", "Inner Radius", 1},
                                               {"outer", "Outer Radius", 2}};

// What the form's numbers become before they are remembered.
SphereParams Limited(const SphereParams& params);

// By default strips that are narrow at a pole leave a hole there; with care the sphere is closed.
Made MakeSphere(const Seed& seed, const SphereParams& params, const MakerRules& rules);

}  // namespace velk
