#include "ops/clipboard.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

struct ClipboardTest : test::MapTest {
  map clipboard{settings, classes};

  entity& pointer(const char* targetname, const char* target) {
    entity& e = addPoint("light", {0, 0, 0});
    if (*targetname) e.setKey("targetname", targetname);
    if (*target) e.setKey("target", target);
    e.at(0)->select(true);
    return e;
  }
  // The targetname and target of an entity.
  static std::string names(const entity& e) {
    return e.valueOfKey("targetname") + '>' + e.valueOfKey("target");
  }
};

TEST_F(ClipboardTest, CopiesDropTargetsThatStayBehind) {
  cube(0).select(true);
  cube(1);
  entity& lonely = pointer("", "gate");
  pointer("", "T5");
  pointer("t5", "");
  addPoint("light", {9, 9, 9}).setKey("targetname", "gate");
  CopySelection(m, clipboard);
  ASSERT_EQ(clipboard.numentities(), 4);
  EXPECT_EQ(clipboard.world()->numbrushes(), 1);
  EXPECT_EQ(names(*clipboard.at(1)), ">");
  EXPECT_EQ(names(*clipboard.at(2)), ">T5");
  EXPECT_EQ(names(lonely), ">gate");
  EXPECT_EQ(clipboard.totalSelected(), 4);
}

TEST_F(ClipboardTest, PasteRenumbersPastTheMapAndMovesByTheOffset) {
  settings.gridsize = 16;
  cube(0).select(true);
  pointer("t1", "t2");
  pointer("t2", "");
  CopySelection(m, clipboard);
  addPoint("light", {64, 0, 0}).setKey("targetname", "t7");
  PasteClipboard(m, clipboard, 3, PasteOffset(settings));
  EXPECT_EQ(summary(), "worldspawn -* light - light - light - light * light *");
  EXPECT_EQ(names(*m.at(4)), "t9>t10");
  EXPECT_EQ(names(*m.at(5)), "t10>");
  EXPECT_TRUE(VecEqual(world().at(1)->mins, {16, 16, 0}));
  EXPECT_EQ(world().at(1)->group(), 3);
  EXPECT_TRUE(m.worldIsCurrent());

  m.at(5)->setKey("targetname", "t2147483647");
  PasteClipboard(m, clipboard, 0, {});
  EXPECT_EQ(m.at(6)->valueOfKey("targetname"), "t2147483649");
}

TEST_F(ClipboardTest, CloneTakesEntitiesWholeAndTheSelectionAlong) {
  settings.cloneDeltaX = 5;
  entity& door = addEntity("func_door");
  boxIn(door, {0, 0, 0}, {8, 8, 8}).select(true);
  boxIn(door, {8, 0, 0}, {16, 8, 8});
  CloneSelection(m, PasteOffset(settings));
  EXPECT_EQ(summary(), "worldspawn  func_door -- func_door **");
  EXPECT_EQ(m.currentEntity(), m.at(2));
  EXPECT_TRUE(VecEqual(m.at(2)->at(1)->mins, {13, 8, 0}));
  cube(0).select(true);
  CloneSelection(m, PasteOffset(settings));
  EXPECT_TRUE(m.worldIsCurrent());
}

}  // namespace
}  // namespace velk
