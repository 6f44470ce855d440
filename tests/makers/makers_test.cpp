// What every maker makes of a seed: how much, and one of its brushes.
#include <climits>

#include "base/text.h"
#include "makers/arch.h"
#include "makers/box.h"
#include "makers/cylinder.h"
#include "makers/prism.h"
#include "makers/pyramid.h"
#include "makers/revolve.h"
#include "makers/room.h"
#include "makers/sphere.h"
#include "makers/stairs.h"
#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

constexpr MakerRules kByDefault{};
constexpr MakerRules kCareful{.careful = true};

const Seed kHall{3, {0, 0, 0}, {128, 128, 64}, test::Texture("stone")};
const Seed kLow{3, {-56, -60, 3}, {70, 64, 13}, test::Texture("stone")};
const Seed kWell{3, {0, 0, 0}, {64, 256, 96}, test::Texture("stone")};
const Seed kGate{3, {0, 0, 0}, {128, 32, 96}, test::Texture("stone")};
const Seed kOddGate{3, {0, 0, 0}, {129, 32, 96}, test::Texture("stone")};
const Seed kSmallGate{3, {0, 0, 0}, {16, 16, 32}, test::Texture("stone")};
const Seed kSideGate{3, {0, 0, 0}, {32, 128, 96}, test::Texture("stone")};

// "-8 0 0 .. 0 128 64"
std::string BoundsOf(const brush& b) {
  return Format("%g %g %g .. %g %g %g", b.mins.x, b.mins.y, b.mins.z, b.maxs.x, b.maxs.y, b.maxs.z);
}

// "64 0 8, 64 16 8, 80 0 8"
std::string PointsOf(const face& f) {
  const vec3* p = f.planepts;
  return Format("%g %g %g, %g %g %g, %g %g %g", p[0].x, p[0].y, p[0].z, p[1].x, p[1].y, p[1].z, p[2].x,
                p[2].y, p[2].z);
}

struct Expected {
  const char* what;
  Made made;
  size_t count;
  int leftOut;
  size_t brush;  // the one looked at
  int faces;
  const char* bounds;
  int face;
  const char* points;
};

void Expect(const Expected& e) {
  SCOPED_TRACE(e.what);
  ASSERT_EQ(e.made.brushes.size(), e.count);
  EXPECT_EQ(e.made.leftOut, e.leftOut);
  if (e.count == 0) return;
  const brush& b = *e.made.brushes[e.brush];
  EXPECT_EQ(b.numfaces(), e.faces);
  EXPECT_EQ(*e.bounds ? BoundsOf(b) : "", e.bounds);
  const face& f = b.faces()[static_cast<size_t>(e.face)];
  EXPECT_EQ(*e.points ? PointsOf(f) : "", e.points);
  EXPECT_EQ(f.texture.name, "stone");
  EXPECT_EQ(b.group(), 3);
}

TEST(Makers, UprightOnes) {
  const BoxParams small{{1.5, 2, 3}, {0, -7, 64}};
  const BoxParams far{{8000, 0, 0}, {400, 64, 64}};
  const auto at = [](const BoxParams& p, const MakerRules& r) { return MakeBox(p, kHall.texture, 3, r); };
  Expect(
      {"box", at(small, kByDefault), 1, 0, 0, 6, "1.5 2 3 .. 2.5 3 67", 4, "1.5 2 67, 1.5 3 67, 2.5 3 67"});
  Expect({"whole", at(small, kCareful), 1, 0, 0, 6, "2 2 3 .. 3 3 67", 4, "2 2 67, 2 3 67, 3 3 67"});
  Expect({"out of polygons", at(far, kCareful), 0, 1, 0, 0, "", 0, ""});
  EXPECT_EQ(at(far, kByDefault).brushes.size(), 1u);

  const char* walls[] = {"-8 0 0 .. 0 128 64",    "128 0 0 .. 136 128 64", "0 -8 0 .. 128 0 64",
                         "0 128 0 .. 128 136 64", "0 0 64 .. 128 128 72",  "0 0 -8 .. 128 128 0"};
  const Made room = MakeRoom(kHall, 8, kByDefault);
  for (size_t i = 0; i < 6; ++i) EXPECT_EQ(BoundsOf(*room.brushes.at(i)), walls[i]);

  const auto prism = [](PrismParams p) { return MakePrism(kLow, p, {.gridsize = 8}); };
  Expect({"top", prism({4, 10}), 1, 0, 0, 6, "-2 -10 3 .. 18 10 13", 0, "8 0 13, 8 16 13, 24 0 13"});
  Expect({"bottom", prism({40, 10}), 1, 0, 0, 34, "-2 -10 3 .. 18 10 13", 1, "8 0 3, 24 0 3, 8 16 3"});
  Expect({"side", prism({2, 1}), 1, 0, 0, 5, "5 -2 3 .. 11 4 13", 2, "11 -2 13, 8 4 13, 8 4 3"});

  const auto pyramid = [](PyramidParams p) { return MakePyramid(kLow, p, {.gridsize = 64}); };
  Expect({"side", pyramid({3, 64, 100}), 1, 0, 0, 4, "-55 -32 3 .. 55 64 103", 2,
          "55 -32 3, -55 -32 3, 0 0 103"});
  Expect({"base", pyramid({4, 0, 0}), 1, 0, 0, 5, "-4 -4 3 .. 4 4 7", 0, "0 0 3, 16 0 3, 0 16 3"});
}

TEST(Makers, Cylinder) {
  const auto make = [](CylinderParams p, bool careful) { return MakeCylinder(kLow, p, {64, careful}); };
  const char* faces[] = {"0 10 5, 10 0 5, 10 0 0", "20 0 5, 0 20 5, 0 20 0", "0 10 5, 0 20 5, 20 0 5",
                         "20 0 0, 0 20 0, 0 10 0", "0 20 5, 0 10 5, 0 10 0", "10 0 5, 20 0 5, 20 0 0"};
  for (int i = 0; i < 6; ++i)
    Expect({"segment", make({4, 2, 10, 20}, false), 8, 0, 0, 6, "0 0 0 .. 20 20 5", i, faces[i]});
  Expect({"halves", make({12, 1, 33, 65}, false), 12, 0, 1, 6, "17 17 0 .. 56 56 10", 1,
          "56 33 10, 33 56 10, 33 56 0"});
  Expect({"strips", make({4, 3, 10, 20}, true), 12, 0, 4, 6, "0 0 6 .. 20 20 10", 4,
          "0 20 10, 0 10 10, 0 10 6"});
  Expect({"thin", make({4, 13, 10, 20}, true), 40, 12, 36, 6, "0 0 12 .. 20 20 13", 4,
          "0 20 13, 0 10 13, 0 10 12"});
  EXPECT_TRUE(make({4, INT_MAX, 10, 20}, false).tooMany);
}

TEST(Makers, Stairs) {
  const auto make = [](const StairParams& p) { return MakeStairs(kWell, p, kByDefault); };
  const auto block = StairType::Block;
  Expect({"first", make({}), 12, 0, 0, 6, "0 0 0 .. 64 64 8", 4, "0 0 8, 0 64 8, 64 64 8"});
  Expect({"last", make({}), 12, 0, 11, 6, "0 192 88 .. 64 256 96", 4, "0 192 96, 0 256 96, 64 256 96"});
  Expect({"down", make({.down = true}), 12, 0, 1, 6, "0 17 80 .. 64 81 88", 4, "0 17 88, 0 81 88, 64 81 88"});
  Expect({"gap", make({.gap = 99}), 12, 0, 1, 6, "0 17 8 .. 64 81 9", 4, "0 17 9, 0 81 9, 64 81 9"});
  Expect({"on x", make({.onX = true}), 12, 0, 11, 6, "11 0 88 .. 64 256 96", 4,
          "11 0 96, 11 256 96, 64 256 96"});
  Expect({"narrow", make({.width = -3}), 12, 0, 0, 6, "0 0 0 .. 64 1 8", 4, "0 0 8, 0 1 8, 64 1 8"});
  Expect({"block", make({.type = block}), 12, 0, 1, 6, "0 17 8 .. 64 256 16", 4,
          "0 17 16, 0 256 16, 64 256 16"});
  Expect({"block", make({.type = block, .down = true}), 12, 0, 1, 6, "0 0 80 .. 64 81 88", 4,
          "0 0 88, 0 81 88, 64 81 88"});
  Expect({"spiral", make({.type = StairType::Spiral}), 12, 0, 11, 6, "-12 110 88 .. 31 172 96", 0,
          "-12 116 96, -1 110 96, -1 110 88"});
}

TEST(Makers, TurnedOnes) {
  const auto sphere = [](int h, int v, bool careful) {
    return MakeSphere(kGate, {h, v, 100, 200}, {8, careful});
  };
  Expect({"no block", sphere(4, 2, false), 8, 0, 0, 5, "64 -184 -152 .. 264 16 48", 0,
          "64 16 -52, 164 16 48, 64 -84 48"});
  Expect({"blocks", sphere(5, 5, false), 25, 0, 9, 6, "", 0, ""});
  Expect({"poles only", sphere(5, 1, false), 0, 0, 0, 0, "", 0, ""});
  Expect({"hole", sphere(4, 40, false), 152, 0, 0, 5, "", 0, ""});
  Expect({"closed", sphere(4, 40, true), 160, 0, 0, 5, "", 0, ""});

  const auto turn = [](const Profile& profile) {
    return MakeRevolved(kGate, profile, {4, 10, 20}, kByDefault);
  };
  Expect({"tube", turn({{1, -1}, {1, 1}}), 4, 0, 0, 6, "", 3, "74 26 48, 74 6 48, 64 16 48"});
  Expect({"pole last", turn({{1, 0}, {0, 1}}), 4, 0, 0, 5, "", 0, "64 16 38, 64 26 48, 74 16 48"});
  Expect({"upside down", turn({{1, 1}, {1, -1}}), 0, 4, 0, 0, "", 0, ""});
  Expect({"out of the world", turn({{1e300, -1}, {1e300, 1}}), 0, 4, 0, 0, "", 0, ""});
}

TEST(Makers, Arch) {
  const auto make = [](const Seed& seed, const ArchParams& p, bool careful) {
    return MakeArch(seed, p, {8, careful}).value();
  };
  const char* faces[] = {"29 32 47, 26 32 32, 26 0 32", "5 0 56, 0 0 32, 0 32 32",
                         "5 32 56, 0 32 32, 26 32 32",  "29 0 47, 26 0 32, 0 0 32",
                         "5 32 56, 29 32 47, 29 0 47",  "0 0 32, 26 0 32, 26 32 32"};
  for (int i = 0; i < 6; ++i)
    Expect({"first stone", make(kGate, {}, false), 10, 0, 0, 6, "0 0 32 .. 29 32 56", i, faces[i]});
  Expect({"post", make(kGate, {}, false), 10, 0, 9, 6, "102 0 0 .. 128 32 32", 4,
          "102 0 32, 102 32 32, 128 32 32"});
  Expect({"along x", make(kSideGate, {8, 20, true}, false), 10, 0, 0, 6, "0 0 32 .. 32 29 56", 0,
          "32 26 32, 32 29 47, 0 26 32"});

  Expect({"apart", make(kOddGate, {}, false), 10, 0, 7, 6, "101 0 32 .. 130 32 56", 4,
          "130 32 32, 104 32 32, 104 0 32"});
  Expect({"meeting", make(kOddGate, {}, true), 10, 0, 7, 6, "100 0 31 .. 129 32 56", 4,
          "129 32 31, 103 32 31, 103 0 31"});
  Expect({"its post", make(kOddGate, {}, true), 10, 0, 9, 6, "103 0 0 .. 129 32 31", 4,
          "103 0 31, 103 32 31, 129 32 31"});
  Expect({"open end", make(kSmallGate, {24, 30, false}, false), 26, 0, 2, 6, "0 -8192 25 .. 5 16 27", 3,
          "5 0 25, 5 0 25, 0 0 26"});
  Expect({"closed end", make(kSmallGate, {24, 30, false}, true), 26, 0, 2, 6, "0 0 25 .. 5 16 27", 3,
          "5 0 25, 0 0 26, 1 0 27"});
  for (const auto& [height, fits] : {std::pair{64.0f, false}, {65.0f, true}})
    EXPECT_EQ(MakeArch({0, {0, 0, 0}, {128, 32, height}, {}}, {}, kByDefault).has_value(), fits);
}

TEST(Makers, WithCareFatalErrorsOnlyLoseABrush) {
  // Taller than the world, with sides that do not come out as polygons.
  const Seed seed{0, {1060, 1969, -1059}, {1249, 2178, -918}, {}};
  EXPECT_FATAL(MakePyramid(seed, {36, 2, 18026}, kByDefault), "CheckFace: non-convex");
  EXPECT_EQ(MakePyramid(seed, {36, 2, 18026}, kCareful).leftOut, 1);
}

TEST(Stairs, LevelsAreExactWhereTheHeightDivides) {
  // 49 * (98 / 49.0) and the like fall short of whole numbers when they are summed up.
  for (int steps = 2; steps < 200; ++steps) {
    const StepLevels levels({0, {0, 0, -7}, {64, 256, float(steps * 3 - 7)}, {}}, {.steps = steps});
    for (int i = 0; i < steps; ++i) ASSERT_EQ(levels.bottom(i), i * 3 - 7) << steps;
  }
}

TEST(Stairs, DegenerateStepsStayUnlessCareIsTaken) {
  const Seed flat{0, {0, 0, 0}, {64, 64, 6}, {}};
  const Made kept = MakeStairs(flat, {.steps = 12, .width = 8}, kByDefault);
  EXPECT_EQ(kept.brushes.size(), 12u);
  EXPECT_TRUE(kept.brushes[0]->invalid);
  EXPECT_EQ(MakeStairs(flat, {.steps = 12, .width = 8}, kCareful).leftOut, 6);
  for (const StairType type : {StairType::Regular, StairType::Spiral, StairType::Block})
    EXPECT_TRUE(MakeStairs(flat, {.steps = INT_MAX, .type = type}, kByDefault).tooMany) << int(type);
}

TEST(Stairs, AsksAboutStepsThatAreHardToClimb) {
  EXPECT_FALSE(StepHeightQuestion(17.99));
  EXPECT_TRUE(StepHeightQuestion(18)->starts_with("Step of  18.0 height can be jumped"));
  EXPECT_EQ(StepHeightQuestion(40).value(),
            "Step of  40.0 height cannot be jumped (< 40)\nor stepped (< 20), okay to save anyway?");
}

}  // namespace
}  // namespace velk
