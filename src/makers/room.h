// A room: six walls around the seed, whose box is the inside.
#pragma once

#include "makers/maker_texts.h"
#include "makers/pieces.h"

namespace velk {

inline constexpr MakerTexts kRoomTexts{nullptr, "Made selected brush into a room...", nullptr};

// Walls of any kind: asked for with the query_wall_width setting, else of the grid's size.
inline constexpr const char* kWallTitle = "Set Wall Thickness";
inline constexpr const char* kWallPrompt = "Enter wall thickness (1-1024)...";
inline constexpr int kThinnestWall = 1;
inline constexpr int kThickestWall = 1024;
// Walls of other thicknesses are not made: the seed stays.
inline bool IsWallThickness(int units) { return units >= kThinnestWall && units <= kThickestWall; }

// West, east, south, north, top, bottom; the outer edges stay open.
Made MakeRoom(const Seed& seed, int thickness, const MakerRules& rules);

}  // namespace velk
