#include "ops/leak_search.h"

#include "support/builders.h"

namespace velk {
namespace {

struct LeakSearchTest : test::MapTest {
  // A box from x 64 on whose side towards -x leans by so many units over 640.
  brush& leaning(float by, float gap = 0) {
    brush& b = box({64 + gap, 0, 0}, {128, 640, 640});
    vec3* points = b.editFaces()[0].planepts;
    points[0] = {64 + gap + by, 640, 640};
    points[1] = {64 + gap + by, 0, 640};
    b.buildWindings();
    return b;
  }
};

TEST_F(LeakSearchTest, FindsFacesAtATinyAngle) {
  settings.distance_epsilon = 4;
  const struct {
    float by, gap;
    int found;
  } cases[] = {{0, 0, 0}, {11, 0, 1}, {40, 0, 0}, {0.5f, 1, 1}, {0.5f, 2, 0}};
  for (const auto& c : cases) {
    world().destroyBrushes();
    const brush& straight = box({0, 0, 0}, {64, 640, 640});
    brush& b = leaning(c.by, c.gap);
    ASSERT_FALSE(b.invalid);
    LeakSearch search(m, true);
    search.conformAll();
    EXPECT_EQ(search.conformed(), c.found) << c.by << ' ' << c.gap;
    EXPECT_EQ(b.mins.x, c.found > 0 ? straight.maxs.x : 64 + c.gap);
  }
}

TEST_F(LeakSearchTest, CarefulToolsCompareFacesThatLieOverOneAnother) {
  for (const bool careful : {false, true}) {
    world().destroyBrushes();
    box({0, 641, 0}, {64, 1280, 640});  // beside the other, near to it
    leaning(11);
    LeakSearch search(m, careful);
    EXPECT_EQ(search.next().has_value(), !careful);
  }
}

}  // namespace
}  // namespace velk
