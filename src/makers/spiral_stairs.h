// Treads that wind around the seed's middle.
#pragma once

#include "makers/stairs.h"

namespace velk {

void AddSpiral(Pieces& pieces, const Seed& seed, const StairParams& params, const StepLevels& levels);

}  // namespace velk
