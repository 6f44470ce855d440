#include "app/shared_borders.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

using Edges = std::array<int, 4>;

// Two on the left, one as tall as both on the right:  0 | 2
//                                                     1 | 2
std::vector<BorderedWindow> Three() {
  return {{{0, 0, 100, 50}, {20, 20}}, {{0, 50, 100, 100}, {20, 20}}, {{100, 0, 200, 100}, {20, 20}}};
}

TEST(SharedBorders, WhatGoesOnAlongTheLineFollows) {
  auto windows = Three();
  ResizeWithNeighbours(windows, 0, {0, 0, 120, 50});
  EXPECT_EQ(windows[1].edges, (Edges{0, 50, 120, 100}));
  EXPECT_EQ(windows[2].edges, (Edges{120, 0, 200, 100}));
}

TEST(SharedBorders, ACornerMovesBothBordersAndNobodyShrinksTooFar) {
  auto windows = Three();
  ResizeWithNeighbours(windows, 0, {0, 0, 195, 90});
  EXPECT_EQ(windows[1].edges, (Edges{0, 80, 195, 100})) << "20 are left of it";
  EXPECT_EQ(windows[2].edges, (Edges{180, 0, 200, 100}));
}

TEST(SharedBorders, EdgesThatOnlyTouchAtACornerStay) {
  std::vector<BorderedWindow> windows{{{0, 0, 100, 50}, {}}, {{100, 50, 200, 100}, {}}};
  ResizeWithNeighbours(windows, 0, {0, 0, 140, 50});
  EXPECT_EQ(windows[1].edges, (Edges{100, 50, 200, 100}));
}

}  // namespace
}  // namespace velk
