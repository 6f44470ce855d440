#include "model/brush.h"

#include <algorithm>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::Face;
using test::Texture;

typedef test::MapTest BoxTest, BuildTest, AddFaceTest, BrushTest, RayTest;

void ExpectBounds(const brush& b, const vec3& mins, const vec3& maxs) {
  EXPECT_TRUE(VecEqual(b.mins, mins)) << b.mins.x << " " << b.mins.y << " " << b.mins.z;
  EXPECT_TRUE(VecEqual(b.maxs, maxs)) << b.maxs.x << " " << b.maxs.y << " " << b.maxs.z;
}

int Polygons(const brush& b) {
  return int(std::ranges::count_if(b.faces(), [](const face& f) { return bool(f.polygon); }));
}

TEST_F(BoxTest, HasSixSquareFacesInOrderUnlessItHasNoExtent) {
  const brush& b = box({0, 0, 0}, {64, 64, 64});
  ASSERT_EQ(b.numfaces(), 6);
  const vec3 normals[] = {{-1, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, -1, 0}, {0, 0, 1}, {0, 0, -1}};
  for (size_t i = 0; i < 6; ++i) {
    EXPECT_TRUE(VecEqual(b.faces()[i].facePlane.normal, normals[i])) << i;
    ASSERT_TRUE(b.faces()[i].polygon);
    EXPECT_EQ(b.faces()[i].polygon->count, 4);
  }
  ExpectBounds(b, {0, 0, 0}, {64, 64, 64});
  EXPECT_TRUE(VecEqual(b.faces()[0].planepts[0], {0, 64, 64}));
  EXPECT_TRUE(VecEqual(b.faces()[5].planepts[0], {64, 64, 0}));

  const brush& flat = box({0, 0, 0}, {64, 0, 64});
  EXPECT_TRUE(flat.invalid);
  EXPECT_EQ(flat.numfaces(), 0);
  ExpectBounds(flat, {0, 0, 0}, {64, 0, 64});
  EXPECT_EQ(flat.brushTexture().name, "");
}

TEST_F(BuildTest, LeavesOutDegenerateAndRepeatedFaces) {
  brush& b = box({0, 0, 0}, {64, 64, 64});
  b.editFaces().insert(b.editFaces().begin() + 1, b.editFaces()[0]);
  b.editFaces().insert(b.editFaces().begin() + 3, Face({0, 0, 0}, {1, 1, 1}, {2, 2, 2}));
  b.buildWindings();
  EXPECT_FALSE(b.invalid);
  EXPECT_EQ(b.numfaces(), 8);
  EXPECT_EQ(Polygons(b), 6);
  EXPECT_FALSE(b.faces()[1].polygon);
  EXPECT_FALSE(b.faces()[3].polygon);
  ExpectBounds(b, {0, 0, 0}, {64, 64, 64});
}

TEST_F(BuildTest, SettlesCornersNearWholeNumbers) {
  brush& b = box({0, 0, 0}, {64, 64, 64});
  const struct {
    float at, settled;
  } cases[] = {{63.996f, 64}, {64.004f, 64}, {63.98f, 63.98f}, {63.989f, 63.989f}};
  for (const auto& c : cases) {
    b.setBox({-c.at, 0, 0}, {c.at, 64, 64}, Texture("wall"));
    EXPECT_EQ(b.maxs.x, c.settled);
    EXPECT_EQ(b.mins.x, -c.settled);
  }
}

TEST_F(BuildTest, PlanesThatEncloseNothingMakeTheBrushInvalid) {
  brush& b = box({8, 8, 8}, {64, 64, 64});
  b.setCurrentFace(9);
  b.reverseFaces();
  EXPECT_TRUE(b.invalid);
  EXPECT_EQ(Polygons(b), 0);
  EXPECT_EQ(b.currentFace(), 5);
  ExpectBounds(b, {0, 0, 0}, {0, 0, 0});
  b.reverseFaces();
  EXPECT_FALSE(b.invalid);
  ExpectBounds(b, {8, 8, 8}, {64, 64, 64});
}

TEST_F(BuildTest, CornersOutOfRangeMakeTheBrushInvalid) {
  EXPECT_FALSE(box({-18000, 0, 0}, {-17000, 64, 64}).invalid);
  const brush& b = box({17000, 0, 0}, {18000, 64, 64});
  EXPECT_TRUE(b.invalid);
  ExpectBounds(b, {0, 0, 0}, {0, 0, 0});
}

TEST_F(AddFaceTest, TooFewFacesLeftMakeTheBrushInvalidAndTooManyAreRefused) {
  brush& b = box({0, 0, 0}, {64, 64, 64});
  while (b.numfaces() < MAX_FACES) b.editFaces().push_back(b.editFaces()[0]);
  b.buildWindings();
  EXPECT_FATAL(b.addFace(b.faces()[0]), "addFace: numfaces == MAX_FACES");
  brush& cutAway = box({0, 0, 0}, {64, 64, 64});
  EXPECT_FALSE(cutAway.addFace(Face({0, 0, -8}, {0, 64, -8}, {64, 64, -8})));
  EXPECT_TRUE(cutAway.invalid);
}

TEST_F(AddFaceTest, CutsAndDropsEmptyFaces) {
  brush& b = box({0, 0, 0}, {64, 64, 64}, "metal");
  b.setCurrentFace(5);
  // A slope that leaves the half below z = x; the top and the side at -x go.
  EXPECT_TRUE(b.addFace(Face({0, 64, 0}, {64, 64, 64}, {64, 0, 64}, "other")));
  EXPECT_EQ(b.numfaces(), 5);
  EXPECT_EQ(b.currentFace(), 4);
  EXPECT_EQ(b.faces().back().texture.name, "metal");
  EXPECT_EQ(Polygons(b), 5);
  ExpectBounds(b, {0, 0, 0}, {64, 64, 64});
}

TEST_F(BrushTest, AnotherTextureDropsTheOldReference) {
  brush& b = box({0, 0, 0}, {64, 64, 64});
  b.faces()[2].cache = std::make_unique<TextureRef>();
  b.setTexturedef(Texture("door"), 2);
  EXPECT_FALSE(b.faces()[2].cache);
  b.setAllTexturedefs(b.faces()[2].texture);
  EXPECT_EQ(b.faces()[5].texture.name, "door");
  EXPECT_FATAL(b.setTexturedef(Texture("door"), 6), "setTexturedef:forFace: bad face number 6");
}

TEST_F(BrushTest, ACopyCarriesEverythingButPolygons) {
  brush& b = box({0, 0, 0}, {64, 64, 64});
  b.select(true);
  b.setGroup(3);
  m.hits.add(b);
  brush copy(b);
  EXPECT_EQ(copy.hits, nullptr);
  EXPECT_EQ(Polygons(copy), 0);
  EXPECT_EQ(copy.group(), 3);
  EXPECT_TRUE(copy.selected());
  EXPECT_EQ(copy.faces()[4].facePlane, b.faces()[4].facePlane);
  EXPECT_EQ(copy.faces()[4].shade, 1.0f);
  ExpectBounds(copy, {0, 0, 0}, {64, 64, 64});
}

TEST_F(BrushTest, DeselectingLeavesTheDepthAsWorkRange) {
  brush& b = box({3, 0, -100}, {61, 64, 5000});
  b.select(true);
  b.deselect();
  EXPECT_FALSE(b.selected());
  EXPECT_TRUE(VecEqual(m.workLow(), {0, 0, -104}));
  EXPECT_TRUE(VecEqual(m.workHigh(), {64, 64, 80})) << "beyond 2048 the old value stays";

  b.reverseFaces();
  testing::internal::CaptureStdout();
  b.deselect();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "WARNING: deselected invalid brush\n");
}

TEST_F(RayTest, HitsTheFaceItEntersBy) {
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
  const brush& b = box({0, 0, 0}, {64, 64, 64});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const brush::Hit hit = b.hitByRay(c.start, c.end);
    EXPECT_NEAR(hit.t, c.t, 1e-4);
    EXPECT_EQ(hit.face, c.face);
  }
}

TEST_F(RayTest, ClipsToThePartInside) {
  const brush::RayClip ray = box({0, 0, 0}, {64, 64, 64}).clipRay({-100, 32, 32}, {200, 32, 32});
  EXPECT_EQ(ray.entry, 0);
  EXPECT_EQ(ray.exit, 2);
  EXPECT_TRUE(VecEqual(ray.p1, {0, 32, 32}));
  EXPECT_TRUE(VecEqual(ray.p2, {64, 32, 32}));
}

}  // namespace
}  // namespace velk
