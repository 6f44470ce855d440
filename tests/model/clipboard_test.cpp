#include "model/clipboard.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

using test::TestMap;

struct ClipboardTest : testing::Test {
  TestMap t;
  map clipboard{t.settings, t.classes};

  entity& pointer(const char* targetname, const char* target) {
    entity& e = t.addPoint("light", {0, 0, 0});
    if (*targetname) e.setKey("targetname", targetname);
    if (*target) e.setKey("target", target);
    e.at(0)->selected = true;
    return e;
  }
};

TEST_F(ClipboardTest, CopiesDropTargetsThatStayBehind) {
  t.cube(0).selected = true;
  t.cube(1);
  entity& lonely = pointer("", "gate");
  pointer("", "T5");
  pointer("t5", "");
  t.addPoint("light", {9, 9, 9}).setKey("targetname", "gate");
  CopySelection(t.m, clipboard);
  ASSERT_EQ(clipboard.numentities(), 4);
  EXPECT_EQ(clipboard.world()->numbrushes(), 1);
  EXPECT_EQ(clipboard.at(1)->valueOfKey("target"), "");
  EXPECT_EQ(clipboard.at(2)->valueOfKey("target"), "T5");
  EXPECT_EQ(lonely.valueOfKey("target"), "gate");
  EXPECT_EQ(clipboard.totalSelected(), 4);
}

TEST_F(ClipboardTest, PasteRenumbersPastTheMapAndMovesByTheOffset) {
  t.settings.gridsize = 16;
  t.cube(0).selected = true;
  pointer("t1", "t2");
  pointer("t2", "");
  CopySelection(t.m, clipboard);
  t.addPoint("light", {64, 0, 0}).setKey("targetname", "t7");
  PasteClipboard(t.m, clipboard, 3, PasteOffset(t.settings));
  ASSERT_EQ(t.m.numentities(), 6);
  EXPECT_EQ(t.m.at(4)->valueOfKey("targetname"), "t9");
  EXPECT_EQ(t.m.at(4)->valueOfKey("target"), "t10");
  EXPECT_EQ(t.m.at(5)->valueOfKey("targetname"), "t10");
  const brush& pasted = *t.world().at(1);
  EXPECT_TRUE(VecEqual(pasted.mins, {16, 16, 0}));
  EXPECT_TRUE(pasted.selected);
  EXPECT_EQ(pasted.group, 3);
  EXPECT_FALSE(t.world().at(0)->selected);
  EXPECT_EQ(t.m.totalSelected(), 3);
  EXPECT_TRUE(t.m.worldIsCurrent());

  t.m.at(5)->setKey("targetname", "t2147483647");
  PasteClipboard(t.m, clipboard, 0, {});
  EXPECT_EQ(t.m.at(6)->valueOfKey("targetname"), "t2147483649");
}

TEST_F(ClipboardTest, CloneTakesEntitiesWholeAndTheSelectionAlong) {
  t.settings.cloneDeltaX = 5;
  entity& door = t.addEntity("func_door");
  t.boxIn(door, {0, 0, 0}, {8, 8, 8}).selected = true;
  t.boxIn(door, {8, 0, 0}, {16, 8, 8});
  CloneSelection(t.m, PasteOffset(t.settings));
  ASSERT_EQ(t.m.numentities(), 3);
  EXPECT_EQ(t.m.currentEntity(), t.m.at(2));
  EXPECT_EQ(t.m.at(2)->numbrushes(), 2);
  EXPECT_TRUE(VecEqual(t.m.at(2)->at(1)->mins, {13, 8, 0}));
  EXPECT_EQ(t.m.selectedCount(), 2);
  t.cube(0).selected = true;
  CloneSelection(t.m, PasteOffset(t.settings));
  EXPECT_TRUE(t.m.worldIsCurrent());
}

}  // namespace
}  // namespace velk
