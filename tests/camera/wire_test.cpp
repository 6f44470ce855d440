#include "camera/wire.h"

#include <gtest/gtest.h>

#include "camera/compass.h"
#include "camera/live/leak_line.h"
#include "scene_builder.h"
#include "support/recording_canvas.h"

namespace velk {
namespace {

using test::RecordingCanvas;

constexpr RenderSize kWindow{101, 81};
const WireLens kLens{50, 2};  // 100 pixels: an object as far as it is wide covers the window

struct WireTest : testing::Test, test::TestScene {
  // The bounds of the faces drawn, as RecordingCanvas writes them.
  std::vector<std::string> draw() {
    canvas = {};
    DrawWire(canvas, kWindow, {m, settings, assets, kLens, preview, nullptr});
    return canvas.starting("polygon");
  }
  RecordingCanvas canvas;
};

TEST_F(WireTest, DrawsEveryFaceFromBothSidesAndShowsTheSelection) {
  settings.colours.bgcolor = {1, 2, 3};
  settings.colours.color_selection = {4, 5, 6};
  box({100, -20, -10}, {200, 20, 30}).select(true);
  box({100, 30, -10}, {200, 40, 30}, "clip");
  settings.filter.omitClip = true;
  const auto faces = draw();
  ASSERT_EQ(faces.size(), 6u);
  EXPECT_EQ(faces[0], "polygon #040506 1 30 10 70 50");  // front
  EXPECT_EQ(faces[2], "polygon #040506 1 40 25 60 45");  // back
  EXPECT_TRUE(canvas.strokes[0].starts_with("fill #010203"));
}

TEST_F(WireTest, TheLeakLineIsCutAndMarked) {
  const vec3 points[] = {{100, 0, 0}, {100, -20, 0}, {-100, -20, 0}};
  settings.drawmode = kWireMode;
  CameraMarks wire(canvas, m.activeCamera(), settings, kLens, kWindow, {});
  DrawLeakLine(canvas, wire, points);
  EXPECT_EQ(canvas.starting("polygon"),
            (std::vector<std::string>{"polygon #ff0000 2 50 40 70 40", "polygon #ff0000 2 70 40 2050 40"}));
  // The end is behind the eye.
  EXPECT_EQ(canvas.starting("fill"),
            (std::vector<std::string>{"fill #ff0000 46 36 9 9", "fill #00c800 47 37 7 7"}));
  // In the other modes, over a picture of twice the size.
  canvas = {};
  settings.drawmode = 1;
  CameraMarks stretched(canvas, m.activeCamera(), settings, kLens, kWindow, {202, 162});
  DrawLeakLine(canvas, stretched, points);
  EXPECT_EQ(canvas.starting("fill")[1], "fill #00c800 47 24 7 7");
}

TEST_F(WireTest, CutsInDepthAndAtTheWindow) {
  box({-50, -20, -10}, {200, 20, 30});  // the camera stands inside
  EXPECT_EQ(draw().size(), 5u);         // the back lies behind the eye
  for (const auto& outline : canvas.outlines) {
    for (const Pixel& p : outline) EXPECT_TRUE(p.x >= -16 && p.x < 117 && p.y >= -16 && p.y < 97);
  }
  settings.far_clip_distance = -200;  // the far face exactly on the limit
  EXPECT_EQ(draw().size(), 5u);
  settings.far_clip_distance = -199;
  EXPECT_EQ(draw().size(), 4u);
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
    EXPECT_EQ(canvas.outlines.back()[0], c.tip);
  }
}

}  // namespace
}  // namespace velk
