#include "model/selection.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

using test::TestMap;
using test::Texture;

const vec3 kStart{8, 8, 4096};
const vec3 kEnd{8, 8, -4096};

TEST(SelectByBoxTest, UsesUpTheOneSelectedBrush) {
  for (const bool inside : {true, false}) {
    TestMap t;
    t.box({-8, -8, -8}, {40, 40, 40}).selected = true;
    brush& within = t.cube(0);
    brush& across = t.cube(1);
    t.cube(2);
    SelectByBox(t.m, inside);
    EXPECT_EQ(t.m.brushCount(), 3);
    EXPECT_TRUE(within.selected);
    EXPECT_EQ(across.selected, !inside);
    EXPECT_EQ(t.m.totalSelected(), inside ? 1 : 2);
  }
  TestMap t;
  for (int i = 0; i < 2; ++i) t.cube(i).selected = true;
  SelectByBox(t.m, true);
  EXPECT_EQ(t.m.brushCount(), 2) << "two are selected";
}

TEST(ApplyTextureTest, OnTheFaceHitOrTheWholeBrush) {
  TestMap t;
  brush& b = t.cube(0);
  t.m.modified = false;
  EXPECT_TRUE(ApplyTextureByRay(t.m, kStart, kEnd, Texture("door"), false));
  EXPECT_TRUE(t.m.modified);
  EXPECT_EQ(b.faces[4].texture.name, "door");
  EXPECT_EQ(b.faces[0].texture.name, "wall");
  EXPECT_TRUE(ApplyTextureByRay(t.m, kStart, kEnd, Texture("gate"), true));
  EXPECT_EQ(b.faces[0].texture.name, "gate");
}

TEST(ApplyTextureTest, PassesOverWhatIsFilteredAndSparesFixedSizeEntities) {
  TestMap t;
  t.box({0, 0, 100}, {16, 16, 116}, "clip");
  brush& below = t.cube(0);
  t.settings.filter.omitClip = true;
  EXPECT_TRUE(ApplyTextureByRay(t.m, kStart, kEnd, Texture("door"), false));
  EXPECT_EQ(below.faces[4].texture.name, "door");

  t.addPoint("light", {8, 8, 200});
  t.m.modified = false;
  EXPECT_FALSE(ApplyTextureByRay(t.m, kStart, kEnd, Texture("gate"), false));
  EXPECT_FALSE(t.m.modified);
  EXPECT_FALSE(ApplyTextureByRay(t.m, {500, 0, 0}, {600, 0, 0}, Texture("gate"), false)) << "nothing hit";
}

TEST(PickTest, TogglesAndLiftsOnlyTheFirst) {
  TestMap t;
  brush& b = t.cube(0);
  const RayPick first = selectByRay(t.m, kStart, kEnd, true);
  EXPECT_EQ(first.hit, &b);
  EXPECT_EQ(first.face, 4);
  EXPECT_TRUE(first.firstOfSelection);
  EXPECT_TRUE(b.selected);
  EXPECT_EQ(b.currentFace, 4);

  brush& above = t.box({0, 0, 100}, {16, 16, 116});
  EXPECT_FALSE(selectByRay(t.m, kStart, kEnd, true).firstOfSelection);
  EXPECT_TRUE(above.selected);
  EXPECT_EQ(selectByRay(t.m, kStart, kEnd, true).hit, &above);
  EXPECT_FALSE(above.selected) << "picked twice";
  EXPECT_EQ(t.m.workHigh().z, 120) << "its depth, on the grid";
  EXPECT_EQ(t.m.hits.count, 2);
  EXPECT_EQ(t.m.hits.brushes[1], &above);
  EXPECT_TRUE(t.m.hits.saved[1]);

  EXPECT_EQ(selectByRay(t.m, {500, 0, 0}, {600, 0, 0}, true).hit, nullptr);
  EXPECT_EQ(t.m.hits.count, 0);
}

TEST(PickTest, PrefersEntitiesOnlyWhenAsked) {
  TestMap t;
  brush& roof = t.box({0, 0, 500}, {16, 16, 516});
  brush& light = *t.addPoint("light", {8, 8, 0}).at(0);
  EXPECT_EQ(selectByRay(t.m, kStart, kEnd, true).hit, &light);
  EXPECT_EQ(t.m.hits.count, 1) << "the world was not tested";
  EXPECT_EQ(t.m.currentEntity(), light.owner);
  EXPECT_EQ(selectByRay(t.m, kStart, kEnd, false).hit, &roof);
  EXPECT_EQ(t.m.hits.count, 2);
}

TEST(PickTest, TheOneTestedLaterWinsATie) {
  TestMap t;
  t.cube(0);
  entity& a = t.addEntity("func_door");
  entity& b = t.addEntity("func_door");
  t.boxIn(b, {0, 0, 0}, {16, 16, 16});
  t.boxIn(a, {0, 0, 0}, {16, 16, 16});
  brush& last = t.boxIn(a, {0, 0, 0}, {16, 16, 16});
  EXPECT_EQ(selectByRay(t.m, kStart, kEnd, true).hit, &last);
  EXPECT_EQ(selectByRay(t.m, kStart, kEnd, false).hit, t.world().at(0));
}

TEST(PickTest, WithoutMultiSelectAnotherEntityStartsAfresh) {
  for (const bool multi : {false, true}) {
    TestMap t;
    t.settings.multi_select = multi;
    t.cube(5).selected = true;
    brush& light = *t.addPoint("light", {8, 8, 0}).at(0);
    light.selected = true;
    selectByRay(t.m, kStart, kEnd, true);
    EXPECT_EQ(light.selected, !multi) << "what was selected is picked afresh, or toggled";
    EXPECT_EQ(t.m.totalSelected(), 1);
  }
}

TEST(PickTest, PassesOverHiddenFilteredAndInvalidBrushes) {
  TestMap t;
  brush& hidden = t.box({0, 0, 100}, {16, 16, 116});
  brush& grouped = t.box({0, 0, 200}, {16, 16, 216});
  t.box({0, 0, 300}, {16, 16, 316}, "*lava");
  t.box({0, 0, 0}, {0, 0, 0});
  brush& below = t.cube(0);
  hidden.hidden = true;
  t.settings.groupmode = true;
  grouped.group = 9;
  t.settings.filter.omitWater = true;
  EXPECT_EQ(selectByRay(t.m, kStart, kEnd, true).hit, &below);
  EXPECT_EQ(t.m.hits.count, 1);
}

TEST(ConnectTest, LinksTheCurrentEntityToThePicked) {
  TestMap t;
  entity& door = t.addPoint("light", {8, 8, 0});
  entity& button = t.addEntity("func_button");
  EXPECT_FALSE(Connect(t.m, kStart, kEnd)) << "the world is current";
  t.m.setCurrentEntity(&button);
  RayPick picked;
  EXPECT_TRUE(Connect(t.m, kStart, kEnd, &picked));
  EXPECT_EQ(picked.hit, door.at(0));
  EXPECT_TRUE(picked.firstOfSelection);
  EXPECT_EQ(button.valueOfKey("target"), "t1");
  EXPECT_EQ(door.valueOfKey("targetname"), "t1");
  EXPECT_EQ(t.m.currentEntity(), &door);
  EXPECT_FALSE(Connect(t.m, kStart, kEnd)) << "itself";
  EXPECT_EQ(door.valueOfKey("target"), "");
}

}  // namespace
}  // namespace velk
