#include <gtest/gtest.h>

#include "model/brush.h"
#include "support/builders.h"

namespace velk {
namespace {

using test::TestMap;

TEST(RayTest, HitsTheFaceItEntersBy) {
  const struct {
    const char* what;
    vec3 start, end;
    double t;
    int face;
  } cases[] = {
      {"from -x", {-100, 32, 32}, {200, 32, 32}, 100, 0},
      {"from above", {32, 32, 164}, {32, 32, -164}, 100, 4},
      {"slanting in by the top", {-28, 32, 128}, {68, 32, 0}, 80, 4},
      {"passing by", {-100, 65, 32}, {200, 65, 32}, -1, -1},
      {"stopping short", {-100, 32, 32}, {-50, 32, 32}, -1, -1},
      {"along a face", {-100, 64, 32}, {200, 64, 32}, -1, -1},
      {"wholly inside", {8, 8, 8}, {32, 32, 32}, 0, 0},
      {"from inside out", {8, 8, 8}, {200, 8, 8}, -1, -1},
  };
  TestMap t;
  const brush& b = t.box({0, 0, 0}, {64, 64, 64});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const brush::Hit hit = b.hitByRay(c.start, c.end);
    EXPECT_NEAR(hit.t, c.t, 1e-4);
    EXPECT_EQ(hit.face, c.face);
  }
}

TEST(RayTest, ClipsToThePartInside) {
  TestMap t;
  const brush::RayClip ray = t.box({0, 0, 0}, {64, 64, 64}).clipRay({-100, 32, 32}, {200, 32, 32});
  EXPECT_EQ(ray.entry, 0);
  EXPECT_EQ(ray.exit, 2);
  EXPECT_TRUE(VecEqual(ray.p1, {0, 32, 32}));
  EXPECT_TRUE(VecEqual(ray.p2, {64, 32, 32}));
}

}  // namespace
}  // namespace velk
