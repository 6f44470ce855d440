#include "mapfile/textout.h"

#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <random>

#include <gtest/gtest.h>

#include "base/text.h"

namespace velk {
namespace {

std::string SixDecimals(float value) {
  char text[kSixDecimalsLength];
  return {text, PutSixDecimals(text, value)};
}

TEST(TextOut, SixDecimalsAreThoseOfPrintf) {
  std::vector<float> values = {0,       -0.0f,      0x1p-7f, 0x3p-7f,        0x1p-21f, 5e-7f,
                               1.5e-6f, 0.9999999f, FLT_MIN, 1e-45f,         FLT_MAX,  -FLT_MAX,
                               0x1p42f, 0x1p43f,    1e20f,   0x1.fffffep-1f, 1,        -1};
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i)
    values.push_back(std::bit_cast<float>(static_cast<std::uint32_t>(random())));
  for (int i = 0; i < 20000; ++i) values.push_back(static_cast<float>(random() % 4096) / 2048 / 1024);
  for (const float value : values) {
    ASSERT_EQ(SixDecimals(value), Format("%f", std::isfinite(value) ? double{value} : 0));
  }
}

TEST(TextOut, GrowsAndHandsItsTextOver) {
  TextOut out;
  std::string expected;
  for (const int value : {0, 9, 10, -1, INT_MAX, INT_MIN}) {
    for (int i = 0; i < 500; ++i) {
      out.taken(PutInteger(out.room(kIntegerLength), value));
      out.line("");
      expected += std::to_string(value) + "\r\n";
    }
  }
  EXPECT_EQ(out.take(), expected);
  EXPECT_EQ(out.take(), "");
}

}  // namespace
}  // namespace velk
