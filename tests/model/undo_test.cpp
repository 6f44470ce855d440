#include "model/undo.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

using test::TestMap;

constexpr vec3 kStep{16, 0, 0};

TEST(UndoTest, OneSelectedBrushComesBackAlone) {
  TestMap t;
  brush& moved = t.cube(0);
  moved.selected = true;
  brush& other = t.cube(1);
  UndoHistory history;
  history.save(t.m, "Rotate Brush", UndoMode::Selection, 1);
  moved.translate(kStep);
  other.translate(kStep);
  EXPECT_EQ(history.undoName(), "Rotate Brush");
  ASSERT_TRUE(history.undo(t.m, 1));
  EXPECT_EQ(t.world().at(0)->mins.x, 0);
  EXPECT_EQ(t.world().at(1)->mins.x, 48);
  EXPECT_TRUE(t.world().at(0)->selected);
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
}

TEST(UndoTest, AOneBrushCopyOutlivesItsBrushAndItsEntity) {
  TestMap t;
  t.cube(0);
  entity& door = t.addEntity("func_door");
  brush& part = t.boxIn(door, {0, 0, 0}, {8, 8, 8});
  t.boxIn(door, {8, 0, 0}, {16, 8, 8});
  part.selected = true;
  t.m.setCurrentEntity(&door);
  UndoHistory history;
  history.save(t.m, "", UndoMode::Selection, 1);
  DestroyBrush(part);
  ASSERT_TRUE(history.undo(t.m, 1));
  EXPECT_EQ(door.numbrushes(), 2);

  history.save(t.m, "", UndoMode::Selection, 1);
  door.setKey("speed", "9");
  while (t.m.numentities() > 1) DestroyBrush(*t.m.at(1)->at(0));
  ASSERT_TRUE(history.undo(t.m, 1));
  ASSERT_EQ(t.m.numentities(), 2);
  EXPECT_EQ(t.m.at(1)->numbrushes(), 1);
  EXPECT_EQ(t.m.at(1)->valueOfKey("classname"), "func_door");
  EXPECT_EQ(t.m.at(1)->valueOfKey("speed"), "");
}

TEST(UndoTest, TheClassicLevelKeepsOnlyTheLastCopyOfAnyKind) {
  TestMap t;
  t.cube(0);
  UndoHistory history;
  history.save(t.m, "first", UndoMode::All, 1);
  t.m.groups.rename(0, "before");
  history.save(t.m, "Rename Group", UndoMode::Groups, 1);
  t.m.groups.rename(0, "after");
  t.cube(1);
  ASSERT_TRUE(history.undo(t.m, 1));
  EXPECT_EQ(t.m.groups.at(0).name, "before");
  EXPECT_EQ(t.world().numbrushes(), 2);
  EXPECT_FALSE(history.undo(t.m, 1));
}

TEST(UndoTest, LevelsGoBackAndForth) {
  TestMap t;
  UndoHistory history;
  for (int i = 0; i < 5; ++i) {
    MapSnapshot before = TakeSnapshot(t.m);
    t.cube(i);
    history.changed(std::move(before), std::to_string(i), 3);
  }
  EXPECT_EQ(history.undoCount(), 3);
  int undone = 0;
  while (history.undo(t.m, 3)) ++undone;
  EXPECT_EQ(undone, 3);
  EXPECT_EQ(t.world().numbrushes(), 2);
  EXPECT_EQ(history.redoName(), "2");
  ASSERT_TRUE(history.redo(t.m));
  EXPECT_EQ(t.world().numbrushes(), 3);
  EXPECT_EQ(t.world().at(2)->mins.x, 64);
  history.changed(TakeSnapshot(t.m), "new", 3);
  EXPECT_FALSE(history.canRedo());
}

TEST(UndoTest, SnapshotsShareAndRestoreKeepsWhatDidNotChange) {
  TestMap t;
  for (int i = 0; i < 4; ++i) t.cube(i);
  t.addPoint("light", {0, 0, 64});
  const MapSnapshot before = TakeSnapshot(t.m);
  const brush* kept = t.world().at(0);
  t.world().at(3)->translate(kStep);
  t.m.at(1)->setKey("light", "200");
  const MapSnapshot after = TakeSnapshot(t.m, &before);
  EXPECT_FALSE(SameContents(before, after));
  EXPECT_EQ((*after.entities[0].brushes)[0].shape, (*before.entities[0].brushes)[0].shape);
  EXPECT_NE((*after.entities[0].brushes)[3].shape, (*before.entities[0].brushes)[3].shape);
  EXPECT_EQ(after.entities[1].brushes, before.entities[1].brushes);

  RestoreSnapshot(t.m, before, false);
  EXPECT_EQ(t.world().at(0), kept);
  EXPECT_EQ(t.world().at(3)->mins.x, 96);
  EXPECT_EQ(t.m.at(1)->valueOfKey("light"), "");
  EXPECT_FALSE(t.m.at(1)->isModel);
  EXPECT_TRUE(SameContents(before, TakeSnapshot(t.m)));
}

TEST(UndoTest, AMapSavedSinceTheCopyIsModifiedAfterUndo) {
  TestMap t;
  const MapSnapshot clean = TakeSnapshot(t.m);
  t.cube(0);
  t.m.modified = true;
  RestoreSnapshot(t.m, clean, false);
  EXPECT_FALSE(t.m.modified);
  ++t.m.saves;
  RestoreSnapshot(t.m, clean, false);
  EXPECT_TRUE(t.m.modified);
}

}  // namespace
}  // namespace velk
