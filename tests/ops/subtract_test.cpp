#include "ops/subtract.h"

#include "support/builders.h"

namespace velk {
namespace {

// Each brush by its lowest x, '*' for a selected one.
std::string Order(const entity& e) {
  std::string text;
  for (const brush& b : e.brushes()) {
    text += (b.selected() ? "*" : "") + std::to_string(int(b.mins.x)) + " ";
  }
  return text;
}

typedef test::MapTest SubtractTest;

TEST_F(SubtractTest, OrderAndWhatIsNotCut) {
  for (int i = 0; i < 4; ++i) cube(i);
  subtractSelection(m, false);
  EXPECT_EQ(Order(world()), "96 64 32 0 ") << "without careful tools";
  EXPECT_EQ(subtractSelection(m, true).status, "Must have at least one selected brush...");
  EXPECT_EQ(Order(world()), "96 64 32 0 ");

  selectedBox({72, 0, 0}, {200, 16, 16});   // cuts two
  selectedBox({190, 0, 0}, {300, 16, 16});  // overlaps the other subtractor only
  boxIn(addEntity("func_door"), {72, 0, 0}, {80, 16, 16});
  settings.groupmode = true;
  world().at(0)->setGroup(9);
  subtractSelection(m, false);
  EXPECT_EQ(Order(world()), "0 32 64 96 *190 *72 ") << "of a hidden group, one stays whole";
  EXPECT_EQ(world().at(2)->maxs.x, 72);
  settings.groupmode = false;
  subtractSelection(m, false);
  EXPECT_EQ(Order(world()), "64 32 0 *72 *190 ");
  EXPECT_EQ(m.at(1)->numbrushes(), 1) << "of another entity";
}

TEST_F(SubtractTest, AnInvalidSubtractorGoesAndItsEntityWithIt) {
  entity& door = addEntity("func_door");
  boxIn(door, {8, 0, 0}, {8, 0, 0}).select();
  m.setCurrentEntity(&door);
  subtractSelection(m, false);
  EXPECT_EQ(summary(), "worldspawn ");
  EXPECT_TRUE(m.worldIsCurrent());
}

TEST_F(SubtractTest, StoppedItLeavesTheMapAsItWas) {
  for (int i = 0; i < 11; ++i) cube(i);
  selectedBox({8, 8, 8}, {500, 64, 64});
  const std::string before = Order(world());
  std::vector<std::string> heard;
  m.modified = false;
  const Outcome outcome = subtractSelection(m, true, [&](const std::string& text, int top) {
    heard.push_back(text + std::to_string(top));
    return heard.size() < 3;
  });
  EXPECT_EQ(outcome.status, "Subtraction stopped...");
  EXPECT_EQ(heard, (std::vector<std::string>{"[Subtracting 0/1]   2", "Cutting [0/11]     22",
                                             "Cutting [5/11]     22"}));
  EXPECT_EQ(Order(world()), before);
  EXPECT_TRUE(!m.modified && VecEqual(m.workHigh(), {80, 80, 80}));
}

}  // namespace
}  // namespace velk
