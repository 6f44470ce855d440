#include "ops/transform.h"

#include "ops/reshape.h"
#include "ops/snap_to_grid.h"
#include "support/builders.h"

namespace velk {
namespace {

typedef test::MapTest TransformTest;

void ExpectBox(const brush& b, const vec3& mins, const vec3& maxs) {
  EXPECT_TRUE(!b.invalid && VecEqual(b.mins, mins) && VecEqual(b.maxs, maxs)) << test::Bounds(b);
}

TEST_F(TransformTest, MirrorsAndQuarterTurnsAboutTheGrid) {
  const vec3 turned[][2] = {
      {{0, 8, -8}, {64, 24, 24}}, {{24, 0, -24}, {40, 32, 40}}, {{16, -16, 0}, {48, 48, 16}}};
  for (int axis = 0; axis < 3; ++axis) {
    world().destroyBrushes();
    brush& b = selectedBox({0, 0, 0}, {64, 32, 16});
    const std::vector<face> before = b.faces();
    EXPECT_EQ(MirrorSelection(m, axis, false).status, kMirrored[axis]);
    ExpectBox(b, {0, 0, 0}, {64, 32, 16});
    MirrorSelection(m, axis, false);
    for (int i = 0; i < 4; ++i) {
      QuarterTurnSelection(m, axis, false);
      if (i == 0) ExpectBox(b, turned[axis][0], turned[axis][1]);
    }
    for (size_t i = 0; i < before.size(); ++i) {
      for (int k = 0; k < 3; ++k) EXPECT_TRUE(VecEqual(b.faces()[i].planepts[k], before[i].planepts[k]));
    }
  }
}

TEST_F(TransformTest, PointEntitiesMoveAndAreNotTurned) {
  brush& light = *addPoint("light", {100, 8, 8}).at(0);
  light.select();
  selectedBox({0, 0, 0}, {64, 16, 16});
  m.setCurrentEntity(light.owner);
  QuarterTurnSelection(m, 2, false);
  MirrorSelection(m, 0, false);
  ExpectBox(light, {92, 0, 0}, {108, 16, 16});
  MirrorSelection(m, 0, true);  // about x 56
  ExpectBox(light, {4, 0, 0}, {20, 16, 16});
  ExpectBox(*world().at(0), {48, 0, 0}, {112, 16, 16});
  EXPECT_EQ(RotateSelection(m, 0, 0, 90, false).status, "");  // about (56, 8, 8)
  ExpectBox(light, {48, 44, 0}, {64, 60, 16});
  ExpectBox(*world().at(0), {48, -48, 0}, {64, 16, 16});
}

TEST_F(TransformTest, TurnsByPitchThenYawThenRoll) {
  const Transform t{RotationMatrix(90, 90, 90), {}, true, false};
  brush b;
  b.setBox({0, 0, 8}, {1, 2, 32}, test::Texture("wall"));
  TransformBrush(b, t);
  ExpectBox(b, {0, -1, 8}, {2, 0, 32});  // (x, y, z) to (x, z, -y) to (z, -x, -y) to (y, -x, z)
}

TEST_F(TransformTest, ScalesAboutThePivot) {
  brush& b = selectedBox({0, 0, 0}, {32, 32, 32});
  EXPECT_EQ(ScaleSelection(m, 2, 0, 0.5, false).status, "Scaled selected brush...");
  ExpectBox(b, {-16, 0, 8}, {48, 32, 24});
  ScaleSelection(m, -1, 1, 1, true);
  ExpectBox(b, {-16, 0, 8}, {48, 32, 24});
  ScaleSelection(m, -1, 1, 1, false);
  EXPECT_EQ(summary(), "worldspawn ") << "turned inside out";
}

TEST_F(TransformTest, SnapsFacesToTheGrid) {
  const struct {
    float low, high, plainLow, plainHigh, carefulLow, carefulHigh;
  } cases[] = {
      {0, 3, -8, 8, 0, 3}, {-24, -8, -32, -8, -24, -8}, {-13, 20, -16, 24, -16, 24}, {3, 5, 0, 8, 0, 8}};
  for (const auto& c : cases) {
    for (const bool careful : {false, true}) {
      world().destroyBrushes();
      brush& b = selectedBox({c.low, 0, 0}, {c.high, 64, 64});
      SnapSelectionToGrid(m, careful);
      EXPECT_EQ(b.mins.x, careful ? c.carefulLow : c.plainLow) << c.low;
      EXPECT_EQ(b.maxs.x, careful ? c.carefulHigh : c.plainHigh) << c.high;
    }
  }
  world().destroyBrushes();
  selectedBox({0, 0, 0}, {3, 64, 64});
  brush& light = *addPoint("light", {3, 3, 3}).at(0);
  light.select();
  EXPECT_EQ(SnapSelectionToGrid(m, true).status, "Made selected snap to grid... 1 too thin");
  ExpectBox(light, {-5, -5, -5}, {11, 11, 11});
}

TEST_F(TransformTest, ReshapesTheOneSelectedBrush) {
  entity& door = addEntity("func_door");
  brush& b = boxIn(door, {0, 0, 32}, {16, 16, 64}, "rock");
  b.select();
  b.setGroup(3);
  SetHeight(m, 100, true);
  EXPECT_EQ(summary(), "worldspawn  func_door *");
  ExpectBox(*m.at(1)->at(0), {0, 0, 32}, {16, 16, 132});
  MakeTall(m, false);
  EXPECT_EQ(summary(), "worldspawn *");
  EXPECT_EQ(world().at(0)->group(), 3);
  EXPECT_EQ(world().at(0)->brushTexture().name, "rock");
}

}  // namespace
}  // namespace velk
