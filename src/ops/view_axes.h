// World axes as a plan view shows them.
#pragma once

namespace velk {

// 0 x, 1 y, 2 z.
struct ViewAxes {
  int u = 0;      // left to right
  int v = 1;      // bottom to top
  int depth = 2;  // looked along
};

// Orientation 0 XY, 1 YZ, 2 XZ.
constexpr ViewAxes AxesOf(int orientation) {
  if (orientation == 1) return {1, 2, 0};
  if (orientation == 2) return {0, 2, 1};
  return {};
}

}  // namespace velk
