#include <climits>

#include <gtest/gtest.h>

#include "base/text.h"
#include "planview/grid_lines.h"
#include "support/plan_fixture.h"

namespace velk {
namespace {

using test::PlanFixture;

PlanProjection ProjectionOf(int width, int height, double scale, vec3 centre = {}) {
  PlanView view;
  view.clientWidth = width;
  view.clientHeight = height;
  return view.projection(centre, scale);
}

TEST(Projection, TruncatesTowardZeroFromTheHalvedClientSize) {
  const struct {
    int width;
    double scale;
    float u, v;
    Pixel expected;
  } cases[] = {
      {200, 1, 0, 0, {100, 100}},
      {201, 1, 0, 0, {100, 100}},
      {200, 1, 10, 10, {110, 90}},
      {200, 0.25, 3, 3, {100, 99}},
      {200, 1, -100.5f, 100.5f, {0, 0}},  // -0.5 is cut to 0
      {200, 16, 18000, -18000, {288100, 288100}},
      {200, 16, 3e9f, -3e9f, {INT_MAX, INT_MAX}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ProjectionOf(c.width, c.width, c.scale).worldToScreen({c.u, c.v, 99}), c.expected) << c.u;
  }
}

TEST(Projection, ScreenToWorldTakesTheExactMiddle) {
  const PlanProjection p = ProjectionOf(201, 201, 2, {50, 60, 0});
  EXPECT_DOUBLE_EQ(p.screenToWorld({100, 100}).u, 49.75);
  EXPECT_DOUBLE_EQ(p.screenToWorld({100, 100}).v, 60.25);
  EXPECT_GT(p.screenToWorld({100, 99}).v, p.screenToWorld({100, 100}).v);
}

TEST(PlanView, OrientationsTurnThroughTheirAxesAndTitles) {
  const struct {
    int axes;  // u, v, depth
    std::string down, up, downField, upField;
  } cases[] = {
      {12, "Top   - XY View", "Bottom   - XY View", "Up", "Down"},
      {120, "Right - YZ View", "Left - YZ View", "Right", "Left"},
      {21, "Front - XZ View", "Back - XZ View", "Front", "Back"},
      {12, "Top   - XY View", "Bottom   - XY View", "Up", "Down"},
  };
  const Settings settings;
  const std::string rest = " - [Grid 8 / Scale 100.0%]";
  PlanViewSet set;
  PlanView& view = set.currentView();
  for (const auto& c : cases) {
    EXPECT_EQ(view.axisU * 100 + view.axisV * 10 + view.axisDepth, c.axes);
    for (int flips = 0; flips < 3; ++flips) {  // an odd number: turning looks down again
      EXPECT_EQ(CaptionText(view, settings), (flips % 2 ? c.up : c.down) + rest);
      EXPECT_EQ(DirectionText(view), flips % 2 ? c.upField : c.downField);
      view.flip();
    }
    EXPECT_EQ(SwitchMapView(set), "Map View Toggled...");
  }
}

TEST_F(PlanFixture, FieldsShowCameraPositionAndDepth) {
  m.currentCamera = 3;
  EXPECT_EQ(CameraText(m), "C(4)");
  EXPECT_EQ(CoordinateText({11.9, -11.9}, settings), "(11,-11)");
  settings.show_grid = true;
  EXPECT_EQ(CoordinateText({11.9, -12}, settings), "(8,-16)");
  EXPECT_EQ(CoordinateText({1e30, -1e30}, settings), Format("(%i,%i)", INT_MAX, INT_MIN));
  EXPECT_EQ(DepthRangeText(set.currentView(), m), "  0.0  80.0  80.0");
}

TEST(Nudge, MovesOneGridStepAlongTheViewsAxes) {
  const struct {
    Nudge direction;
    vec3 offset;
    const char* word;
  } cases[] = {{Nudge::Down, {0, 0, -8}, "down"}, {Nudge::Up, {0, 0, 8}, "up"},
               {Nudge::Left, {0, -8, 0}, "left"}, {Nudge::Right, {0, 8, 0}, "right"},
               {Nudge::In, {-8, 0, 0}, "in"},     {Nudge::Out, {8, 0, 0}, "out"}};
  for (const auto& c : cases) {
    EXPECT_TRUE(VecEqual(NudgeOffset(PlanView(kOrientationYZ), c.direction, Settings()), c.offset)) << c.word;
    EXPECT_EQ(NudgeText(c.direction), Format("Selection moved %s...", c.word));
  }
}

TEST(GridLines, LevelsFollowGridAndScale) {
  const struct {
    int grid;
    double scale;
    long long major;
    bool minorShown, majorShown;
  } cases[] = {
      {8, 1, 64, true, true},
      {1, 1, 64, false, true},
      {8, 1.0 / 16, 128, false, true},
      {256, 1, 256, true, true},
      {256, 1.0 / 64, 16384, true, true},
      {1, 1.0 / 64, 64, false, false},
  };
  for (const auto& c : cases) {
    const GridLevels levels = LevelsOfGrid(c.grid, c.scale);
    EXPECT_TRUE(levels.major == c.major && levels.showMinor == c.minorShown &&
                levels.showMajor == c.majorShown)
        << c.grid << " at " << c.scale;
  }
  for (long long c = -64; c <= 128; c += 8) EXPECT_EQ(LevelsOfGrid(8, 1).isMinorLine(c), c % 64 != 0) << c;
}

TEST(GridLines, RangesCoverTheViewAndOneStepMore) {
  const GridRange near = GridRangeU(ProjectionOf(200, 100, 1), 8, 8);
  EXPECT_EQ(near.first, -104);
  EXPECT_EQ(near.last, 104);
  EXPECT_EQ(GridRangeV(ProjectionOf(200, 100, 1, {0, 1000, 0}), 8, 64).first, 960);
  const GridRange far = GridRangeU(ProjectionOf(200, 100, 1, {2147483648.0f, 0, 0}), 8, 64);
  EXPECT_LE(far.last - far.first, 4 * 64);
  EXPECT_TRUE(GridRangeU(ProjectionOf(200, 100, 1, {NAN, 0, 0}), 8, 8).empty());
  EXPECT_TRUE(GridRangeU(ProjectionOf(200, 100, 1, {1e30f, 0, 0}), 8, 8).empty());
}

}  // namespace
}  // namespace velk
