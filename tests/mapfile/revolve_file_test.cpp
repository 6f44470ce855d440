#include "mapfile/revolve_file.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

// "0.5 -1; 1 1", "none".
std::string Read(std::string_view text) {
  const std::optional<Profile> profile = ReadRevolveProfile(text);
  if (!profile) return "none";
  std::string points;
  for (const ProfilePoint& p : *profile)
    points += Format("%s%g %g", points.empty() ? "" : "; ", p.radius, p.along);
  return points;
}

TEST(RevolveFile, CountAndPairsOfNumbers) {
  const struct {
    const char* text;
    const char* points;
  } cases[] = {{"2\r\n0.5 -1\r\n1 1\r\nmore", "0.5 -1; 1 1"},
               {" 0x3 .5 1e1\n\n+2 -.25 3", "none"},
               {"0x2 .5\t1e1 +2 -.25", "0.5 10; 2 -0.25"},
               {"2.5 1 2 3", "0.5 1; 2 3"},
               {"2 0 0 1 x", "none"},
               {"2 0 0 nan 1", "none"},
               {"1 0 0", "none"},
               {"", "none"}};
  for (const auto& c : cases) EXPECT_EQ(Read(c.text), c.points) << c.text;
  std::string pairs;
  for (int i = 0; i < 100; ++i) pairs += " 1 2";
  EXPECT_EQ(Read("100" + pairs), "none");
  EXPECT_NE(Read("99" + pairs), "none");
}

TEST(RevolveFile, AFileThatIsNotThereGivesNone) {
  const test::TempFolder folder;
  const std::string file = folder.write("a.rev", "2 0 0 1 1");
  EXPECT_TRUE(ReadRevolveFile(Paths{}, file));
  EXPECT_FALSE(ReadRevolveFile(Paths{}, file + "x"));
}

}  // namespace
}  // namespace velk
