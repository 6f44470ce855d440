#include "makers/stairs.h"

#include <climits>

#include <gtest/gtest.h>

#include "makers/made_text.h"
#include "support/builders.h"

namespace velk {
namespace {

using test::BoundsOf;

const Seed kSeed{2, {0, 0, 0}, {64, 256, 96}, test::Texture("step")};

TEST(Stairs, FirstAndLastStep) {
  const struct {
    StairParams params;
    const char* first;
    const char* last;
  } cases[] = {
      {{}, "0 0 0 .. 64 64 8", "0 192 88 .. 64 256 96"},
      {{.down = true}, "0 0 88 .. 64 64 96", "0 192 0 .. 64 256 8"},
      {{.gap = 99}, "0 0 0 .. 64 64 1", "0 192 88 .. 64 256 89"},
      {{.onX = true}, "0 0 0 .. 53 256 8", "11 0 88 .. 64 256 96"},
      {{.width = -3}, "0 0 0 .. 64 1 8", "0 255 88 .. 64 256 96"},
      {{.type = StairType::Block}, "0 0 0 .. 64 256 8", "0 192 88 .. 64 256 96"},
      {{.type = StairType::Block, .down = true}, "0 0 88 .. 64 64 96", "0 0 0 .. 64 256 8"},
      {{.type = StairType::Spiral}, "0 148 0 .. 64 160 8", "-12 110 88 .. 31 172 96"},
  };
  for (const auto& c : cases) {
    const Made made = MakeStairs(kSeed, c.params, {});
    ASSERT_EQ(made.brushes.size(), 12u);
    EXPECT_EQ(BoundsOf(*made.brushes.front()) + ", " + BoundsOf(*made.brushes.back()),
              std::string(c.first) + ", " + c.last);
    EXPECT_EQ(made.brushes[5]->group(), 2);
    EXPECT_EQ(made.brushes[5]->faces()[3].texture.name, "step");
  }
}

TEST(Stairs, LevelsAreExactWhereTheHeightDivides) {
  // 49 * (98 / 49.0) and the like fall short of whole numbers when they are summed up.
  for (int steps = 2; steps < 200; ++steps) {
    const Seed seed{0, {0, 0, -7}, {64, 256, float(steps * 3 - 7)}, {}};
    const StepLevels levels(seed, {.steps = steps});
    for (int i = 0; i < steps; ++i) ASSERT_EQ(levels.bottom(i), i * 3 - 7) << steps;
  }
}

TEST(Stairs, DegenerateStepsStayUnlessCareIsTaken) {
  const Seed flat{0, {0, 0, 0}, {64, 64, 6}, {}};
  const Made kept = MakeStairs(flat, {.steps = 12, .width = 8}, {});
  EXPECT_EQ(kept.brushes.size(), 12u);
  EXPECT_TRUE(kept.brushes[0]->invalid);
  const Made solid = MakeStairs(flat, {.steps = 12, .width = 8}, {.careful = true});
  EXPECT_EQ(solid.brushes.size(), 6u);
  EXPECT_EQ(solid.leftOut, 6);
  for (const StairType type : {StairType::Regular, StairType::Spiral, StairType::Block})
    EXPECT_TRUE(MakeStairs(flat, {.steps = INT_MAX, .type = type}, {}).tooMany) << int(type);
}

TEST(Stairs, AsksAboutStepsThatAreHardToClimb) {
  const struct {
    int steps;
    const char* question;
  } cases[] = {
      {12, ""},
      {4, "Step of  24.0 height can be jumped (< 40),\nbut not stepped (< 20), okay to save?"},
      {1, "Step of  48.0 height cannot be jumped (< 40)\nor stepped (< 20), okay to save anyway?"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(StepHeightQuestion(StepHeight(kSeed, c.steps)).value_or(""), c.question);
  for (const auto& [height, asks] : {std::pair{17.99, false}, {18.0, true}, {39.99, true}, {40.0, true}})
    EXPECT_EQ(StepHeightQuestion(height).has_value(), asks) << height;
  EXPECT_EQ(StairsMade(8.9), "Made selected brush into stairs, step height 8...");
}

}  // namespace
}  // namespace velk
