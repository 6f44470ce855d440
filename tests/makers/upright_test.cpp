// What stands upright in its seed: rooms, prisms, pyramids, cylinders.
#include <climits>

#include "makers/box.h"
#include "makers/cylinder.h"
#include "makers/made_text.h"
#include "makers/prism.h"
#include "makers/pyramid.h"
#include "makers/room.h"
#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::BoundsOf;
using test::PointsOf;

const MakerRules kByDefault;
const MakerRules kCareful{.careful = true};

const Seed kSeed{3, {0, 0, 0}, {128, 128, 64}, test::Texture("stone")};

TEST(Room, HasItsWallsOutsideInOrder) {
  const Made made = MakeRoom(kSeed, 8, kByDefault);
  EXPECT_EQ(BoundsOf(made),
            "-8 0 0 .. 0 128 64, 128 0 0 .. 136 128 64, 0 -8 0 .. 128 0 64, 0 128 0 .. 128 136 64, "
            "0 0 64 .. 128 128 72, 0 0 -8 .. 128 128 0");
  for (const auto& b : made.brushes) {
    EXPECT_EQ(b->group(), 3);
    EXPECT_EQ(b->faces()[5].texture.name, "stone");
  }
  for (const auto& [units, expected] : {std::pair{0, false}, {1, true}, {1024, true}, {1025, false}})
    EXPECT_EQ(IsWallThickness(units), expected) << units;
}

TEST(Box, HasLeastWidthsAndStaysWithinTheWorld) {
  const struct {
    BoxParams params;
    bool careful;
    const char* bounds;
  } cases[] = {{{{1.5, 2, 3}, {0, -7, 64}}, false, "1.5 2 3 .. 2.5 3 67"},
               {{{18000, 0, 0}, {64, 64, 64}}, false, ""},
               {{{8000, 0, 0}, {400, 64, 64}}, false, "8000 0 0 .. 8400 64 64"},
               {{{8000, 0, 0}, {400, 64, 64}}, true, ""}};
  for (const auto& c : cases)
    EXPECT_EQ(BoundsOf(MakeBox(c.params, {}, 0, {.careful = c.careful})), c.bounds) << c.params.at.x;
}

TEST(Prism, ClampsItsSidesAndRadius) {
  const struct {
    PrismParams params;
    int faces;
    const char* bounds;
  } cases[] = {{{40, 64}, 34, "0 0 0 .. 128 128 64"},
               {{2, 64}, 5, "9 32 0 .. 119 128 64"},
               {{4, 1}, 6, "60 60 0 .. 68 68 64"}};
  for (const auto& c : cases) {
    const Made made = MakePrism(kSeed, c.params, kByDefault);
    EXPECT_EQ(BoundsOf(made), c.bounds) << c.params.sides;
    EXPECT_EQ(made.brushes.at(0)->numfaces(), c.faces);
  }
}

TEST(Prism, StandsOnTheGridFromTopFaceToSides) {
  const Seed seed{0, {3, 4, 1}, {20, 20, 17}, {}};
  const Made made = MakePrism(seed, {4, 10}, {.gridsize = 8});
  const char* faces[] = {"8 16 17, 8 32 17, 24 16 17", "8 16 1, 24 16 1, 8 32 1", "18 16 17, 8 26 17, 8 26 1",
                         "8 6 17, 18 16 17, 18 16 1"};
  for (size_t i = 0; i < std::size(faces); ++i) EXPECT_EQ(PointsOf(*made.brushes.at(0), i), faces[i]) << i;
}

TEST(Pyramid, HasItsApexAboveTheMiddle) {
  const Seed seed{0, {-64, -64, 8}, {64, 64, 9}, {}};
  const Made made = MakePyramid(seed, {3, 64, 100}, kByDefault);
  EXPECT_EQ(BoundsOf(made), "-55 -32 8 .. 55 64 108");
  EXPECT_EQ(PointsOf(*made.brushes.at(0), 0), "0 0 8, 16 0 8, 0 16 8");
  EXPECT_EQ(PointsOf(*made.brushes.at(0), 2), "55 -32 8, -55 -32 8, 0 0 108");
  EXPECT_EQ(BoundsOf(MakePyramid(seed, {4, 0, 0}, kByDefault)), "-4 -4 8 .. 4 4 12");
  // Taller than the world, with sides that do not come out as polygons.
  const Seed far{0, {1060, 1969, -1059}, {1249, 2178, -918}, {}};
  EXPECT_FATAL(MakePyramid(far, {36, 2, 18026}, kByDefault), "CheckFace: non-convex");
  EXPECT_EQ(MakePyramid(far, {36, 2, 18026}, kCareful).leftOut, 1);
}

TEST(Cylinder, IsMadeStripByStripOfSixFacedSegments) {
  const Seed seed{0, {-64, -64, 3}, {64, 64, 40}, {}};
  const Made made = MakeCylinder(seed, {4, 2, 10, 20}, {.gridsize = 8});
  ASSERT_EQ(made.brushes.size(), 8u);
  const char* faces[] = {"0 10 19, 10 0 19, 10 0 0", "20 0 19, 0 20 19, 0 20 0", "0 10 19, 0 20 19, 20 0 19",
                         "20 0 0, 0 20 0, 0 10 0",   "0 20 19, 0 10 19, 0 10 0", "10 0 19, 20 0 19, 20 0 0"};
  for (size_t i = 0; i < std::size(faces); ++i) EXPECT_EQ(PointsOf(*made.brushes[0], i), faces[i]) << i;
  EXPECT_EQ(BoundsOf(*made.brushes[4]), "0 0 19 .. 20 20 38");
}

TEST(Cylinder, WithCareFillsTheHeightOfItsSeed) {
  const Seed seed{0, {-64, -64, 3}, {64, 64, 13}, {}};
  const Made fitted = MakeCylinder(seed, {4, 3, 10, 20}, kCareful);
  ASSERT_EQ(fitted.brushes.size(), 12u);
  EXPECT_EQ(BoundsOf(*fitted.brushes[4]), "0 0 6 .. 20 20 10");
  EXPECT_EQ(fitted.brushes.back()->maxs.z, 13);

  const Made thin = MakeCylinder(seed, {4, INT_MAX, 10, 20}, kCareful);
  EXPECT_EQ(thin.brushes.size(), 40u) << "a strip a unit";
  EXPECT_GT(thin.leftOut, 1000000);
  EXPECT_TRUE(MakeCylinder(seed, {4, INT_MAX, 10, 20}, kByDefault).tooMany) << "nor does it take forever";
}

TEST(Cylinder, HalvesAreRoundedAwayFromTheMiddleOnAllSides) {
  const Seed seed{0, {-64, -64, 0}, {64, 64, 8}, {}};
  const Made made = MakeCylinder(seed, {12, 1, 33, 65}, kByDefault);
  EXPECT_EQ(PointsOf(*made.brushes.at(1), 1), "56 33 8, 33 56 8, 33 56 0");
  EXPECT_EQ(PointsOf(*made.brushes.at(10), 1), "-33 56 8, -56 33 8, -56 33 0");
}

TEST(Limits, OfTheFormsNumbers) {
  const CylinderParams cylinder = Limited(CylinderParams{0, -5, 0, -9});
  EXPECT_EQ(cylinder.sides, 3);
  EXPECT_EQ(cylinder.strips, 1);
  EXPECT_EQ(cylinder.inner, 1);
  EXPECT_EQ(cylinder.outer, 2);
  EXPECT_EQ(Limited(CylinderParams{3, 1, INT_MAX, 0}).outer, INT_MAX);
  const PyramidParams pyramid = Limited(PyramidParams{0, 0, 0});
  EXPECT_TRUE(pyramid.sides == 3 && pyramid.radius == 1 && pyramid.height == 1);
  EXPECT_EQ(Limited(PrismParams{99, 7}).sides, 99) << "only the prism itself has at most 32";
}

}  // namespace
}  // namespace velk
