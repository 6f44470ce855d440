// Windows that stand edge to edge: when one is resized, those across its border follow.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace velk {

// A window by its edges, in pixels of the frame's area, and the least it may measure.
struct BorderedWindow {
  std::array<int, 4> edges{};  // left, top, right, bottom
  std::array<int, 2> least{};  // width, height
};

// The window of that index was given other edges. Windows that share a border with it, and those that go on
// along the same line, are moved with it as far as their least size allows.
void ResizeWithNeighbours(std::vector<BorderedWindow>& windows, size_t resized,
                          const std::array<int, 4>& edges);

}  // namespace velk
