#include "ops/make_entity.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

using MakeEntityTest = test::MapTest;

TEST_F(MakeEntityTest, RefusesWithAnotherEntityCurrentOrWithoutASeed) {
  settings.groupmode = true;
  m.groups.setVisible(m.groups.add("hidden"), false);
  cube(0).setGroup(1);
  m.modified = false;
  for (const bool hiddenSeed : {false, true}) {
    world().at(0)->select(hiddenSeed);
    for (const char* classname : {"func_door", "not_a_class"}) {
      EXPECT_EQ(MakeEntity(m, classname).outcome, EntityMaking::NeedsSeed);
    }
    EXPECT_TRUE(hiddenSeed || !m.modified);
  }
  m.setCurrentEntity(&addPoint("light", {0, 0, 0}));
  EXPECT_EQ(MakeEntity(m, "light").outcome, EntityMaking::WorldNotCurrent);
  EXPECT_EQ(summary(), "worldspawn * light -");
}

TEST_F(MakeEntityTest, AVariableSizeTakesTheSelection) {
  for (int i = 0; i < 3; ++i) cube(i).select(i != 1);
  const MadeEntity made = MakeEntity(m, "func_door");
  ASSERT_EQ(made.outcome, EntityMaking::Made);
  EXPECT_EQ(m.currentEntity(), made.made);
  EXPECT_TRUE(made.made->isModel);
  EXPECT_EQ(summary(), "worldspawn - func_door **");
}

TEST_F(MakeEntityTest, AFixedSizeReplacesTheSelectionOrStandsAtTheCamera) {
  m.activeCamera().origin = {100, 200, 300};
  const MadeEntity atCamera = MakeEntity(m, "light");
  ASSERT_EQ(atCamera.outcome, EntityMaking::Made);
  EXPECT_EQ(atCamera.made->valueOfKey("origin"), "108 208 308");
  EXPECT_TRUE(VecEqual(atCamera.made->at(0)->mins, {100, 200, 300}));
  const auto again = [&] {
    m.setCurrentEntity(m.world());
    m.MGPerform(Method::Deselect);
  };
  again();
  EXPECT_EQ(MakeEntity(m, "light", vec3{0, 0, 0}).made->valueOfKey("origin"), "8 8 8");
  again();
  box({0, 0, 0}, {32, 32, 32}).select(true);
  EXPECT_EQ(MakeEntity(m, "info_player_start").made->valueOfKey("origin"), "16 16 24");
  EXPECT_EQ(summary(), "worldspawn  light - light - info_player_start *") << "no seed stays behind";
}

TEST_F(MakeEntityTest, AFixedSizeJoinsAGroupWithCareInGroupMode) {
  m.groups.add("lamps");
  m.groups.add("walls");
  for (const bool careful : {false, true}) {
    settings.groupmode = settings.careful_tools = careful;
    const auto groupOf = [&] {
      const int made = MakeEntity(m, "light", vec3{0, 0, 0}, 1).made->at(0)->group();
      m.setCurrentEntity(m.world());
      m.MGPerform(Method::Deselect);
      return made;
    };
    EXPECT_EQ(groupOf(), careful ? 1 : 0);
    brush& seed = box({0, 0, 0}, {32, 32, 32});
    seed.setGroup(2);
    seed.select();
    EXPECT_EQ(groupOf(), careful ? 2 : 0);
  }
}

}  // namespace
}  // namespace velk
