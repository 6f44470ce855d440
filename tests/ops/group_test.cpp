#include "model/groups.h"
#include "ops/group_ops.h"
#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

TEST(GroupListTest, FindsByExactNameAndCutsNames) {
  GroupList groups;
  EXPECT_EQ(groups.find("None"), 0);
  EXPECT_EQ(groups.add("Walls"), 1);
  EXPECT_EQ(groups.find("Walls"), 1);
  EXPECT_EQ(groups.find("walls"), -1);
  groups.rename(1, std::string(70, 'n'));
  EXPECT_EQ(groups.at(1).name, std::string(63, 'n'));
}

TEST(GroupListTest, HoldsAtMost256AndPassesNegativeNumbersOnly) {
  GroupList groups;
  groups.setVisible(groups.add("hidden"), false);
  const bool expected[] = {true, true, false, false};
  for (int n = -1; n <= 2; ++n) EXPECT_EQ(groups.passes(n), expected[n + 1]) << n;
  while (groups.count() < GroupList::kMaxGroups) groups.add("g");
  EXPECT_FATAL(groups.add("one more"), "Group:  Too many groups 256");
}

struct GroupOpsTest : test::MapTest {
  GroupOpsTest() {
    for (const char* name : {"a", "b", "c"}) m.groups.add(name);
    for (int i = 0; i < 4; ++i) cube(i).setGroup(i);
  }
  std::string numbers() {
    std::string text;
    for (const brush& b : world().brushes()) text += std::to_string(b.group());
    return text;
  }
};

TEST_F(GroupOpsTest, DeletingMovesTheLastGroupIntoTheFreedSlot) {
  DeleteGroup(m, 1);
  EXPECT_EQ(numbers(), "0021");
  EXPECT_EQ(m.groups.at(1).name, "c");
  DeleteGroup(m, 2);
  EXPECT_EQ(numbers(), "0001");
  DeleteGroup(m, 7);
  EXPECT_EQ(m.groups.count(), 2);
}

TEST_F(GroupOpsTest, OperationsOnBrushes) {
  ReassignGroup(m, 3, 1);
  ReassignGroup(m, 2, 9);
  EXPECT_EQ(numbers(), "0121") << "there is no group 9";
  CountGroupBrushes(m);
  EXPECT_EQ(m.groups.at(1).brushCount, 2);
  EXPECT_EQ(m.groups.at(3).brushCount, 0);
  SelectAllInGroup(m, 1);
  EXPECT_EQ(summary(), "worldspawn -*-*");
  m.assignGroupOfSelected(9);
  EXPECT_EQ(numbers(), "0121");
  m.assignGroupOfSelected(3);
  EXPECT_EQ(numbers(), "0323");
  ClearGroups(m);
  EXPECT_EQ(numbers(), "0000");
  EXPECT_EQ(m.groups.count(), 1);
}

}  // namespace
}  // namespace velk
