#include "camera/wire.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "camera/compass.h"
#include "scene_builder.h"

namespace velk {
namespace {

// Keeps the polygons drawn.
class RecordingCanvas : public Canvas {
 public:
  struct Drawn {
    Colour colour;
    std::vector<Pixel> points;
  };
  std::vector<Drawn> polygons;
  Colour background;

  void fill(const PixelRect&, Colour colour) override { background = colour; }
  void line(const Pen&, Pixel, Pixel) override {}
  void polygon(const Pen& pen, std::span<const Pixel> points) override {
    polygons.push_back({pen.colour, {points.begin(), points.end()}});
  }
  void points(Colour, std::span<const Pixel>) override {}
  void text(const std::string&, Pixel, int, Colour, const Colour*) override {}
  int textWidth(const std::string&, int) const override { return 0; }

  // The smallest rectangle around a polygon, as left, top, right, bottom.
  std::vector<int> bounds(size_t index) const {
    const auto byX = [](const Pixel& a, const Pixel& b) { return a.x < b.x; };
    const auto byY = [](const Pixel& a, const Pixel& b) { return a.y < b.y; };
    const auto& p = polygons[index].points;
    const auto [left, right] = std::minmax_element(p.begin(), p.end(), byX);
    const auto [top, bottom] = std::minmax_element(p.begin(), p.end(), byY);
    return {left->x, top->y, right->x, bottom->y};
  }
};

constexpr RenderSize kWindow{101, 81};
const WireLens kLens{50, 2};  // 100 pixels: an object as far as it is wide covers the window

struct WireTest : testing::Test, test::TestScene {
  void draw() {
    canvas.polygons.clear();
    DrawWire(canvas, kWindow, m, settings, kLens);
  }
  RecordingCanvas canvas;
};

TEST_F(WireTest, DrawsEveryFaceFromBothSides) {
  box({100, -20, -10}, {200, 20, 30});
  draw();
  ASSERT_EQ(canvas.polygons.size(), 6u);
  EXPECT_EQ(canvas.bounds(0), (std::vector<int>{30, 10, 70, 50}));  // front
  EXPECT_EQ(canvas.bounds(2), (std::vector<int>{40, 25, 60, 45}));  // back
  EXPECT_EQ(canvas.background, settings.colours.bgcolor);
}

TEST_F(WireTest, CutsInDepthAndAtTheWindow) {
  box({-50, -20, -10}, {200, 20, 30});  // the camera stands inside
  draw();
  EXPECT_EQ(canvas.polygons.size(), 5u);  // the back lies behind the eye
  for (const auto& drawn : canvas.polygons) {
    for (const Pixel& p : drawn.points) EXPECT_TRUE(p.x >= 0 && p.x < 101 && p.y >= 0 && p.y < 81);
  }
  settings.far_clip_distance = -200;  // the far face exactly on the limit
  draw();
  EXPECT_EQ(canvas.polygons.size(), 5u);
  settings.far_clip_distance = -199;
  draw();
  EXPECT_EQ(canvas.polygons.size(), 4u);
}

TEST_F(WireTest, SkipsHiddenBrushesAndShowsTheSelection) {
  brush& hidden = box({100, -20, -10}, {200, 20, 30});
  box({100, 30, -10}, {200, 40, 30}).selected = true;
  hidden.hidden = true;
  draw();
  ASSERT_EQ(canvas.polygons.size(), 6u);
  EXPECT_EQ(canvas.polygons[0].colour, settings.colours.color_selection);
}

TEST_F(WireTest, PicksTheNearestEdge) {
  brush& b = box({100, -20, -10}, {200, 20, 30});
  const auto pick = [&](int x, int y) { return PickWireBrush(kWindow, m, settings, kLens, {x, y}, 4); };
  EXPECT_EQ(pick(31, 30), &b);
  EXPECT_EQ(pick(27, 30), &b);
  EXPECT_EQ(pick(20, 30), nullptr);
  EXPECT_EQ(pick(50, 35), nullptr);
}

TEST(Compass, TheNeedlePointsWhereAClickTurnsTo) {
  const struct {
    double yaw;
    Pixel tip;
  } cases[] = {{0, {90, 25}}, {test::kQuarterTurn, {75, 40}}, {2 * test::kQuarterTurn, {60, 25}}};
  for (const auto& c : cases) {
    RecordingCanvas canvas;
    DrawCompass(canvas, 100, c.yaw, {}, {}, {});
    EXPECT_EQ(canvas.polygons.back().points[0], c.tip);
  }
}

}  // namespace
}  // namespace velk
