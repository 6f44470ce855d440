// Which grid positions a plan view shows.
#pragma once

#include "planview/plan_view.h"

namespace velk {

// Multiples of `step` from first to last; none when step is 0.
struct GridRange {
  long long first = 0;
  long long last = -1;
  long long step = 0;

  bool empty() const { return step == 0 || first > last; }
};

struct GridLevels {
  long long major = 64;  // spacing, world units
  bool showMinor = false;
  bool showMajor = false;

  // Positions of minor lines leave out those of major ones.
  bool isMinorLine(long long position) const { return (position & (major - 1)) != 0; }
};

GridLevels LevelsOfGrid(int gridSize, double scale);

// The multiples of `step` within the view and one grid step beyond, along its axisU or its axisV.
GridRange GridRangeU(const PlanProjection& projection, int gridSize, long long step);
GridRange GridRangeV(const PlanProjection& projection, int gridSize, long long step);

}  // namespace velk
