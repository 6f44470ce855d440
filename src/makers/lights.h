// Rows of lights that fill the seed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "makers/maker_texts.h"
#include "makers/seed.h"

namespace velk {

inline constexpr MakerTexts kLightsTexts{"Make Lights", "Made selected brush into lights...", nullptr};
inline constexpr const char* kLightType = "light";  // the one preselected

struct LightParams {
  int counts[3] = {2, 2, 2};  // along x, y, z; less than 2 puts one into the middle
  int value = 150;            // brightness
  std::string type = kLightType;
};
inline constexpr MakerField kLightFields[] = {{"x", "X Lights", 1},
                                              {"y", "Y Lights", 1},
                                              {"z", "Z Lights", 1},
                                              {"value", "Light Value", -2147483647},
                                              {"type", "Light Type"}};

inline constexpr char kNoLightClass[] = "No class begins with \"light\"...";

// The classes to choose from: those whose names begin with "light", in the list's order.
std::vector<std::string> LightTypes(const EntityClassList& classes);

// Whole units, along z first and x last; at most one more than a map can hold.
std::vector<vec3> LightOrigins(const Seed& seed, const LightParams& params);

// The lights' boxes, to be shown before they are there.
Made LightBoxes(const Seed& seed, const LightParams& params, const EntityClassList& classes);

// Puts entities of the class in place of the seed, their boxes selected and in its group. Without a class
// nothing happens, which careful says. Fatal, with the map unchanged, when it has no room for all.
Outcome MakeLights(map& m, brush& seed, const LightParams& params, bool careful);

}  // namespace velk
