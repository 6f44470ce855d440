#include "model/group_ops.h"
#include "model/groups.h"
#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

TEST(GroupListTest, StartsWithNoneAndFindsByExactName) {
  GroupList groups;
  EXPECT_EQ(groups.count(), 1);
  EXPECT_EQ(groups.at(0).name, "None");
  EXPECT_EQ(groups.colour(0), (Colour{255, 255, 255}));
  EXPECT_EQ(groups.add("Walls"), 1);
  EXPECT_EQ(groups.colour(1), (Colour{0, 0, 0}));
  EXPECT_TRUE(groups.visible(1));
  EXPECT_EQ(groups.find("Walls"), 1);
  EXPECT_EQ(groups.find("walls"), -1);
  groups.rename(1, std::string(70, 'n'));
  EXPECT_EQ(groups.at(1).name, std::string(63, 'n'));
}

TEST(GroupListTest, HoldsAtMost256) {
  GroupList groups;
  while (groups.count() < GroupList::kMaxGroups) groups.add("g");
  EXPECT_FATAL(groups.add("one more"), "Group:  Too many groups 256");
}

TEST(GroupListTest, IndicesOutsideDoNothing) {
  GroupList groups;
  for (const int index : {-1, 1, 256}) {
    groups.remove(index);
    groups.rename(index, "x");
    groups.setVisible(index, true);
    groups.setColour(index, {1, 2, 3});
    EXPECT_FALSE(groups.visible(index));
    EXPECT_EQ(groups.colour(index), (Colour{255, 255, 255}));
  }
  groups.remove(0);
  EXPECT_EQ(groups.count(), 1) << "the only group stays";
}

TEST(GroupListTest, TheFilterPassesNegativeNumbersAndStopsThoseBeyond) {
  GroupList groups;
  groups.add("hidden");
  groups.setVisible(1, false);
  const bool expected[] = {true, true, false, false};
  for (int number = -1; number <= 2; ++number)
    EXPECT_EQ(groups.passes(number), expected[number + 1]) << number;
}

struct GroupedMap : TestMap {
  GroupedMap() {
    for (const char* name : {"a", "b", "c"}) m.groups.add(name);
    for (int i = 0; i < 4; ++i) cube(i).group = i;
  }
  std::string numbers() {
    std::string text;
    for (const brush& b : world().brushes()) text += std::to_string(b.group);
    return text;
  }
};

TEST(GroupOpsTest, DeletingMovesTheLastGroupIntoTheFreedSlot) {
  GroupedMap t;
  DeleteGroup(t.m, 1);
  EXPECT_EQ(t.numbers(), "0021");
  EXPECT_EQ(t.m.groups.at(1).name, "c");
  DeleteGroup(t.m, 2);
  EXPECT_EQ(t.numbers(), "0001");
  DeleteGroup(t.m, 7);
  EXPECT_EQ(t.m.groups.count(), 2);
}

TEST(GroupOpsTest, OperationsOnBrushes) {
  GroupedMap t;
  ReassignGroup(t.m, 3, 1);
  EXPECT_EQ(t.numbers(), "0121");
  ReassignGroup(t.m, 2, 9);
  EXPECT_EQ(t.numbers(), "0121");
  CountGroupBrushes(t.m);
  EXPECT_EQ(t.m.groups.at(1).brushCount, 2);
  EXPECT_EQ(t.m.groups.at(3).brushCount, 0);
  SelectAllInGroup(t.m, 1);
  EXPECT_EQ(t.m.totalSelected(), 2);
  t.m.assignGroupOfSelected(9);
  EXPECT_EQ(t.numbers(), "0121");
  t.m.assignGroupOfSelected(3);
  EXPECT_EQ(t.numbers(), "0323");
  ClearGroups(t.m);
  EXPECT_EQ(t.numbers(), "0000");
  EXPECT_EQ(t.m.groups.count(), 1);
}

}  // namespace
}  // namespace velk
