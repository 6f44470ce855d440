// A hollow cylinder of ring segments around the seed's middle, strip by strip from the bottom up.
#pragma once

#include "makers/maker_texts.h"
#include "makers/ring.h"

namespace velk {

inline constexpr MakerTexts kCylinderTexts{"Make Cylinder...", "Made selected brush into cylinder...",
                                           "Couldn't create cylinder"};

struct CylinderParams {
  int sides = 6;
  int strips = 5;
  int inner = 64;  // radii in world units, the outer at least one larger
  int outer = 128;
};
inline constexpr MakerField kCylinderFields[] = {{"sides", "Sides", kFewestSides, kMostSides},
                                                 {"strips", "Strips", 1},
                                                 {"inner", "Inner Radius", 1},
                                                 {"outer", "Outer Radius", 2}};

// What the form's numbers become before they are remembered.
CylinderParams Limited(const CylinderParams& params);

// By default it starts on the grid, and its strips are whole units high, wherever that ends. With care it
// goes from the bottom of its seed to the top, in strips of nearly the same height.
Made MakeCylinder(const Seed& seed, const CylinderParams& params, const MakerRules& rules);

}  // namespace velk
