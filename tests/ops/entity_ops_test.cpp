#include "ops/entity_ops.h"

#include <gtest/gtest.h>

#include "ops/make_entity.h"
#include "support/builders.h"

namespace velk {
namespace {

using EntityOpsTest = test::MapTest;

TEST_F(EntityOpsTest, RevertGivesAllBrushesToTheWorldSelected) {
  box({0, 0, 0}, {16, 16, 16});
  entity& door = addEntity("func_door");
  for (int i = 1; i < 4; ++i) boxIn(door, {32.0f * i, 0, 0}, {32.0f * i + 16, 16, 16});
  RevertToWorld(m);  // the world stays what it is
  m.setCurrentEntity(&addPoint("light", {0, 0, 64}));
  RevertToWorld(m);
  EXPECT_EQ(summary(), "worldspawn - func_door --- light -");
  m.setCurrentEntity(&door);
  RevertToWorld(m);
  EXPECT_EQ(summary(), "worldspawn -*** light -");
  EXPECT_TRUE(m.worldIsCurrent());
  EXPECT_TRUE(VecEqual(world().at(1)->color(), ClassColour(world())));
}

TEST_F(EntityOpsTest, OriginMovesThePointEntityOnlyWithCare) {
  for (const bool careful : {false, true}) {
    settings.careful_tools = careful;
    entity& light = addPoint("light", {0, 0, 0});
    SetPair(light, " origin", "64 -32 8");
    EXPECT_EQ(light.valueOfKey("origin"), careful ? "64 -32 8" : "0 0 0");
    SetPair(light, "origin", "nowhere");
    EXPECT_EQ(test::Bounds(*light.at(0)), careful ? "56..72 -40..-24 0..16" : "-8..8 -8..8 -8..8");
  }
}

TEST_F(EntityOpsTest, AnotherClassKeepsTheOriginOnlyWithCare) {
  for (const bool careful : {false, true}) {
    settings.careful_tools = careful;
    entity& light = addPoint("light", {64, 0, 0});
    light.at(0)->select();
    SetPair(light, "classname", "info_player_start");
    EXPECT_EQ(light.valueOfKey("origin"), careful ? "64 0 0" : "72 8 16");
    EXPECT_EQ(test::Bounds(*light.at(0)), careful ? "48..80 -16..16 -24..32" : "56..72 -8..8 -8..8");
    SetPair(light, "classname", "not_a_class");
    EXPECT_EQ(light.valueOfKey("origin"), careful ? "64 0 0" : "56 -8 -8");
    EXPECT_TRUE(light.at(0)->selected());
  }
}

TEST_F(EntityOpsTest, NoSeedStaysBehindInAHiddenGroup) {
  settings.groupmode = true;
  m.groups.setVisible(0, false);
  ASSERT_EQ(MakeEntity(m, "light").outcome, EntityMaking::Made);
  EXPECT_EQ(summary(), "worldspawn  light *");
}

}  // namespace
}  // namespace velk
