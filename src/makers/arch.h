// An arch: a half ring of stones on two posts, as wide, deep and high as the seed.
#pragma once

#include <optional>

#include "makers/maker_texts.h"
#include "makers/pieces.h"

namespace velk {

inline constexpr MakerTexts kArchTexts{"Make Arch", "Made selected brush into arch...",
                                       "Couldn't create arch"};
// In place of the arch's picture, on two lines.
inline constexpr const char* kArchTooShort[] = {"Brush is too short to create requested arch,",
                                                "try resizing seed brush or, possibly, changing the axis..."};
// With care, the status when the arch did not fit.
inline constexpr const char* kArchTooShortStatus = "Brush is too short to create requested arch...";
// Below the arch's picture: roll, pitch, yaw.
inline constexpr const char* kArchReadout = "R(%i) P(%i) Y(%i)";

inline constexpr int kFewestStones = 3;
inline constexpr int kMostPostPercent = 49;

struct ArchParams {
  int stones = 8;
  int post = 20;     // width of the posts, in percent of the seed's
  bool onX = false;  // one walks through along x, and the span is along y
};
inline constexpr MakerField kArchFields[] = {
    {"stones", "Number of Stones in Arch", kFewestStones},
    {"post", "Post Width (Percent of Brush Width)", 1, kMostPostPercent},
    {"on_x", "On X Axis"}};

// What the form's numbers become before they are remembered.
ArchParams Limited(const ArchParams& params);

// Stones from the side of the low coordinates over the top, then the two posts. None when the seed is too
// low for posts. With care posts and stones are in whole units and meet.
std::optional<Made> MakeArch(const Seed& seed, const ArchParams& params, const MakerRules& rules);

}  // namespace velk
