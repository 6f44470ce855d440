// Whether a brush is a body that the game can use.
#pragma once

#include "model/brush.h"

namespace velk {

// True for a valid brush with some volume whose polygons leave no gap.
bool IsSolid(const brush& b);

}  // namespace velk
