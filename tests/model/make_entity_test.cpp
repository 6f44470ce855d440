#include "model/make_entity.h"

#include <gtest/gtest.h>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

TEST(MakeEntityTest, OnlyWhileTheWorldIsCurrent) {
  TestMap t;
  t.m.setCurrentEntity(&t.addPoint("light", {0, 0, 0}));
  t.cube(0).selected = true;
  EXPECT_EQ(MakeEntity(t.m, "light").outcome, EntityMaking::WorldNotCurrent);
  EXPECT_EQ(t.m.numentities(), 2);
}

TEST(MakeEntityTest, AVariableSizeNeedsASeed) {
  TestMap t;
  t.cube(0);
  t.m.modified = false;
  for (const char* classname : {"func_door", "not_a_class"}) {
    EXPECT_EQ(MakeEntity(t.m, classname).outcome, EntityMaking::NeedsSeed);
  }
  EXPECT_FALSE(t.m.modified);
  EXPECT_EQ(t.m.numentities(), 1);
}

TEST(MakeEntityTest, AVariableSizeTakesTheSelection) {
  TestMap t;
  for (int i = 0; i < 3; ++i) t.cube(i).selected = i != 1;
  const MadeEntity made = MakeEntity(t.m, "func_door");
  ASSERT_EQ(made.outcome, EntityMaking::Made);
  EXPECT_EQ(t.m.currentEntity(), made.made);
  EXPECT_EQ(made.made->numbrushes(), 2);
  EXPECT_TRUE(made.made->isModel);
  EXPECT_EQ(t.world().numbrushes(), 1);
  EXPECT_TRUE(made.made->at(0)->selected);
}

TEST(MakeEntityTest, AFixedSizeReplacesTheSelection) {
  TestMap t;
  t.box({0, 0, 0}, {32, 32, 32}).selected = true;
  const MadeEntity made = MakeEntity(t.m, "info_player_start");
  ASSERT_EQ(made.outcome, EntityMaking::Made);
  EXPECT_EQ(made.made->valueOfKey("origin"), "16 16 24");
  EXPECT_EQ(t.world().numbrushes(), 0);
  EXPECT_TRUE(made.made->at(0)->selected);
  EXPECT_EQ(t.m.indexOf(made.made), 1);
}

TEST(MakeEntityTest, WithoutASeedItStandsAtTheCamera) {
  TestMap t;
  t.m.activeCamera().origin = {100, 200, 300};
  const MadeEntity atCamera = MakeEntity(t.m, "light");
  ASSERT_EQ(atCamera.outcome, EntityMaking::Made);
  EXPECT_EQ(atCamera.made->valueOfKey("origin"), "108 208 308");
  EXPECT_TRUE(VecEqual(atCamera.made->at(0)->mins, {100, 200, 300}));
  EXPECT_EQ(t.world().numbrushes(), 0) << "the seed is gone";

  t.m.setCurrentEntity(t.m.world());
  t.m.MGPerform(Method::Deselect);
  EXPECT_EQ(MakeEntity(t.m, "light", vec3{0, 0, 0}).made->valueOfKey("origin"), "8 8 8");
}

TEST(MakeEntityTest, ASelectionInHiddenGroupsMakesNoEmptyEntity) {
  TestMap t;
  t.settings.groupmode = true;
  t.m.groups.setVisible(t.m.groups.add("hidden"), false);
  brush& b = t.cube(0);
  b.group = 1;
  b.selected = true;
  EXPECT_EQ(MakeEntity(t.m, "func_door").outcome, EntityMaking::NeedsSeed);
  EXPECT_EQ(t.m.numentities(), 1);
  EXPECT_EQ(b.owner, &t.world());
}

TEST(MakeEntityTest, AFullMapKeepsTheSelectionInItsPlace) {
  TestMap t;
  brush& b = t.cube(0);
  b.selected = true;
  while (t.m.numentities() < MAX_ENTITIES) t.addEntity("func_door");
  for (const char* classname : {"func_door", "light"}) {
    EXPECT_FATAL(MakeEntity(t.m, classname), "map->addobject, too many brushes on entity...");
    EXPECT_EQ(t.world().at(0), &b);
  }
}

}  // namespace
}  // namespace velk
