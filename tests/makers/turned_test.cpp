// What is turned about an axis: spheres, revolved objects, arches.
#include <map>

#include "makers/arch.h"
#include "makers/made_text.h"
#include "makers/revolve.h"
#include "makers/sphere.h"
#include "support/builders.h"

namespace velk {
namespace {

using test::BoundsOf;
using test::PointsOf;

const Seed kSeed{1, {0, 0, 0}, {128, 32, 96}, test::Texture("rock")};

// How many brushes of how many faces: "5:8 6:16".
std::string FaceCounts(const Made& made) {
  std::map<int, int> counts;
  for (const auto& b : made.brushes) ++counts[b->numfaces()];
  std::string text;
  for (const auto& [faces, count] : counts) text += Format("%s%i:%i", text.empty() ? "" : " ", faces, count);
  return text;
}

TEST(Sphere, HasWedgesAtThePolesAndBlocksBetween) {
  const struct {
    SphereParams params;
    bool careful;
    const char* faces;
  } cases[] = {{{4, 2, 100, 200}, false, "5:8"},
               {{5, 5, 100, 200}, false, "5:10 6:15"},
               {{5, 1, 100, 200}, false, ""},
               {{4, 40, 100, 200}, false, "5:8 6:144"},
               {{4, 40, 100, 200}, true, "5:8 6:152"}};
  for (const auto& c : cases)
    EXPECT_EQ(FaceCounts(MakeSphere(kSeed, c.params, {.careful = c.careful})), c.faces) << c.params.vertical;
}

TEST(Sphere, PointsOfItsPieces) {
  const Made made = MakeSphere(kSeed, {4, 3, 10, 20}, {});
  ASSERT_EQ(FaceCounts(made), "5:8 6:4");
  EXPECT_EQ(PointsOf(*made.brushes[0], 0), "64 11 39, 73 11 48, 64 6 48");
  EXPECT_EQ(PointsOf(*made.brushes[0], 1), "81 6 48, 64 6 31, 64 -4 48");
}

TEST(Sphere, LimitsOfTheFormsNumbers) {
  const SphereParams limited = Limited(SphereParams{0, 100, -1, 0});
  EXPECT_TRUE(limited.horizontal == 1 && limited.vertical == 99 && limited.inner == 1 && limited.outer == 2);
  EXPECT_TRUE(MakeSphere(kSeed, {99, 99, 100, 200}, {}).tooMany);
}

TEST(Revolve, TurnsAProfile) {
  const Profile tube{{1, -1}, {1, 1}};
  const Made made = MakeRevolved(kSeed, tube, {4, 10, 20}, {});
  EXPECT_EQ(FaceCounts(made), "6:4");
  EXPECT_EQ(PointsOf(*made.brushes.at(0), 0), "64 6 38, 64 26 38, 74 26 48");
  EXPECT_EQ(PointsOf(*made.brushes.at(0), 3), "74 26 48, 74 6 48, 64 16 48");
  for (const Profile& nothing :
       {Profile{}, Profile{{1, 1}, {1, -1}}, Profile{{0, -1}, {0.05, 1}}, Profile{{1e300, -1}, {1e300, 1}}})
    EXPECT_EQ(FaceCounts(MakeRevolved(kSeed, nothing, {4, 10, 20}, {})), "");
}

TEST(Arch, StonesAndPosts) {
  const std::optional<Made> made = MakeArch(kSeed, {}, {});
  ASSERT_TRUE(made);
  ASSERT_EQ(made->brushes.size(), 10u);
  EXPECT_EQ(BoundsOf(*made->brushes[0]), "0 0 32 .. 29 32 56");
  EXPECT_EQ(BoundsOf(*made->brushes[3]), "40 0 67 .. 64 32 96");
  EXPECT_EQ(BoundsOf(*made->brushes[8]) + ", " + BoundsOf(*made->brushes[9]),
            "0 0 0 .. 26 32 32, 102 0 0 .. 128 32 32");
  const char* faces[] = {"29 32 47, 26 32 32, 26 0 32", "5 0 56, 0 0 32, 0 32 32",
                         "5 32 56, 0 32 32, 26 32 32",  "29 0 47, 26 0 32, 0 0 32",
                         "5 32 56, 29 32 47, 29 0 47",  "0 0 32, 26 0 32, 26 32 32"};
  for (size_t i = 0; i < std::size(faces); ++i) EXPECT_EQ(PointsOf(*made->brushes[0], i), faces[i]) << i;
}

TEST(Arch, SpansYWhenOneWalksAlongX) {
  const Seed seed{0, {0, 0, 0}, {32, 128, 96}, {}};
  const std::optional<Made> made = MakeArch(seed, {8, 20, true}, {});
  ASSERT_TRUE(made);
  EXPECT_EQ(BoundsOf(*made->brushes.at(0)), "0 0 32 .. 32 29 56");
  EXPECT_EQ(PointsOf(*made->brushes[0], 0), "32 26 32, 32 29 47, 0 26 32") << "two points change places";
  EXPECT_EQ(BoundsOf(*made->brushes.at(9)), "0 102 0 .. 32 128 32");
}

TEST(Arch, NeedsAUnitOfPost) {
  for (const auto& [height, fits] : {std::pair{64.0f, false}, {65.0f, true}}) {
    Seed seed = kSeed;
    seed.maxs.z = height;
    EXPECT_EQ(MakeArch(seed, {}, {}).has_value(), fits);
    EXPECT_EQ(MakeArch(seed, {}, {.careful = true}).has_value(), fits);
  }
}

// The lowest points of the first and last stone, and the tops of the posts.
std::string Springs(const Made& made) {
  const size_t stones = made.brushes.size() - 2;
  return Format("%g %g, %g %g", made.brushes.front()->mins.z, made.brushes[stones - 1]->mins.z,
                made.brushes[stones]->maxs.z, made.brushes[stones + 1]->maxs.z);
}

TEST(Arch, WithCareStonesMeetThePosts) {
  Seed odd = kSeed;
  odd.maxs.x = 129;
  const std::optional<Made> apart = MakeArch(odd, {}, {});
  const std::optional<Made> meeting = MakeArch(odd, {}, {.careful = true});
  ASSERT_TRUE(apart && meeting);
  EXPECT_EQ(Springs(*apart), "32 32, 31.5 31.5");
  EXPECT_EQ(Springs(*meeting), "31 31, 31 31");
  EXPECT_EQ(meeting->brushes[7]->maxs.x, 129);
  EXPECT_EQ(apart->brushes[7]->maxs.x, 130);
  EXPECT_EQ(meeting->brushes[3]->maxs.z, 96) << "still as high as the seed";
}

TEST(Arch, WithCareSmallStonesEndAtTheSeed) {
  const Seed small{0, {0, 0, 0}, {16, 16, 32}, {}};
  const std::optional<Made> open = MakeArch(small, {24, 30, false}, {});
  const std::optional<Made> closed = MakeArch(small, {24, 30, false}, {.careful = true});
  ASSERT_TRUE(open && closed);
  const auto endless = [](const Made& made) {
    return std::ranges::count_if(made.brushes, [](const auto& b) { return b->mins.y < 0; });
  };
  EXPECT_GT(endless(*open), 0);
  EXPECT_EQ(endless(*closed), 0);
  EXPECT_EQ(closed->brushes.size() + static_cast<size_t>(closed->leftOut), 26u);
}

}  // namespace
}  // namespace velk
