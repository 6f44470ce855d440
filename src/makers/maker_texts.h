// What a maker's command says and asks: kept beside the maker, shown by whoever runs it.
#pragma once

namespace velk {

struct MakerTexts {
  const char* title;    // of the form; null without one
  const char* made;     // status when it was done
  const char* notMade;  // status when the form was cancelled; null for none
};

// A field of a maker's form: what it shows at first and how small and large its number may be.
struct MakerField {
  const char* name;  // as scripts set it
  const char* label;
  double least = 0;
  double most = 2147483647;
};

// Beside the pictures of stairs and arches.
inline constexpr const char* kPictureButtons[] = {"Reset View", "Left",    "Right",  "In",    "Out",
                                                  "Pitch +",    "Pitch -", "Roll +", "Roll -"};
inline constexpr const char* kArchPictureButtons[] = {"Reset View", "Pitch +", "Pitch -", "Roll +", "Roll -",
                                                      "Left",       "Right",   "In",      "Out"};
inline constexpr const char* kPictureHint = "Left mouse = rotate preview  / Shift-Left mouse = move in/out";

}  // namespace velk
