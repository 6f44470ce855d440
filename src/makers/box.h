// A plain box from numbers; it needs no seed.
#pragma once

#include "makers/maker_texts.h"
#include "makers/pieces.h"

namespace velk {

inline constexpr MakerTexts kBoxTexts{"Create Brush...", "Brush added...", "Couldn't create brush..."};
inline constexpr double kLeastBoxWidth = 1;

struct BoxParams {
  vec3 at;  // the lowest corner, world units
  vec3 widths{64, 64, 64};
};

// Real numbers of any size.
inline constexpr MakerField kBoxFields[] = {{"x", "X", -1e9, 1e9},     {"y", "Y", -1e9, 1e9},
                                            {"z", "Z", -1e9, 1e9},     {"dx", "X width", 1, 1e9},
                                            {"dy", "Y width", 1, 1e9}, {"dz", "Z width", 1, 1e9}};

// With care, the status when nothing came of the numbers.
inline constexpr const char* kNoBoxMade = "Nothing valid comes of these values...";

// Widths are at least 1. A box beyond the world is left out; with care also one that reaches out of what
// polygons cover.
Made MakeBox(const BoxParams& params, const texturedef& texture, int group, const MakerRules& rules);

}  // namespace velk
