#pragma once

#include <array>

#include "model/brush.h"

namespace velk {

// The brushes met by the last pick ray, with the selected flag each had.
struct HitList {
  static constexpr int kMax = 10;
  std::array<brush*, kMax> brushes{};
  std::array<bool, kMax> saved{};
  int count = 0;
  int current = 0;  // -1..count-1

  void clear();
  void add(brush& b);  // ignored when full
  void forget(const brush& b);
};

}  // namespace velk
