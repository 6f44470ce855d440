#include "model/brush.h"

#include <algorithm>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::Face;
using test::TestMap;
using test::Texture;

void ExpectBounds(const brush& b, const vec3& mins, const vec3& maxs) {
  EXPECT_TRUE(VecEqual(b.mins, mins)) << b.mins.x << " " << b.mins.y << " " << b.mins.z;
  EXPECT_TRUE(VecEqual(b.maxs, maxs)) << b.maxs.x << " " << b.maxs.y << " " << b.maxs.z;
}

int Polygons(const brush& b) {
  return int(std::ranges::count_if(b.faces, [](const face& f) { return bool(f.polygon); }));
}

TEST(BoxTest, HasSixSquareFacesInOrder) {
  TestMap t;
  const brush& b = t.box({0, 0, 0}, {64, 64, 64});
  ASSERT_EQ(b.numfaces(), 6);
  const vec3 normals[] = {{-1, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, -1, 0}, {0, 0, 1}, {0, 0, -1}};
  for (size_t i = 0; i < 6; ++i) {
    EXPECT_TRUE(VecEqual(b.faces[i].facePlane.normal, normals[i])) << i;
    ASSERT_TRUE(b.faces[i].polygon);
    EXPECT_EQ(b.faces[i].polygon->count, 4);
  }
  EXPECT_FALSE(b.invalid);
  ExpectBounds(b, {0, 0, 0}, {64, 64, 64});
  EXPECT_TRUE(VecEqual(b.faces[0].planepts[0], {0, 64, 64}));
  EXPECT_TRUE(VecEqual(b.faces[5].planepts[0], {64, 64, 0}));
}

TEST(BoxTest, WithoutExtentIsInvalid) {
  TestMap t;
  const brush& b = t.box({0, 0, 0}, {64, 0, 64});
  EXPECT_TRUE(b.invalid);
  EXPECT_EQ(b.numfaces(), 0);
  ExpectBounds(b, {0, 0, 0}, {64, 0, 64});
  EXPECT_EQ(b.brushTexture().name, "");
}

TEST(BuildTest, LeavesOutDegenerateAndRepeatedFaces) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  b.faces.insert(b.faces.begin() + 1, b.faces[0]);
  b.faces.insert(b.faces.begin() + 3, Face({0, 0, 0}, {1, 1, 1}, {2, 2, 2}));
  b.buildWindings();
  EXPECT_FALSE(b.invalid);
  EXPECT_EQ(b.numfaces(), 8);
  EXPECT_EQ(Polygons(b), 6);
  EXPECT_FALSE(b.faces[1].polygon);
  EXPECT_FALSE(b.faces[3].polygon);
  ExpectBounds(b, {0, 0, 0}, {64, 64, 64});
}

TEST(BuildTest, SettlesCornersNearWholeNumbers) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  const struct {
    float at, settled;
  } cases[] = {{63.996f, 64}, {64.004f, 64}, {63.98f, 63.98f}, {63.989f, 63.989f}};
  for (const auto& c : cases) {
    b.setBox({-c.at, 0, 0}, {c.at, 64, 64}, Texture("wall"));
    EXPECT_EQ(b.maxs.x, c.settled);
    EXPECT_EQ(b.mins.x, -c.settled);
  }
}

TEST(BuildTest, PlanesThatEncloseNothingMakeTheBrushInvalid) {
  TestMap t;
  brush& b = t.box({8, 8, 8}, {64, 64, 64});
  b.currentFace = 9;
  b.reverseFaces();
  EXPECT_TRUE(b.invalid);
  EXPECT_EQ(Polygons(b), 0);
  EXPECT_EQ(b.currentFace, 5);
  ExpectBounds(b, {0, 0, 0}, {0, 0, 0});
  b.reverseFaces();
  EXPECT_FALSE(b.invalid);
  ExpectBounds(b, {8, 8, 8}, {64, 64, 64});
}

TEST(BuildTest, CornersOutOfRangeMakeTheBrushInvalid) {
  TestMap t;
  EXPECT_FALSE(t.box({-18000, 0, 0}, {-17000, 64, 64}).invalid);
  const brush& b = t.box({17000, 0, 0}, {18000, 64, 64});
  EXPECT_TRUE(b.invalid);
  ExpectBounds(b, {0, 0, 0}, {0, 0, 0});
}

TEST(BuildTest, RefusesTooManyFaces) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  while (b.numfaces() < MAX_FACES) b.faces.push_back(b.faces[0]);
  b.buildWindings();
  EXPECT_FATAL(b.addFace(b.faces[0]), "addFace: numfaces == MAX_FACES");
}

TEST(AddFaceTest, CutsAndDropsEmptyFaces) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64}, "metal");
  b.currentFace = 5;
  // A slope that leaves the half below z = x; the top and the side at -x go.
  EXPECT_TRUE(b.addFace(Face({0, 64, 0}, {64, 64, 64}, {64, 0, 64}, "other")));
  EXPECT_EQ(b.numfaces(), 5);
  EXPECT_EQ(b.currentFace, 4);
  EXPECT_EQ(b.faces.back().texture.name, "metal");
  EXPECT_EQ(Polygons(b), 5);
  ExpectBounds(b, {0, 0, 0}, {64, 64, 64});
}

TEST(AddFaceTest, TooFewFacesLeftMakeTheBrushInvalid) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  EXPECT_FALSE(b.addFace(Face({0, 0, -8}, {0, 64, -8}, {64, 64, -8})));
  EXPECT_TRUE(b.invalid);
}

TEST(TextureTest, IsSetOnOneFaceOrAll) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  b.faces[2].cache = std::make_unique<TextureRef>();
  b.setTexturedef(Texture("door"), 2);
  EXPECT_FALSE(b.faces[2].cache);
  EXPECT_EQ(b.faces[2].texture.name, "door");
  b.setAllTexturedefs(b.faces[2].texture);
  EXPECT_EQ(b.faces[0].texture.name, "door");
  EXPECT_EQ(b.faces[5].texture.name, "door");
  EXPECT_FATAL(b.setTexturedef(Texture("door"), 6), "setTexturedef:forFace: bad face number 6");
}

TEST(MoveTest, TranslatesAndTransforms) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {16, 32, 64});
  b.translate({8, 0, -8});
  ExpectBounds(b, {8, 0, -8}, {24, 32, 56});
  const float quarterTurn[3][3] = {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}};
  b.transform(quarterTurn, {8, 0, 0});
  ExpectBounds(b, {8, -16, -8}, {40, 0, 56});
}

TEST(CopyTest, CarriesEverythingButPolygons) {
  TestMap t;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  b.selected = true;
  b.group = 3;
  t.m.hits.add(b);
  brush copy(b);
  EXPECT_EQ(copy.source, &b);
  EXPECT_EQ(copy.hits, nullptr);
  EXPECT_EQ(Polygons(copy), 0);
  EXPECT_EQ(copy.group, 3);
  EXPECT_TRUE(copy.selected);
  EXPECT_EQ(copy.faces[4].facePlane, b.faces[4].facePlane);
  EXPECT_EQ(copy.faces[4].shade, 1.0f);
  ExpectBounds(copy, {0, 0, 0}, {64, 64, 64});
}

TEST(DeselectTest, LeavesTheDepthAsWorkRange) {
  TestMap t;
  brush& b = t.box({3, 0, -100}, {61, 64, 5000});
  b.selected = true;
  b.deselect();
  EXPECT_FALSE(b.selected);
  EXPECT_TRUE(VecEqual(t.m.workLow(), {0, 0, -104}));
  EXPECT_TRUE(VecEqual(t.m.workHigh(), {64, 64, 80})) << "beyond 2048 the old value stays";

  b.reverseFaces();
  testing::internal::CaptureStdout();
  b.deselect();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "WARNING: deselected invalid brush\n");
}

}  // namespace
}  // namespace velk
