#include "model/map.h"

#include <vector>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

TEST(NewMapTest, HasAWorldWithItsWads) {
  TestMap t;
  t.cube(0);
  t.m.groups.add("Walls");
  t.m.initNew("a.wad;b.wad");
  EXPECT_EQ(t.m.numentities(), 1);
  EXPECT_EQ(t.world().valueOfKey("classname"), "worldspawn");
  EXPECT_EQ(t.world().valueOfKey("wad"), "a.wad;b.wad");
  EXPECT_TRUE(t.world().isModel);
  EXPECT_TRUE(t.m.worldIsCurrent());
  EXPECT_EQ(t.m.brushCount(), 0);
  EXPECT_EQ(t.m.groups.count(), 1);
  EXPECT_FALSE(t.m.modified);
}

TEST(EntityListTest, TheWorldStaysAndTheLastTakesAFreedSlot) {
  TestMap t;
  entity& a = t.addEntity("func_door");
  entity& b = t.addEntity("func_door");
  entity& c = t.addEntity("func_door");
  t.m.setCurrentEntity(&a);
  EXPECT_EQ(t.m.removeEntity(t.m.world()), nullptr);
  const std::unique_ptr<entity> removed = t.m.removeEntity(&a);
  EXPECT_EQ(removed.get(), &a);
  EXPECT_TRUE(t.m.worldIsCurrent());
  EXPECT_EQ(t.m.at(1), &c);
  EXPECT_EQ(t.m.indexOf(&b), 2);
  EXPECT_EQ(t.m.at(3), nullptr);
  EXPECT_EQ(t.m.indexOf(&a), -1);
}

TEST(EntityListTest, HoldsAtMost1024) {
  TestMap t;
  while (t.m.numentities() < MAX_ENTITIES) t.addEntity("func_door");
  EXPECT_FATAL(t.addEntity("func_door"), "map->addobject, too many brushes on entity...");
  EXPECT_EQ(t.m.numentities(), MAX_ENTITIES);
}

TEST(NoticeTest, TellsOfAnotherCurrentEntity) {
  TestMap t;
  std::vector<MapNotice> heard;
  entity& door = t.addEntity("func_door");
  t.m.notice = [&](MapNotice what) { heard.push_back(what); };
  t.m.modified = false;
  t.m.setCurrentEntity(&door);
  t.m.setCurrentEntity(&door);
  EXPECT_EQ(heard, std::vector{MapNotice::CurrentEntity});
  EXPECT_TRUE(t.m.modified);
  t.m.setWorkLow({0, 0, 0});
  EXPECT_EQ(heard.back(), MapNotice::WorkRange);
}

TEST(SelectionTest, TheCurrentBrushComesFromTheCurrentEntityFirst) {
  TestMap t;
  entity& a = t.addEntity("func_door");
  entity& b = t.addEntity("func_door");
  brush& inWorld = t.cube(0);
  brush& inA = t.boxIn(a, {0, 0, 0}, {8, 8, 8});
  brush& inB = t.boxIn(b, {0, 0, 0}, {8, 8, 8});
  EXPECT_EQ(t.m.firstSelected(), nullptr);
  inWorld.selected = inA.selected = inB.selected = true;
  EXPECT_EQ(t.m.firstSelected(), &inWorld);
  EXPECT_EQ(t.m.selectedCount(), 1);
  EXPECT_EQ(t.m.totalSelected(), 3);
  inWorld.selected = false;
  EXPECT_EQ(t.m.firstSelected(), &inB) << "from the last entity on";
  t.m.setCurrentEntity(&a);
  EXPECT_EQ(t.m.firstSelected(), &inA);
}

TEST(SelectionTest, CentreIsThatOfTheSelectionOrOfAll) {
  TestMap t;
  EXPECT_TRUE(VecEqual(t.m.selectionCentre(), {0, 0, 0}));
  t.cube(0);
  brush& far = t.cube(4);
  EXPECT_TRUE(VecEqual(t.m.selectionCentre(), {72, 8, 8}));
  far.selected = true;
  EXPECT_TRUE(VecEqual(t.m.selectionCentre(), {136, 8, 8}));
  t.settings.groupmode = true;
  far.selected = false;
  far.group = 5;
  EXPECT_TRUE(VecEqual(t.m.selectionCentre(), {8, 8, 8})) << "group 5 is not there";
}

TEST(WorkRangeTest, IsSnappedAndSkipsAxesOutOfRange) {
  TestMap t;
  EXPECT_TRUE(VecEqual(t.m.workHigh(), {80, 80, 80}));
  t.m.setWorkLow({-2048, -2047, 12});
  EXPECT_TRUE(VecEqual(t.m.workLow(), {0, -2048, 16}));
  t.m.setWorkHigh({2048, 2047, -12});
  EXPECT_TRUE(VecEqual(t.m.workHigh(), {80, 2048, -16}));
}

TEST(ViewFilterTest, HidesByOwnerAndTexture) {
  const struct {
    bool ViewFilter::*option;
    const char* classname;  // "" for the world
    const char* texture;
    bool hidden;
  } cases[] = {
      {&ViewFilter::omitWorld, "", "wall", true},
      {&ViewFilter::omitWorld, "func_door", "wall", false},
      {&ViewFilter::omitEntities, "func_door", "wall", true},
      {&ViewFilter::omitEntities, "", "wall", false},
      {&ViewFilter::omitLights, "light_torch_small", "wall", true},
      {&ViewFilter::omitLights, "lightning", "wall", true},
      {&ViewFilter::omitLights, "Light", "wall", false},
      {&ViewFilter::omitClip, "", "CLIP", true},
      {&ViewFilter::omitClip, "", "clip2", false},
      {&ViewFilter::omitClip, "func_door", "clip", true},
      {&ViewFilter::omitWater, "", "*water1", true},
      {&ViewFilter::omitWater, "", "water*", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.classname << " " << c.texture);
    TestMap t;
    entity& owner = *c.classname ? t.addEntity(c.classname) : t.world();
    brush& b = t.boxIn(owner, {0, 0, 0}, {8, 8, 8}, c.texture);
    EXPECT_FALSE(t.m.isFiltered(b));
    t.settings.filter.*c.option = true;
    EXPECT_EQ(t.m.isFiltered(b), c.hidden);
    t.m.MAPerform(Method::SetHidden);
    EXPECT_EQ(b.hidden, c.hidden);
  }
}

TEST(HitListTest, ForgetsDestroyedBrushesAndKeepsTheCurrentOne) {
  TestMap t;
  for (int i = 0; i < 12; ++i) {
    t.cube(i).selected = i % 2 == 0;
    t.m.hits.add(*t.world().at(i));
  }
  EXPECT_EQ(t.m.hits.count, 10);
  t.m.hits.current = 4;
  brush* current = t.m.hits.brushes[4];
  DestroyBrush(*t.m.hits.brushes[1]);
  EXPECT_EQ(t.m.hits.count, 9);
  EXPECT_EQ(t.m.hits.brushes[size_t(t.m.hits.current)], current);
  EXPECT_TRUE(t.m.hits.saved[1]) << "that of brush 2";
  EXPECT_FALSE(t.m.hits.saved[2]);
  while (t.m.hits.count > 0) DestroyBrush(*t.m.hits.brushes[0]);
  EXPECT_EQ(t.m.hits.current, -1);
}

TEST(HitListTest, ABrushMayOutliveItsMap) {
  std::unique_ptr<brush> kept;
  {
    TestMap t;
    t.m.hits.add(t.world().addobject(std::make_unique<brush>()));
    kept = RemoveFromEntity(*t.world().at(0));
  }
  EXPECT_EQ(kept->hits, nullptr);
}

}  // namespace
}  // namespace velk
