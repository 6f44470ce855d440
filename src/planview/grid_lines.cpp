#include "planview/grid_lines.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace velk {

namespace {

constexpr double kMinLineDistance = 4;    // pixels
constexpr long long kSmallestMajor = 64;  // world units
// Beyond this, neighbouring positions would no longer differ in a view's coordinates.
constexpr double kFarthest = 1e12;

GridRange RangeAround(double centre, double halfExtent, int gridSize, long long step) {
  const double margin = double(std::min<long long>(gridSize, step));
  const double low = centre - halfExtent - margin;
  const double high = centre + halfExtent + margin;
  if (!(low > -kFarthest && high < kFarthest) || step <= 0) return {};
  const double first = std::ceil(low / double(step));
  const double last = std::floor(high / double(step));
  return {static_cast<long long>(first) * step, static_cast<long long>(last) * step, step};
}

}  // namespace

GridLevels LevelsOfGrid(int gridSize, double scale) {
  GridLevels levels;
  levels.major = std::max<long long>(kSmallestMajor, Truncate(gridSize / scale));
  levels.showMinor = gridSize >= kMinLineDistance / scale;
  levels.showMajor = kMinLineDistance / double(levels.major) < scale;
  return levels;
}

GridRange GridRangeU(const PlanProjection& projection, int gridSize, long long step) {
  return RangeAround(projection.centreU, projection.width * 0.5 / projection.scale, gridSize, step);
}

GridRange GridRangeV(const PlanProjection& projection, int gridSize, long long step) {
  return RangeAround(projection.centreV, projection.height * 0.5 / projection.scale, gridSize, step);
}

}  // namespace velk
