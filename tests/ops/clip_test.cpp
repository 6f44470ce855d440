#include "ops/clip.h"

#include "ops/clip_preview.h"
#include "ops/pick_vertex.h"
#include "support/builders.h"

namespace velk {
namespace {

using test::Bounds;

struct ClipTest : test::MapTest {
  // Two clicks up the middle of a view of that orientation.
  void clickUpwards(int orientation) {
    addClipPoint(m, AxesOf(orientation), 0, 0, centre);
    addClipPoint(m, AxesOf(orientation), 0, 64, centre);
  }
  brush& selectedCube() { return selectedBox({-32, -32, -32}, {32, 32, 32}); }
  std::string boxes() {
    std::string text;
    for (const brush& b : world().brushes()) text += (b.selected() ? "*" : "-") + Bounds(b) + "\n";
    return text;
  }
  vec3 centre;
};

TEST_F(ClipTest, CarveKeepsTheRightOfTheWayInEveryView) {
  const char* kept[][2] = {{"*0..32 -32..32 -32..32\n", "*-32..0 -32..32 -32..32\n"},
                           {"*-32..32 0..32 -32..32\n", "*-32..32 -32..0 -32..32\n"},
                           {"*0..32 -32..32 -32..32\n", "*-32..0 -32..32 -32..32\n"}};
  for (int orientation = 0; orientation < 3; ++orientation) {
    for (const bool flipped : {false, true}) {
      world().destroyBrushes();
      selectedCube();
      clickUpwards(orientation);
      if (flipped) FlipClipper(m.clip);
      EXPECT_EQ(CarveSelection(m, AxesOf(orientation).depth, false).status, "Carved...");
      EXPECT_EQ(boxes(), kept[orientation][flipped]) << orientation;
      EXPECT_EQ(m.clip.count, 0);
    }
  }
}

TEST_F(ClipTest, PointsAreToggledInDepthAndStartAnew) {
  centre = {0, 0, 3};
  m.setWorkRange({0, 0, 16}, {0, 0, 80});
  addClipPoint(m, AxesOf(0), 13, -12, centre);
  EXPECT_TRUE(VecEqual(m.clip.points[0], {16, -16, 3})) << "halves away from zero; depth as it is";
  for (const float depth : {64.0f, 0.0f}) {
    addClipPoint(m, AxesOf(0), 16, -16, centre);
    EXPECT_EQ(m.clip.points[0].z, depth);
    EXPECT_EQ(m.clip.count, 1);
  }
  for (const double u : {32, 48, 64}) addClipPoint(m, AxesOf(0), u, 0, centre);
  EXPECT_TRUE(m.clip.count == 1 && m.clip.current == 0 && m.clip.points[0].x == 64);
}

TEST_F(ClipTest, DragsOnePointOrThePlane) {
  clickUpwards(0);
  addClipPoint(m, AxesOf(0), 64, 0, {0, 0, 5});
  EXPECT_FALSE(dragClipPoint(m.clip, AxesOf(0), 10.5, 0)) << "out of reach";
  const std::optional<ClipDrag> drag = dragClipPoint(m.clip, AxesOf(0), 10, 54);
  ASSERT_TRUE(drag);
  EXPECT_EQ(m.clip.current, 1);
  drag->move(m.clip, 21, 3);
  EXPECT_TRUE(VecEqual(m.clip.points[1], {21, 67, 0}));
  drag->finish(m.clip, 8);
  EXPECT_TRUE(VecEqual(m.clip.points[1], {24, 64, 0}));
  drag->cancel(m.clip);
  EXPECT_TRUE(VecEqual(m.clip.points[1], {0, 64, 0}));
  const std::optional<ClipDrag> plane = dragClipPlane(m.clip, AxesOf(0), 64, 0);
  ASSERT_TRUE(plane);
  plane->move(m.clip, 5, -9);
  plane->finish(m.clip, 8);
  EXPECT_TRUE(VecEqual(m.clip.points[0], {8, -8, 0}) && VecEqual(m.clip.points[2], {72, -8, 5}));
  EXPECT_EQ(m.clip.current, 2) << "a drag of the plane chooses no point, a cancelled one neither";
}

TEST_F(ClipTest, SplitKeepsBothPartsAndCarveDropsWhatLiesInFront) {
  selectedCube();
  addPoint("light", {0, 0, 0}).at(0)->select();
  clickUpwards(0);
  EXPECT_EQ(SplitSelection(m, 2, true).status, "Split...");
  EXPECT_EQ(boxes(), "*0..32 -32..32 -32..32\n*-32..0 -32..32 -32..32\n");
  EXPECT_EQ(summary(), "worldspawn ** light *") << "careful tools leave boxes of point entities whole";

  DestroyBrush(*m.at(1)->at(0));
  clickUpwards(0);
  CarveSelection(m, 2, false);
  EXPECT_EQ(summary(), "worldspawn *") << "nothing of the other part lies behind";
}

TEST_F(ClipTest, WithoutAPlane) {
  selectedCube();
  for (const bool careful : {false, true}) {
    for (int i = 0; i < 3; ++i) m.clip.points[i] = {8.0f * i, 0, 0};
    m.clip.count = 3;
    EXPECT_FALSE(makeClipFace(m.clip, 2));
    EXPECT_EQ(CarveSelection(m, 2, careful).status, careful ? "No clip plane..." : "Carved...");
    EXPECT_EQ(m.clip.count, careful ? 3 : 0);
    EXPECT_EQ(boxes(), "*-32..32 -32..32 -32..32\n");
  }
}

TEST_F(ClipTest, ThePreviewShowsWhatCarveWouldLeave) {
  brush& b = selectedCube();
  brush& behind = selectedBox({64, 0, 0}, {96, 32, 32});
  brush& inFront = selectedBox({-96, 0, 0}, {-64, 32, 32});
  ClipPreview preview;
  preview.begin(m, 2, false);
  EXPECT_EQ(preview.of(b), &b) << "no plane yet";
  clickUpwards(0);
  preview.begin(m, 2, false);
  EXPECT_EQ(Bounds(*preview.of(b)), "0..32 -32..32 -32..32");
  EXPECT_EQ(preview.of(behind), &behind);
  EXPECT_EQ(preview.of(inFront), nullptr);
  const brush* shown = preview.of(b);
  EXPECT_EQ(preview.of(*shown), shown) << "a preview in a preview";
}

TEST_F(ClipTest, PicksVerticesInEveryView) {
  brush& b = box({0, 16, 32}, {64, 80, 96});
  const vec3 nearCorners[] = {{2, 18, 500}, {500, 18, 34}, {2, 500, 34}};
  for (int orientation = 0; orientation < 3; ++orientation) {
    EXPECT_TRUE(pickVertex(b, nearCorners[orientation], orientation, 2.9));
    EXPECT_FALSE(pickVertex(b, nearCorners[orientation], orientation, 2.8));
  }
  b.invalid = true;
  EXPECT_FALSE(pickVertex(b, nearCorners[0], 0, 2.9));
}

}  // namespace
}  // namespace velk
