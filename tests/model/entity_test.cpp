#include "model/entity.h"

#include <vector>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

typedef test::MapTest PairTest, BrushListTest, MoveToEntityTest, TargetNameTest, ClassTest;

std::string Keys(const entity& e) {
  std::string keys;
  for (const KeyPair& pair : e.pairs()) keys += pair.key + " ";
  return keys;
}

TEST_F(PairTest, LimitsAndBlanks) {
  entity& e = addEntity("func_door");
  const struct {
    std::string key, value, stored, message;
  } cases[] = {
      {"  origin", "1 2 3", "origin", ""},
      {"\t\x01speed", "100", "speed", ""},
      {std::string(63, 'k'), std::string(127, 'v'), std::string(63, 'k'), ""},
      {std::string(64, 'k'), "", "", "setKey: " + std::string(64, 'k') + " > MAX_KEY"},
      {"key", std::string(128, 'v'), "", "setKey: " + std::string(128, 'v') + " > MAX_VALUE"},
  };
  for (const auto& c : cases) {
    EXPECT_FATAL(e.setKey(c.key, c.value), c.message);
    EXPECT_EQ(e.valueOfKey(c.stored), c.stored.empty() ? "" : c.value);
  }
  e.setKey(" \n ", "ignored");
  EXPECT_EQ(Keys(e), std::string(63, 'k') + " speed origin classname ");
}

TEST_F(PairTest, NewestFirstAndAChangedPairKeepsItsPlace) {
  entity& e = addEntity("func_door");
  for (const char* angle : {"90", "180"}) {
    e.setKey("angle", angle);
    e.setKey("origin", "0 0 0");
  }
  EXPECT_EQ(Keys(e), "origin angle classname ");
  EXPECT_EQ(e.valueOfKey("angle"), "180");
  EXPECT_EQ(e.valueOfKey("Angle"), "") << "keys differ by case";
  EXPECT_EQ(Keys(*e.copy(m)), Keys(e));
}

TEST_F(PairTest, RemovingWarnsOnlyOfAKeyMissingAmongOthers) {
  entity& e = addEntity("func_door");
  testing::internal::CaptureStdout();
  e.removeKeyPair("target");
  e.removeKeyPair("classname");
  e.removeKeyPair("classname");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "WARNING: removeKeyPair: target not found\n");
}

TEST_F(PairTest, ManyPairsAreFoundChangedAndRemovedAsFewAre) {
  entity& e = world();
  const auto key = [](int i) { return "key" + std::to_string(i); };
  for (int i = 0; i < 200; ++i) e.setKey(key(i), std::to_string(i));
  e.setKey(key(7), "changed");
  e.removeKeyPair(key(3));
  e.setKey(key(3), "back");
  EXPECT_EQ(e.valueOfKey(key(7)), "changed");
  EXPECT_EQ(e.valueOfKey(key(199)), "199");
  EXPECT_EQ(e.valueOfKey("key200"), "");
  EXPECT_EQ((*e.pairs().begin()).key, key(3));
  EXPECT_EQ(std::ranges::distance(e.pairs()), 202);
}

TEST_F(PairTest, VectorsKeepMissingComponentsAtZero) {
  entity& e = addEntity("func_door");
  const struct {
    const char* text;
    vec3 expected;
  } cases[] = {
      {"1 -2.5 3", {1, -2.5f, 3}}, {" +4\t5", {4, 5, 0}},  {"7 x 9", {7, 0, 0}},     {"", {0, 0, 0}},
      {"1e99 2 3", {0, 0, 0}},     {"inf 1 1", {0, 0, 0}}, {"1 -1e39 3", {1, 0, 0}}, {"1e-60 2 3", {0, 2, 3}},
      {"+-5 2 3", {0, 0, 0}}};
  for (const auto& c : cases) {
    e.setKey("origin", c.text);
    EXPECT_TRUE(VecEqual(e.vectorOfKey("origin"), c.expected)) << c.text;
  }
}

TEST_F(BrushListTest, TheLastBrushTakesTheFreedSlot) {
  std::vector<brush*> added;
  for (int i = 0; i < 6; ++i) added.push_back(&cube(i));
  std::unique_ptr<entity> emptied;
  const std::unique_ptr<brush> removed = world().removeObject(added[1], &emptied);
  EXPECT_EQ(removed.get(), added[1]);
  EXPECT_EQ(world().at(1), added[5]);
  EXPECT_EQ(world().at(5), nullptr);
  EXPECT_EQ(world().indexOf(added[4]), 4);
  EXPECT_EQ(world().removeObject(added[1], nullptr), nullptr) << "no longer there";
  EXPECT_EQ(world().indexOf(added[1]), -1);
}

TEST_F(BrushListTest, HoldsAtMost4096) {
  while (world().numbrushes() < MAX_ENTITY_BRUSHES) world().addobject(std::make_unique<brush>());
  EXPECT_FATAL(world().addobject(std::make_unique<brush>(&counters)), "entity->addobject, too many objects");
  EXPECT_EQ(world().numbrushes(), MAX_ENTITY_BRUSHES);
  EXPECT_EQ(counters.brushesDestroyed, 1);

  brush& stays = *addPoint("light", {0, 0, 0}).at(0);
  settings.multi_select = false;
  EXPECT_FATAL(MoveToEntity(stays, world()), "entity->addobject, too many objects");
  EXPECT_EQ(m.at(1)->at(0), &stays) << "still there to be rescued";
}

TEST_F(MoveToEntityTest, TakesTheTargetsColourAndSparesFixedSizeEntities) {
  entity& door = addEntity("func_door");
  brush& b = cube(0);
  MoveToEntity(b, door);
  EXPECT_EQ(b.owner, &door);
  EXPECT_EQ(b.color().z, 0.8f);
  EXPECT_EQ(door.at(0), &b);
  MoveToEntity(b, door);
  EXPECT_EQ(m.indexOf(&door), 1) << "moving its only brush to itself keeps the door";

  brush& box = *addPoint("light", {0, 0, 0}).at(0);
  settings.multi_select = true;
  MoveToEntity(box, door);
  EXPECT_NE(box.owner, &door);
  settings.multi_select = false;
  MoveToEntity(box, door);
  EXPECT_EQ(box.owner, &door);
  EXPECT_EQ(m.numentities(), 2) << "the light is gone";
}

TEST_F(TargetNameTest, CountsOnFromTheLargest) {
  entity& e = addEntity("func_door");
  EXPECT_EQ(e.makeTargetName(), "t1");
  EXPECT_EQ(e.makeTargetName(), "t1") << "it has one now";
  e.removeKeyPair("targetname");
  for (const char* name : {"t3", "t12", "door1", "tx", "t-40"})
    addEntity("func_door").setKey("targetname", name);
  world().setKey("targetname", "t99");
  EXPECT_EQ(e.makeTargetName(), "t13");
}

TEST_F(ClassTest, AFixedSizeClassTakesThePlaceOfTheCurrentBrush) {
  entity start(m);
  start.setClass("info_player_start");
  EXPECT_EQ(start.valueOfKey("origin"), "0 0 0") << "nothing is selected";

  box({0.75f, -0.75f, 0}, {32, 32, 32}).select(true);
  entity placed(m);
  placed.setClass("info_player_start");
  EXPECT_FALSE(placed.isModel);
  EXPECT_EQ(placed.valueOfKey("origin"), "16 15 24");
  ASSERT_EQ(placed.numbrushes(), 1);
  const brush& box = *placed.at(0);
  EXPECT_TRUE(VecEqual(box.mins, {0, -1, 0}));
  EXPECT_TRUE(VecEqual(box.maxs, {32, 31, 56}));
  EXPECT_EQ(box.brushTexture().name, "entity");
  EXPECT_TRUE(VecEqual(box.color(), {1, 0, 0}));

  placed.at(0)->translate({8, 0, 0});
  EXPECT_EQ(placed.valueOfKey("origin"), "24 15 24");
}

TEST(OriginTest, IsWhereTheBoxStandsWhateverThePairSays) {
  const struct {
    const char* size;  // of the class
    vec3 origin;
    vec3 moved;
    const char* expected;
  } cases[] = {
      {"(-8 -8 -8) (8 8 8)", {1, -2, 3}, {}, "1 -2 3"},
      {"(-8 -8 -8) (8 8 8)", {0.6f, -0.6f, 0}, {}, "0 0 0"},
      {"(-8 -8 -8) (8 8 8)", {0, 0, 0}, {10.985f, 0, -16}, "10 0 -16"},
      {"(-8.3 -8.7 -8.004) (8 8 8)", {-116, -2047, 3}, {}, "-116 -2047 3"},
      {"(-8.3 -8.7 -8.004) (8 8 8)", {-116, 3, 4001}, {16, -1, -9}, "-100 2 3992"},
      {"(-8.3 -8.7 -8.004) (8 8 8)", {20000, 0, 0}, {}, "stored"},
  };
  for (const auto& c : cases) {
    TestMap t;
    t.classes.scanText(std::string("/*QUAKED thing (0 0 0) ") + c.size + "\n*/\n");
    entity& e = t.addPoint("thing", c.origin);
    e.setKey("origin", "stored");
    e.at(0)->translate(c.moved);
    EXPECT_EQ(e.valueOfKey("origin"), c.expected);
    EXPECT_EQ((*e.pairs().begin()).value, "stored") << "asking changes nothing";
  }
}

}  // namespace
}  // namespace velk
