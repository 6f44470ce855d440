#include "app/shared_borders.h"

#include <algorithm>
#include <cstdlib>

namespace velk {
namespace {

constexpr int kNear = 2;  // pixels that edges of one border may lie apart

struct Side {
  size_t window;
  int edge;  // 0 left, 1 top, 2 right, 3 bottom
  bool operator==(const Side&) const = default;
};

int Opposite(int edge) { return (edge + 2) % 4; }

// Whether two sides on one line face each other for some length.
bool Meet(const std::vector<BorderedWindow>& windows, const Side& a, const Side& b) {
  if (b.edge != Opposite(a.edge)) return false;
  const int along = 1 - a.edge % 2;
  const auto& x = windows[a.window].edges;
  const auto& y = windows[b.window].edges;
  return x[size_t(along)] + kNear < y[size_t(along + 2)] && y[size_t(along)] + kNear < x[size_t(along + 2)];
}

std::vector<Side> SidesOnLine(const std::vector<BorderedWindow>& windows, int axis, int line) {
  std::vector<Side> sides;
  for (size_t i = 0; i < windows.size(); ++i) {
    for (const int edge : {axis, axis + 2}) {
      if (std::abs(windows[i].edges[size_t(edge)] - line) <= kNear) sides.push_back({i, edge});
    }
  }
  return sides;
}

// The sides that hang together with the first one, itself the first of them.
std::vector<Side> BorderOf(const std::vector<BorderedWindow>& windows, const Side& first) {
  const int line = windows[first.window].edges[size_t(first.edge)];
  const std::vector<Side> candidates = SidesOnLine(windows, first.edge % 2, line);
  std::vector<Side> border{first};
  for (size_t i = 0; i < border.size(); ++i) {
    for (const Side& side : candidates) {
      if (std::ranges::find(border, side) == border.end() && Meet(windows, border[i], side))
        border.push_back(side);
    }
  }
  return border;
}

void MoveSide(BorderedWindow& window, int edge, int to) {
  const int least = window.least[size_t(edge % 2)];
  const int other = window.edges[size_t(Opposite(edge))];
  window.edges[size_t(edge)] = edge < 2 ? std::min(to, other - least) : std::max(to, other + least);
}

}  // namespace

void ResizeWithNeighbours(std::vector<BorderedWindow>& windows, size_t resized,
                          const std::array<int, 4>& edges) {
  std::vector<std::pair<Side, int>> moves;
  for (int edge = 0; edge < 4; ++edge) {
    if (windows[resized].edges[size_t(edge)] == edges[size_t(edge)]) continue;
    for (const Side& side : BorderOf(windows, {resized, edge})) moves.emplace_back(side, edges[size_t(edge)]);
  }
  for (const auto& [side, to] : moves) MoveSide(windows[side.window], side.edge, to);
  windows[resized].edges = edges;
}

}  // namespace velk
