#include "model/map.h"

#include <vector>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

typedef test::MapTest EntityListTest, SelectionTest, WorkRangeTest, HitListTest;

TEST_F(EntityListTest, TheWorldStaysAndTheLastTakesAFreedSlot) {
  std::vector<entity*> added;
  for (int i = 0; i < 3; ++i) added.push_back(&addEntity("func_door"));
  m.setCurrentEntity(added[0]);
  EXPECT_EQ(m.removeEntity(m.world()), nullptr);
  const std::unique_ptr<entity> removed = m.removeEntity(added[0]);
  EXPECT_EQ(removed.get(), added[0]);
  EXPECT_TRUE(m.worldIsCurrent());
  EXPECT_EQ(m.at(1), added[2]);
  EXPECT_EQ(m.indexOf(added[1]), 2);
  EXPECT_EQ(m.at(3), nullptr);
  EXPECT_EQ(m.indexOf(added[0]), -1);
}

TEST_F(SelectionTest, TheCurrentBrushComesFromTheCurrentEntityFirst) {
  entity& a = addEntity("func_door");
  EXPECT_EQ(m.firstSelected(), nullptr);
  brush* const brushes[] = {&cube(0), &boxIn(a, {0, 0, 0}, {8, 8, 8}),
                            &boxIn(addEntity("func_door"), {0, 0, 0}, {8, 8, 8})};
  for (brush* b : brushes) b->select(true);
  EXPECT_EQ(m.firstSelected(), brushes[0]);
  EXPECT_EQ(m.selectedCount(), 1);
  EXPECT_EQ(m.totalSelected(), 3);
  brushes[0]->select(false);
  EXPECT_EQ(m.firstSelected(), brushes[2]) << "from the last entity on";
  m.setCurrentEntity(&a);
  EXPECT_EQ(m.firstSelected(), brushes[1]);
}

TEST_F(SelectionTest, CentreIsThatOfTheSelectionOrOfAll) {
  EXPECT_TRUE(VecEqual(m.selectionCentre(), {0, 0, 0}));
  cube(0);
  brush& far = cube(4);
  EXPECT_TRUE(VecEqual(m.selectionCentre(), {72, 8, 8}));
  far.select(true);
  EXPECT_TRUE(VecEqual(m.selectionCentre(), {136, 8, 8}));
  settings.groupmode = true;
  far.select(false);
  far.setGroup(5);
  EXPECT_TRUE(VecEqual(m.selectionCentre(), {8, 8, 8})) << "group 5 is not there";
}

TEST_F(WorkRangeTest, IsSnappedAndSkipsAxesOutOfRange) {
  EXPECT_TRUE(VecEqual(m.workHigh(), {80, 80, 80}));
  m.setWorkLow({-2048, -2047, 12});
  EXPECT_TRUE(VecEqual(m.workLow(), {0, -2048, 16}));
  m.setWorkHigh({2048, 2047, -12});
  EXPECT_TRUE(VecEqual(m.workHigh(), {80, 2048, -16}));
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
    EXPECT_EQ(IsShown(t.m, b), !c.hidden);
  }
}

TEST_F(HitListTest, ForgetsDestroyedBrushesAndKeepsTheCurrentOne) {
  for (int i = 0; i < 12; ++i) {
    cube(i).select(i % 2 == 0);
    m.hits.add(*world().at(i));
  }
  EXPECT_EQ(m.hits.count, 10);
  m.hits.current = 4;
  brush* current = m.hits.brushes[4];
  DestroyBrush(*m.hits.brushes[1]);
  EXPECT_EQ(m.hits.count, 9);
  EXPECT_EQ(m.hits.brushes[size_t(m.hits.current)], current);
  EXPECT_TRUE(m.hits.saved[1]) << "that of brush 2";
  EXPECT_FALSE(m.hits.saved[2]);
  DestroyBrush(*current);
  EXPECT_EQ(m.hits.current, 3) << "the next one takes its place";
  while (m.hits.count > 0) DestroyBrush(*m.hits.brushes[0]);
  EXPECT_EQ(m.hits.current, -1);
}

TEST_F(HitListTest, ABrushMayOutliveItsMap) {
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
