#pragma once

#include <cstdint>
#include <random>

namespace velk {

// Made-up colours, the same in every run.
class Random {
 public:
  explicit Random(std::uint32_t seed = 1) : engine_(seed) {}
  // 0..limit-1.
  int below(int limit) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(limit)); }

 private:
  std::minstd_rand engine_;
};

}  // namespace velk
