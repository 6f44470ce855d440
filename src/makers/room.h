// A room: six walls around the seed, whose box is the inside.
#pragma once

#include "makers/maker_texts.h"
#include "makers/pieces.h"

namespace velk {

inline constexpr MakerTexts kRoomTexts{nullptr, "Made selected brush into a room...", nullptr};

// West, east, south, north, top, bottom; the outer edges stay open.
Made MakeRoom(const Seed& seed, int thickness, const MakerRules& rules);

}  // namespace velk
