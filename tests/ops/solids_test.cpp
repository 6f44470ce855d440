// Hollow, merge, align and flatten.
#include "ops/align.h"
#include "ops/flatten.h"
#include "ops/solids/hollow.h"
#include "ops/solids/merge.h"
#include "ops/solids/solid.h"
#include "support/builders.h"

namespace velk {
namespace {

struct SolidsTest : test::MapTest {
  double volume() {
    double sum = 0;
    for (const brush& b : world().brushes()) sum += Volume(b);
    return sum;
  }
};

TEST_F(SolidsTest, HollowLeavesWallsOfTheThickness) {
  selectedBox({0, 0, 0}, {64, 64, 64}).addFace(test::Face({0, 0, 32}, {64, 0, 32}, {64, 32, 0}));
  const double before = volume();
  selectedBox({100, 0, 0}, {116, 64, 64});
  EXPECT_EQ(HollowSelection(m, 8).status, "Hollowed 1 brushes... 1 too thin");
  EXPECT_EQ(summary(), "worldspawn ********");
  EXPECT_EQ(world().at(1)->maxs.x, 116) << "too thin";
  EXPECT_EQ(volume() - 16 * 64 * 64, before - (48 * 48 * 48 - 28 * 28 / 2 * 48));
}

TEST_F(SolidsTest, MergesWhatIsConvexTogether) {
  const struct {
    std::vector<vec3> mins, maxs;
    int left;
  } cases[] = {
      {{{0, 0, 0}, {32, 0, 0}}, {{32, 64, 64}, {64, 64, 64}}, 1},
      {{{0, 0, 0}, {16, 0, 0}}, {{32, 64, 64}, {64, 64, 64}}, 1},                            // overlapping
      {{{0, 0, 0}, {33, 0, 0}}, {{32, 64, 64}, {64, 64, 64}}, 2},                            // a gap of 1
      {{{0, 0, 0}, {32, 0, 0}}, {{32, 64, 64}, {64, 63, 64}}, 2},                            // a step
      {{{0, 0, 0}, {32, 0, 0}, {64, 0, 0}}, {{32, 64, 64}, {64, 64, 64}, {96, 32, 64}}, 2},  // two of three
      {{{0, 0, 0}, {0, 48, 0}, {48, 16, 0}, {16, 0, 0}, {16, 16, 0}},                        // a pinwheel
       {{16, 48, 8}, {48, 64, 8}, {64, 64, 8}, {64, 16, 8}, {48, 48, 8}},
       1},
  };
  for (const auto& c : cases) {
    world().destroyBrushes();
    for (size_t i = 0; i < c.mins.size(); ++i) selectedBox(c.mins[i], c.maxs[i]);
    MergeSelection(m);
    EXPECT_EQ(world().numbrushes(), c.left) << c.mins.size();
  }
  EXPECT_EQ(MergeSelection(m).status, "Nothing to merge...");
  EXPECT_EQ(volume(), 64.0 * 64 * 8);
}

TEST_F(SolidsTest, AlignsToASideOrTheMiddle) {
  const vec3 mins[] = {{0, 100, 8},  {84, 100, 8},  {50, 0, 8},  {50, 100, 8},
                       {50, 100, 0}, {50, 100, 48}, {42, 50, 24}};
  for (int to = 0; to < 7; ++to) {
    world().destroyBrushes();
    selectedBox({0, 0, 0}, {100, 64, 64});
    brush& b = selectedBox({50, 100, 8}, {66, 132, 24});
    AlignSelection(m, static_cast<Alignment>(to));
    EXPECT_TRUE(VecEqual(b.mins, mins[to])) << kAligned[to];
  }
}

TEST_F(SolidsTest, FlattensAndNamesWhatWouldBreak) {
  selectedBox({0.3f, 0, 0}, {64.6f, 64, 64});
  selectedBox({0.1f, 0, 0}, {0.4f, 64, 64});
  EXPECT_EQ(FlattenSelection(m).status, "Flattened faces of 1 brushes... would break: [e0/b1]");
  EXPECT_TRUE(world().at(0)->mins.x == 0 && world().at(0)->maxs.x == 65);
  EXPECT_EQ(world().at(1)->maxs.x, 0.4f);
  EXPECT_EQ(summary(), "worldspawn -*");
}

}  // namespace
}  // namespace velk
