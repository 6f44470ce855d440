#include "model/history.h"

#include <functional>

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

typedef test::MapTest HistoryTest;

constexpr vec3 kStep{16, 0, 0};
constexpr History::Limits kClassic{1, 0};
constexpr History::Limits kThree{3, 0};

TEST_F(HistoryTest, OneSelectedBrushComesBackAlone) {
  brush& moved = cube(0);
  moved.select(true);
  brush& other = cube(1);
  History history;
  history.keep(History::copyOf(m, UndoMode::Selection), "Rotate Brush", kClassic);
  moved.translate(kStep);
  other.translate(kStep);
  EXPECT_EQ(history.undoName(), "Rotate Brush");
  ASSERT_TRUE(history.undo(m, kClassic));
  EXPECT_EQ(world().at(0)->mins.x, 0);
  EXPECT_EQ(world().at(1)->mins.x, 48);
  EXPECT_TRUE(world().at(0)->selected());
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
}

TEST_F(HistoryTest, AOneBrushCopyOutlivesItsBrushAndItsEntity) {
  cube(0);
  entity& door = addEntity("func_door");
  brush& part = boxIn(door, {0, 0, 0}, {8, 8, 8});
  boxIn(door, {8, 0, 0}, {16, 8, 8});
  part.select(true);
  m.setCurrentEntity(&door);
  History history;
  history.keep(History::copyOf(m, UndoMode::Selection), "", kClassic);
  DestroyBrush(part);
  ASSERT_TRUE(history.undo(m, kClassic));
  EXPECT_EQ(door.numbrushes(), 2);

  history.keep(History::copyOf(m, UndoMode::Selection), "", kClassic);
  door.setKey("speed", "9");
  while (m.numentities() > 1) DestroyBrush(*m.at(1)->at(0));
  ASSERT_TRUE(history.undo(m, kClassic));
  ASSERT_EQ(m.numentities(), 2);
  EXPECT_EQ(m.at(1)->numbrushes(), 1);
  EXPECT_EQ(m.at(1)->valueOfKey("classname"), "func_door");
  EXPECT_EQ(m.at(1)->valueOfKey("speed"), "");
}

TEST_F(HistoryTest, TheClassicLevelKeepsOnlyTheLastCopyOfAnyKind) {
  cube(0);
  History history;
  history.keep(History::copyOf(m, UndoMode::All), "first", kClassic);
  m.groups.rename(0, "before");
  history.keep(History::copyOf(m, UndoMode::Groups), "Rename Group", kClassic);
  m.groups.rename(0, "after");
  cube(1);
  ASSERT_TRUE(history.undo(m, kClassic));
  EXPECT_EQ(m.groups.at(0).name, "before");
  EXPECT_EQ(world().numbrushes(), 2);
  EXPECT_FALSE(history.undo(m, kClassic));
}

TEST_F(HistoryTest, LevelsGoBackAndForth) {
  History history;
  for (int i = 0; i < 5; ++i) {
    MapSnapshot before = TakeSnapshot(m);
    cube(i);
    history.changed(std::move(before), std::to_string(i), kThree);
  }
  EXPECT_EQ(history.undoCount(), 3);
  int undone = 0;
  while (history.undo(m, kThree)) ++undone;
  EXPECT_EQ(undone, 3);
  EXPECT_EQ(world().numbrushes(), 2);
  EXPECT_EQ(history.redoName(), "2");
  ASSERT_TRUE(history.redo(m));
  EXPECT_EQ(world().numbrushes(), 3);
  EXPECT_EQ(world().at(2)->mins.x, 64);
  history.changed(TakeSnapshot(m), "new", kThree);
  EXPECT_FALSE(history.canRedo());

  // Fewer levels from now on: nothing done under the classic rules is to be lost by an older redo.
  ASSERT_TRUE(history.undo(m, kThree));
  history.limit(kClassic);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canRedo());
}

TEST_F(HistoryTest, MegabytesDropTheOldestButNotTheNewest) {
  for (int i = 0; i < 3000; ++i) cube(i % 100);
  History history;
  const auto moveAll = [&](const History::Limits& limits) {
    MapSnapshot before = TakeSnapshot(m);
    for (brush& b : world().brushes()) b.translate(kStep);
    history.changed(std::move(before), "move", limits);
  };
  moveAll({100, 0});
  while (history.undoCount() < 6) moveAll({100, 1000});
  const size_t level = history.bytes() / 5;
  EXPECT_GT(level, 3000 * 6 * 9 * sizeof(float)) << "every brush's points";
  EXPECT_LT(level, 3000 * 700);
  moveAll({100, 4});
  EXPECT_EQ(history.undoCount(), 1 + int((size_t(4) << 20) / level));
  const int levels = history.undoCount();
  while (history.undo(m, {100, 4})) {
  }
  EXPECT_EQ(history.redoCount(), levels);
  EXPECT_EQ(world().at(0)->mins.x, float(16 * (7 - levels)));
}

TEST_F(HistoryTest, ARepeatJoinsTheLastLevelUntilSomethingComesBetween) {
  History history;
  const auto change = [&] { history.changed(TakeSnapshot(m), "nudge", kThree); };
  EXPECT_FALSE(history.canExtend("nudge"));
  const std::function<void()> between[] = {
      [&] { history.undo(m, kThree); },
      [&] {
        history.undo(m, kThree);
        history.redo(m);
      },
      [&] { history.keep(History::copyOf(m, UndoMode::All), "nudge", kThree); },
      [&] { history.close(); },
  };
  for (const auto& happens : between) {
    change();
    EXPECT_TRUE(history.canExtend("nudge"));
    EXPECT_FALSE(history.canExtend("rotate"));
    happens();
    EXPECT_FALSE(history.canExtend("nudge"));
  }
}

TEST_F(HistoryTest, SnapshotsShareAndRestoreKeepsWhatDidNotChange) {
  for (int i = 0; i < 70; ++i) cube(i);
  addPoint("light", {0, 0, 64});
  const entity* door = &addEntity("func_door");
  const MapSnapshot before = TakeSnapshot(m);
  EXPECT_EQ(TakeSnapshot(m).entities, before.entities);
  const brush* kept = world().at(0);
  world().at(3)->translate(kStep);
  world().at(2)->setGroup(1);
  world().at(1)->select(true);
  m.at(1)->setKey("light", "200");
  const MapSnapshot after = TakeSnapshot(m);
  EXPECT_FALSE(SameContents(before, after));
  const auto page = [](const MapSnapshot& of, size_t index) { return of.entities[0]->pages[index]; };
  EXPECT_EQ((*page(after, 0))[0].shape, (*page(before, 0))[0].shape);
  EXPECT_NE((*page(after, 0))[3].shape, (*page(before, 0))[3].shape);
  EXPECT_EQ(page(after, 1), page(before, 1));
  EXPECT_EQ(after.entities[1]->pages, before.entities[1]->pages);
  EXPECT_EQ(after.entities[2], before.entities[2]);

  RestoreSnapshot(m, before, false);
  EXPECT_EQ(world().at(0), kept);
  EXPECT_EQ(m.at(2), door);
  EXPECT_EQ(world().at(3)->mins.x, 96);
  EXPECT_EQ(world().at(2)->group(), 0);
  EXPECT_EQ(summary(), "worldspawn " + std::string(70, '-') + " light - func_door ");
  EXPECT_EQ(m.at(1)->valueOfKey("light"), "");
  EXPECT_FALSE(m.at(1)->isModel);
  EXPECT_EQ(TakeSnapshot(m).entities, before.entities);
}

// What a snapshot must see, by what it makes of it.
TEST_F(HistoryTest, EveryChangeIsMarkedAndOnlyContentsMakeALevel) {
  cube(0);
  entity& door = addEntity("func_door");
  boxIn(door, {0, 0, 0}, {8, 8, 8});
  boxIn(door, {8, 0, 0}, {16, 8, 8});
  enum Kind { kNothing, kState, kContents };
  const struct {
    const char* what;
    std::function<void(brush&)> change;
    Kind kind;
  } cases[] = {
      {"group as it is", [](brush& b) { b.setGroup(b.group()); }, kNothing},
      {"value as it is", [&](brush&) { door.setKey("classname", "func_door"); }, kNothing},
      {"rebuilt", [](brush& b) { b.buildWindings(); }, kNothing},
      {"selection", [](brush& b) { b.select(); }, kState},
      {"current face", [](brush& b) { b.setCurrentFace(3); }, kState},
      {"moved by nothing", [](brush& b) { b.translate({}); }, kState},
      {"group", [](brush& b) { b.setGroup(2); }, kContents},
      {"colour",
       [](brush& b) {
         b.setColor({1, 0, 0});
       },
       kContents},
      {"texture", [](brush& b) { b.setTexturedef(test::Texture("gate"), 3); }, kContents},
      {"turned", [](brush& b) { b.reverseFaces(); }, kContents},
      {"pair", [&](brush&) { door.setKey("speed", "5"); }, kContents},
      {"no pair", [&](brush&) { door.removeKeyPair("speed"); }, kContents},
      {"model no more", [&](brush&) { door.isModel = !door.isModel; }, kContents},
      {"model again", [&](brush&) { door.isModel = !door.isModel; }, kContents},
      {"another's", [&](brush&) { MoveToEntity(*door.at(1), world()); }, kContents},
      {"replaced", [&](brush&) { world().replaceAt(0, std::make_unique<brush>(*world().at(1))); }, kContents},
      {"gone", [&](brush& b) { DestroyBrush(b); }, kContents},
  };
  for (const auto& c : cases) {
    const MapSnapshot before = TakeSnapshot(m);
    c.change(*door.at(0));
    const MapSnapshot after = TakeSnapshot(m);
    EXPECT_EQ(after.entities == before.entities, c.kind == kNothing) << c.what;
    EXPECT_EQ(SameContents(before, after), c.kind != kContents) << c.what;
  }
}

TEST_F(HistoryTest, AWorkingCopyIsOfTheCameraViewsBrush) {
  brush& worked = cube(0);
  cube(1).select();
  History history;
  history.keep(History::copyOf(m, UndoMode::Working, &worked), "Shift Texture", kClassic);
  for (brush& b : world().brushes()) b.translate(kStep);
  ASSERT_TRUE(history.undo(m, kClassic));
  EXPECT_EQ(world().at(0)->mins.x, 0);
  EXPECT_EQ(world().at(1)->mins.x, 48);
}

TEST_F(HistoryTest, AMapSavedSinceTheCopyIsModifiedAfterUndo) {
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
