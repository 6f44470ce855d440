#include "camera/renderer.h"

#include <cmath>

#include <gtest/gtest.h>

#include "scene_builder.h"

namespace velk {
namespace {

using test::Rows;
using test::TestScene;
using Picture = std::vector<std::string>;

// In an 8 by 6 picture a world unit 4 units ahead is a pixel, its axis between columns 3 and 4 and rows 1
// and 2.
constexpr RenderSize kTiny{8, 6};

// The rule by which pixels are filled, and what the comparison with the plain renderer leaves out.
struct RendererTest : testing::Test, TestScene {
  RendererTest() {
    for (int i = 1; i < 10; ++i) plainTexture(std::to_string(i), i);
  }

  Picture draw(RenderSize size = kTiny) {
    renderer.renderFrame(scene(), size);
    return Rows(renderer);
  }
  float depthAt(int x, int y) const { return renderer.depthBuffer()[size_t(y * renderer.width() + x)]; }

  Renderer renderer;
};

TEST_F(RendererTest, FillsTheRowsAndColumnsOfAFace) {
  box({4, -2, -2}, {8, 2, 1}, "1");
  EXPECT_EQ(draw(), (Picture{"........", "..1111..", "..1111..", "..1111..", "........", "........"}));
  EXPECT_EQ(depthAt(2, 1), 1.0f);
  EXPECT_EQ(depthAt(5, 3), 1.0f);
  EXPECT_EQ(depthAt(6, 3), 0.0f);
  EXPECT_EQ(renderer.statistics().pixelsWritten, 12);
}

TEST_F(RendererTest, SlantedEdgesTruncateEachRow) {
  prism({{2, 2}, {-2, -2}, {2, -2}}, 4, 4, "1");
  EXPECT_EQ(draw(), (Picture{"........", "..1.....", "..11....", "..111...", "........", "........"}));
}

// Corners less than a tenth of a unit beyond the picture are not cut off; close to the eye that is many
// rows.
TEST_F(RendererTest, LeavesOutFacesThatReachBeyondTheRows) {
  box({0.25f, -8, -8}, {4, 8, 0.2f}, "1");
  EXPECT_EQ(draw(), Picture(6, "........"));
}

// In the window's own quality such faces are cut: no hole is left in a closed room, wherever the eye stands.
TEST_F(RendererTest, CutsFacesThatReachBeyondTheRowsAtTheWindowsQuality) {
  settings.window_quality = true;
  for (const auto& [low, high] : {std::pair<vec3, vec3>{{-64, -64, -32}, {64, 64, -16}},
                                  {{-64, -64, 32}, {64, 64, 48}},
                                  {{-80, -80, -32}, {-64, 80, 48}},
                                  {{64, -80, -32}, {80, 80, 48}},
                                  {{-80, -80, -32}, {80, -64, 48}},
                                  {{-80, 64, -32}, {80, 80, 48}}}) {
    box(low, high, "1");
  }
  for (int i = 0; i < 400; ++i) {
    camera& eye = m.cameras[0];
    const auto place = [i](int seed, double reach) {
      const double at = std::fmod(i * seed * 0.61803398875, 2) - 1;
      return float(std::copysign(1 - std::pow(1 - std::abs(at), 3), at) * reach);  // mostly near the walls
    };
    eye.origin = {place(1, 63.99), place(3, 63.99), 8 + place(7, 23.99)};
    eye.yaw = float(i * 0.37);
    eye.pitch = camera().pitch + float((i % 5 - 2) * 0.4);
    renderer.renderFrame(scene(), {64, 48});
    ASSERT_GE(renderer.statistics().pixelsWritten, 64 * 48 - 8) << i;  // cracks where edges meet
  }
}

TEST_F(RendererTest, SolidEntityBoxesAreShadedAndMakeWayForTheEye) {
  settings.solid_entities = true;
  std::vector<unsigned char> greys;
  for (int i = 0; i < 256; ++i) greys.insert(greys.end(), 3, static_cast<unsigned char>(i));
  assets.palette = greys.data();
  entity& light = addEntity("light");
  light.isModel = false;
  brush& b = boxIn(light, {40, -40, -40}, {60, 40, 40}, "1");
  const auto middle = [&] {
    renderer.renderFrame(scene(), kTiny);
    return int(renderer.frameBuffer()[3 * 8 + 4]);
  };
  EXPECT_EQ(middle(), 150);  // as bright as green
  m.cameras[0].yaw += 0.7f;
  EXPECT_LT(middle(), 150);
  m.cameras[0].yaw -= 0.7f;
  for (const float x : {31.0f, -8.0f}) {
    b.setBox({x, -40, -40}, {60, 40, 40}, {});
    EXPECT_EQ(middle(), 0) << x;
    EXPECT_EQ(renderer.pickFace(scene(), kTiny, 4, 3).hit, nullptr);
  }
}

TEST_F(RendererTest, FiltersGroupsAndPreviews) {
  brush& b = box({4, -2, -1}, {8, 2, 1}, "1");
  b.setGroup(m.groups.add("attic"));
  m.groups.setVisible(b.group(), false);
  for (const bool groups : {true, false}) {
    settings.groupmode = groups;
    EXPECT_EQ(draw()[1], groups ? "........" : "..1111..");
  }
  settings.filter.omitWorld = true;
  EXPECT_EQ(draw()[1], "........");
  settings.filter.omitWorld = false;

  brush copy(b);
  copy.setBox({4, -3, -1}, {8, -1, 1}, test::Texture("2"));
  preview = [&](const brush&) { return &copy; };
  EXPECT_EQ(draw()[1], "..1111..");
  copy.select();
  b.select();
  assets.selectionOutline = 4;
  assets.faceOutline = 3;  // the copy's current face is the one seen
  EXPECT_EQ(draw()[1], "....433.");
}

TEST_F(RendererTest, SizesComeAndGo) {
  box({4, -2, -2}, {8, 2, 1}, "1");
  EXPECT_EQ(draw({4, 3}), (Picture{".11.", ".11.", "...."}));
  EXPECT_EQ(draw({0, 1}), (Picture{"."}));
  EXPECT_EQ(draw().size(), 6u);
}

TEST_F(RendererTest, ALensOfNothingKeepsTheLastProjection) {
  box({4, -2, -2}, {8, 2, 1}, "1");
  draw();
  RenderScene blind = scene();
  blind.lens.ppd = 0;
  renderer.renderFrame(blind, {16, 12});
  EXPECT_EQ(Rows(renderer)[1], "..1111..........");
}

TEST_F(RendererTest, LooksTexturesUpOncePerFace) {
  int asked = 0;
  const auto make = assets.makeTextureRef;
  assets.makeTextureRef = [&](const std::string& name) {
    ++asked;
    return make(name);
  };
  settings.drawmode = 2;
  box({4, -2, -2}, {8, 2, 1}, "1");
  for (int i = 0; i < 2; ++i) draw();
  EXPECT_EQ(asked, 1);  // of six faces one is seen
}

TEST_F(RendererTest, PicksTheNearestFace) {
  brush& near = box({4, -1, -1}, {8, 1, 1}, "1");
  brush& far = box({8, -8, -2}, {9, 8, 2}, "2");
  const auto pick = [&](int x, int y) { return renderer.pickFace(scene(), kTiny, x, y); };
  // Columns 3 and 4 are the near one's; the column that a span ends at still counts.
  for (int x = 0; x < 8; ++x) EXPECT_EQ(pick(x, 1).hit, x >= 3 && x <= 5 ? &near : &far) << x;
  EXPECT_EQ(pick(4, 5).hit, nullptr);
  EXPECT_EQ(pick(4, 1).face, 0);
  box({4, -1, -1}, {8, 1, 1}, "3");
  EXPECT_EQ(pick(4, 1).hit, &near);  // the later one in drawing order
  settings.filter.omitWorld = true;
  EXPECT_EQ(pick(4, 1).hit, nullptr);
}

}  // namespace
}  // namespace velk
