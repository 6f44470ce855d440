// A pyramid of any number of sides on the seed's bottom.
#pragma once

#include "makers/maker_texts.h"
#include "makers/ring.h"

namespace velk {

inline constexpr MakerTexts kPyramidTexts{"Make Pyramid...", "Made selected brush into pyramid...",
                                          "Couldn't create pyramid..."};
inline constexpr int kLeastPyramidRadius = 4;
inline constexpr int kLeastPyramidHeight = 4;

struct PyramidParams {
  int sides = 5;
  int radius = 64;  // world units
  int height = 64;
};
inline constexpr MakerField kPyramidFields[] = {{"sides", "Sides", kFewestSides, kMostSides},
                                                {"radius", "Radius", kLeastPyramidRadius},
                                                {"height", "Height", kLeastPyramidHeight}};

// What the form's numbers become before they are remembered.
PyramidParams Limited(const PyramidParams& params);

Made MakePyramid(const Seed& seed, const PyramidParams& params, const MakerRules& rules);

}  // namespace velk
