#include "ops/selection.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

using test::TestMap;

typedef test::MapTest ApplyTextureTest, PickTest, ConnectTest;
using test::Texture;

const vec3 kStart{8, 8, 4096};
const vec3 kEnd{8, 8, -4096};

TEST_F(ApplyTextureTest, OnTheFaceHitOrTheWholeBrush) {
  box({0, 0, 100}, {16, 16, 116}, "clip");
  settings.filter.omitClip = true;  // what is filtered is passed over
  brush& b = cube(0);
  m.modified = false;
  EXPECT_FALSE(ApplyTextureByRay(m, {500, 0, 0}, {600, 0, 0}, Texture("gate"), false)) << "nothing hit";
  EXPECT_FALSE(m.modified);
  EXPECT_TRUE(ApplyTextureByRay(m, kStart, kEnd, Texture("door"), false));
  EXPECT_TRUE(m.modified);
  EXPECT_EQ(b.faces()[4].texture.name + b.faces()[0].texture.name, "doorwall");
  EXPECT_TRUE(ApplyTextureByRay(m, kStart, kEnd, Texture("gate"), true));
  EXPECT_EQ(b.faces()[0].texture.name, "gate");
  addPoint("light", {8, 8, 200});
  EXPECT_FALSE(ApplyTextureByRay(m, kStart, kEnd, Texture("door"), false))
      << "fixed-size entities are spared";
}

TEST_F(PickTest, TogglesAndLiftsOnlyTheFirst) {
  brush& b = cube(0);
  const RayPick first = selectByRay(m, kStart, kEnd, true);
  EXPECT_TRUE(first.hit == &b && first.face == 4 && first.firstOfSelection);
  EXPECT_EQ(b.currentFace(), 4);

  brush& above = box({0, 0, 100}, {16, 16, 116});
  EXPECT_FALSE(selectByRay(m, kStart, kEnd, true).firstOfSelection);
  EXPECT_EQ(summary(), "worldspawn **");
  EXPECT_EQ(selectByRay(m, kStart, kEnd, true).hit, &above);
  EXPECT_EQ(summary(), "worldspawn *-") << "picked twice";
  EXPECT_EQ(m.workHigh().z, 120) << "its depth, on the grid";
  EXPECT_EQ(m.hits.count, 2);
  EXPECT_TRUE(m.hits.brushes[1] == &above && m.hits.saved[1]);

  EXPECT_EQ(selectByRay(m, {500, 0, 0}, {600, 0, 0}, true).hit, nullptr);
  EXPECT_EQ(m.hits.count, 0);
}

TEST_F(PickTest, PrefersEntitiesOnlyWhenAsked) {
  brush& roof = box({0, 0, 500}, {16, 16, 516});
  brush& light = *addPoint("light", {8, 8, 0}).at(0);
  EXPECT_EQ(selectByRay(m, kStart, kEnd, true).hit, &light);
  EXPECT_EQ(m.hits.count, 1) << "the world was not tested";
  EXPECT_EQ(m.currentEntity(), light.owner);
  EXPECT_EQ(selectByRay(m, kStart, kEnd, false).hit, &roof);
  EXPECT_EQ(m.hits.count, 2);
}

TEST_F(PickTest, TheOneTestedLaterWinsATie) {
  cube(0);
  entity& a = addEntity("func_door");
  entity& b = addEntity("func_door");
  boxIn(b, {0, 0, 0}, {16, 16, 16});
  boxIn(a, {0, 0, 0}, {16, 16, 16});
  brush& last = boxIn(a, {0, 0, 0}, {16, 16, 16});
  EXPECT_EQ(selectByRay(m, kStart, kEnd, true).hit, &last);
  EXPECT_EQ(selectByRay(m, kStart, kEnd, false).hit, world().at(0));
}

TEST_F(PickTest, WithoutMultiSelectAnotherEntityStartsAfresh) {
  for (const bool multi : {false, true}) {
    TestMap t;
    t.settings.multi_select = multi;
    t.cube(5).select(true);
    brush& light = *t.addPoint("light", {8, 8, 0}).at(0);
    light.select(true);
    selectByRay(t.m, kStart, kEnd, true);
    EXPECT_EQ(light.selected(), !multi) << "what was selected is picked afresh, or toggled";
    EXPECT_EQ(t.m.totalSelected(), 1);
  }
}

TEST_F(PickTest, PassesOverFilteredAndInvalidBrushes) {
  brush& grouped = box({0, 0, 200}, {16, 16, 216});
  box({0, 0, 300}, {16, 16, 316}, "*lava");
  box({0, 0, 0}, {0, 0, 0});
  brush& below = cube(0);
  settings.groupmode = true;
  grouped.setGroup(9);
  settings.filter.omitWater = true;
  EXPECT_EQ(selectByRay(m, kStart, kEnd, true).hit, &below);
  EXPECT_EQ(m.hits.count, 1);
}

TEST_F(ConnectTest, LinksTheCurrentEntityToThePicked) {
  entity& door = addPoint("light", {8, 8, 0});
  entity& button = addEntity("func_button");
  EXPECT_FALSE(Connect(m, kStart, kEnd)) << "the world is current";
  m.setCurrentEntity(&button);
  RayPick picked;
  EXPECT_TRUE(Connect(m, kStart, kEnd, &picked));
  EXPECT_EQ(picked.hit, door.at(0));
  EXPECT_EQ(button.valueOfKey("target"), "t1");
  EXPECT_EQ(door.valueOfKey("targetname"), "t1");
  EXPECT_EQ(m.currentEntity(), &door);
  EXPECT_FALSE(Connect(m, kStart, kEnd)) << "itself";
  EXPECT_EQ(door.valueOfKey("target"), "");
}

}  // namespace
}  // namespace velk
