#include "camera/renderer.h"

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

TEST_F(RendererTest, LooksOnlyAtFrontsOfFaces) {
  brush& b = box({4, -2, -2}, {8, 2, 1}, "1");
  for (const float x : {4.0f, 6.0f}) {  // on the plane of the face, and inside
    m.cameras[0].origin = {x, 0, 0};
    EXPECT_EQ(draw(), Picture(6, "........")) << x;
  }
  m.cameras[0].origin = {0, 0, 0};
  for (face& f : b.faces) f.polygon = nullptr;
  EXPECT_EQ(draw(), Picture(6, "........"));
}

TEST_F(RendererTest, CutsAtEveryEdgeOfThePicture) {
  const struct {
    vec3 mins;
    vec3 maxs;
    Picture rows;
  } cases[] = {
      {{4, 2, -1}, {8, 90, 1}, {"........", "111.....", "111.....", "........", "........", "........"}},
      {{4, -90, -1}, {8, -2, 1}, {"........", ".....111", ".....111", "........", "........", "........"}},
      {{4, -1, 1}, {8, 1, 90}, {"...11...", "........", "........", "........", "........", "........"}},
      {{4, -1, -90}, {8, 1, -3}, {"........", "........", "........", "...1....", "...1....", "...11..."}},
      {{4, -90, -90}, {8, 90, 90}, Picture(6, "11111111")},
      {{4, 5, -1}, {4.5, 90, 1}, Picture(6, "........")},
      {{-8, -2, -2}, {-4, 2, 1}, Picture(6, "........")},
  };
  for (const auto& c : cases) {
    brush& b = box(c.mins, c.maxs, "1");
    EXPECT_EQ(draw(), c.rows) << c.mins.y << " " << c.mins.z;
    DestroyBrush(b);
  }
}

// Corners less than a tenth of a unit beyond the picture are not cut off; close to the eye that is many
// rows.
TEST_F(RendererTest, LeavesOutFacesThatReachBeyondTheRows) {
  box({0.25f, -8, -8}, {4, 8, 0.2f}, "1");
  EXPECT_EQ(draw(), Picture(6, "........"));
}

TEST_F(RendererTest, NearerWinsAndTiesGoToTheOneDrawnLater) {
  box({4, -1, -1}, {8, 1, 1}, "2");  // drawn last: the traversal runs backwards
  boxIn(addEntity("func_door"), {4, -2, -1}, {8, 0, 1}, "1");
  box({16, -16, -16}, {18, 16, 8}, "3");
  Picture expected(6, "33333333");
  expected[1] = expected[2] = "33322133";
  EXPECT_EQ(draw(), expected);
}

TEST_F(RendererTest, OutlinesTakeTheEndsOfSpans) {
  assets.brushOutline = 7;
  assets.selectionOutline = 8;
  assets.faceOutline = 9;
  brush& b = box({4, -4, -1}, {8, 2, 1}, "1");
  EXPECT_EQ(draw()[1], "..111111");
  settings.outline = true;
  EXPECT_EQ(draw()[1], "..711117");
  b.selected = true;
  box({4, 2, -1}, {8, 3, 1}, "2").selected = true;
  EXPECT_EQ(draw()[1], ".8911119");  // one pixel is both ends; only the first selected brush is current
}

TEST_F(RendererTest, FiltersGroupsAndPreviews) {
  brush& b = box({4, -2, -1}, {8, 2, 1}, "1");
  b.group = m.groups.add("attic");
  m.groups.setVisible(b.group, false);
  for (const bool groups : {true, false}) {
    settings.groupmode = groups;
    EXPECT_EQ(draw()[1], groups ? "........" : "..1111..");
  }
  settings.filter.omitWorld = true;
  EXPECT_EQ(draw()[1], "........");
  settings.filter.omitWorld = false;

  brush copy(b);
  copy.setBox({4, -3, -1}, {8, -1, 1}, test::Texture("2"));
  preview = [&](brush&) { return &copy; };
  EXPECT_EQ(draw()[1], "..1111..");
  b.selected = copy.selected = true;
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

struct TextureTest : RendererTest {
  TextureTest() { settings.drawmode = 2; }
  // The front of a wall 4 units ahead that shows texels (s0, t0), (s0 + 1, t0)... from the left.
  std::string row(int s0, int t0, const std::string& texture) {
    brush& b = box({4, -4, -4}, {8, 4, 4}, texture);
    texturedef definition = test::Texture(texture);
    definition.scale[0] = -1;  // s runs along +y, to the left
    definition.scale[1] = 1;
    definition.shift[0] = float(s0 + 4) + 0.5f;
    definition.shift[1] = float(t0) + 0.5f;  // row 2 is z = 0
    b.setAllTexturedefs(definition);
    const Picture rows = draw();
    DestroyBrush(b);
    return rows[2];
  }
};

TEST_F(TextureTest, TakesTexelsByMaskOrModulo) {
  countingTexture("masked", 4, 2, 1);
  countingTexture("modulo", 3, 2, 1);
  EXPECT_EQ(row(0, 0, "masked"), "12341234");
  EXPECT_EQ(row(1, 1, "masked"), "67856785");
  EXPECT_EQ(row(-2, 0, "masked"), "41123412");  // toward zero: two pixels of texel 0
  EXPECT_EQ(row(0, 0, "modulo"), "12312312");
  EXPECT_EQ(row(-2, 1, "modulo"), "56456456");
  EXPECT_EQ(row(-3 * 1024 - 2, 0, "modulo"), "31123123") << "beyond the bias";
}

TEST_F(TextureTest, LooksTexturesUpOncePerFace) {
  int asked = 0;
  const auto make = assets.makeTextureRef;
  assets.makeTextureRef = [&](const std::string& name) {
    ++asked;
    return make(name);
  };
  box({4, -2, -2}, {8, 2, 1}, "1");
  draw();
  draw();
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
