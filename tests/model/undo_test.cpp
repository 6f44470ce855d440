#include "model/undo.h"

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

typedef test::MapTest UndoTest;

constexpr vec3 kStep{16, 0, 0};

TEST_F(UndoTest, OneSelectedBrushComesBackAlone) {
  brush& moved = cube(0);
  moved.select(true);
  brush& other = cube(1);
  UndoHistory history;
  history.save(m, "Rotate Brush", UndoMode::Selection, 1);
  moved.translate(kStep);
  other.translate(kStep);
  EXPECT_EQ(history.undoName(), "Rotate Brush");
  ASSERT_TRUE(history.undo(m, 1));
  EXPECT_EQ(world().at(0)->mins.x, 0);
  EXPECT_EQ(world().at(1)->mins.x, 48);
  EXPECT_TRUE(world().at(0)->selected());
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
}

TEST_F(UndoTest, AOneBrushCopyOutlivesItsBrushAndItsEntity) {
  cube(0);
  entity& door = addEntity("func_door");
  brush& part = boxIn(door, {0, 0, 0}, {8, 8, 8});
  boxIn(door, {8, 0, 0}, {16, 8, 8});
  part.select(true);
  m.setCurrentEntity(&door);
  UndoHistory history;
  history.save(m, "", UndoMode::Selection, 1);
  DestroyBrush(part);
  ASSERT_TRUE(history.undo(m, 1));
  EXPECT_EQ(door.numbrushes(), 2);

  history.save(m, "", UndoMode::Selection, 1);
  door.setKey("speed", "9");
  while (m.numentities() > 1) DestroyBrush(*m.at(1)->at(0));
  ASSERT_TRUE(history.undo(m, 1));
  ASSERT_EQ(m.numentities(), 2);
  EXPECT_EQ(m.at(1)->numbrushes(), 1);
  EXPECT_EQ(m.at(1)->valueOfKey("classname"), "func_door");
  EXPECT_EQ(m.at(1)->valueOfKey("speed"), "");
}

TEST_F(UndoTest, TheClassicLevelKeepsOnlyTheLastCopyOfAnyKind) {
  cube(0);
  UndoHistory history;
  history.save(m, "first", UndoMode::All, 1);
  m.groups.rename(0, "before");
  history.save(m, "Rename Group", UndoMode::Groups, 1);
  m.groups.rename(0, "after");
  cube(1);
  ASSERT_TRUE(history.undo(m, 1));
  EXPECT_EQ(m.groups.at(0).name, "before");
  EXPECT_EQ(world().numbrushes(), 2);
  EXPECT_FALSE(history.undo(m, 1));
}

TEST_F(UndoTest, LevelsGoBackAndForth) {
  UndoHistory history;
  for (int i = 0; i < 5; ++i) {
    MapSnapshot before = TakeSnapshot(m);
    cube(i);
    history.changed(std::move(before), std::to_string(i), 3);
  }
  EXPECT_EQ(history.undoCount(), 3);
  int undone = 0;
  while (history.undo(m, 3)) ++undone;
  EXPECT_EQ(undone, 3);
  EXPECT_EQ(world().numbrushes(), 2);
  EXPECT_EQ(history.redoName(), "2");
  ASSERT_TRUE(history.redo(m));
  EXPECT_EQ(world().numbrushes(), 3);
  EXPECT_EQ(world().at(2)->mins.x, 64);
  history.changed(TakeSnapshot(m), "new", 3);
  EXPECT_FALSE(history.canRedo());

  // Fewer levels from now on: nothing done under the classic rules is to be lost by an older redo.
  ASSERT_TRUE(history.undo(m, 3));
  history.limit(1);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canRedo());
}

TEST_F(UndoTest, SnapshotsShareAndRestoreKeepsWhatDidNotChange) {
  for (int i = 0; i < 70; ++i) cube(i);
  addPoint("light", {0, 0, 64});
  const MapSnapshot before = TakeSnapshot(m);
  const brush* kept = world().at(0);
  world().at(3)->translate(kStep);
  world().at(2)->setGroup(1);
  world().at(1)->select(true);
  m.at(1)->setKey("light", "200");
  const MapSnapshot after = TakeSnapshot(m, &before);
  EXPECT_FALSE(SameContents(before, after));
  const auto page = [](const MapSnapshot& of, size_t index) { return of.entities[0]->pages[index]; };
  EXPECT_EQ((*page(after, 0))[0].shape, (*page(before, 0))[0].shape);
  EXPECT_NE((*page(after, 0))[3].shape, (*page(before, 0))[3].shape);
  EXPECT_EQ(page(after, 1), page(before, 1));
  EXPECT_EQ(after.entities[1]->pages, before.entities[1]->pages);
  EXPECT_EQ(TakeSnapshot(m, &after).entities, after.entities);

  RestoreSnapshot(m, before, false);
  EXPECT_EQ(world().at(0), kept);
  EXPECT_EQ(world().at(3)->mins.x, 96);
  EXPECT_EQ(world().at(2)->group(), 0);
  EXPECT_EQ(summary(), "worldspawn " + std::string(70, '-') + " light -");
  EXPECT_EQ(m.at(1)->valueOfKey("light"), "");
  EXPECT_FALSE(m.at(1)->isModel);
  EXPECT_TRUE(SameContents(before, TakeSnapshot(m)));
}

TEST_F(UndoTest, AMapSavedSinceTheCopyIsModifiedAfterUndo) {
  const MapSnapshot clean = TakeSnapshot(m);
  cube(0);
  m.modified = true;
  RestoreSnapshot(m, clean, false);
  EXPECT_FALSE(m.modified);
  ++m.saves;
  RestoreSnapshot(m, clean, false);
  EXPECT_TRUE(m.modified);
}

}  // namespace
}  // namespace velk
