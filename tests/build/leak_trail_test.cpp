#include "build/leak_trail.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(LeakTrail, ReadsTriplesUpToTheFirstThatFailsAndTheLimit) {
  for (const auto& [text, count] : {std::pair("1 2 3\n4 5 6", 2u),
                                    {"1 2 3 4 5", 1u},
                                    {"words 1 2 3", 0u},
                                    {"", 0u},
                                    {"1 2 nan", 0u},
                                    {"-1e3 .5 +2\r\n", 1u}}) {
    EXPECT_EQ(ReadLeakPoints(text).size(), count) << text;
  }
  std::string many;
  for (int i = 0; i < 2500; ++i) many += std::to_string(i) + " 0 0\n";
  const auto points = ReadLeakPoints(many);
  ASSERT_EQ(points.size(), 2001u);
  EXPECT_EQ(points.back().x, 2000);
}

}  // namespace
}  // namespace velk
