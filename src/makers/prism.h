// An upright prism of any number of sides around the seed's middle, from its bottom to its top.
#pragma once

#include "makers/maker_texts.h"
#include "makers/ring.h"

namespace velk {

inline constexpr MakerTexts kPrismTexts{"N-Sided Brush", "Made selected brush into N-sided brush...",
                                        "Couldn't create N-sided brush..."};
inline constexpr int kLeastPrismRadius = 4;

struct PrismParams {
  int sides = 5;
  int radius = 64;  // world units
};
inline constexpr MakerField kPrismFields[] = {{"sides", "Sides", kFewestSides, kMostSides},
                                              {"radius", "Radius", kLeastPrismRadius}};

// What the form's numbers become before they are remembered.
PrismParams Limited(const PrismParams& params);

Made MakePrism(const Seed& seed, const PrismParams& params, const MakerRules& rules);

}  // namespace velk
