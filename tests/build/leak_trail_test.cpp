#include "build/leak_trail.h"

#include <gtest/gtest.h>

#include "build/leak_watch.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

TEST(LeakTrail, ReadsTriplesUpToTheFirstThatFailsAndTheLimit) {
  for (const auto& [text, count] : {std::pair("1 2 3\n4 5 6", 2u),
                                    {"1 2 3 4 5", 1u},
                                    {"words 1 2 3", 0u},
                                    {"", 0u},
                                    {"1 2 nan", 0u},
                                    {"-1e3 .5 +2\r\n", 1u}}) {
    EXPECT_EQ(ReadLeakPoints(text).size(), count) << text;
  }
  std::string many;
  for (int i = 0; i < 2500; ++i) many += std::to_string(i) + " 0 0\n";
  const auto points = ReadLeakPoints(many);
  ASSERT_EQ(points.size(), 2001u);
  EXPECT_EQ(points.back().x, 2000);
}

TEST(LeakWatch, TellsOfFilesThatAppearOrChange) {
  test::TempFolder home;
  const Paths paths;
  const std::string map = home.path().string() + "/e1.m1.map";
  LeakWatch watch;
  home.write("e1.m1.pts", "old");
  EXPECT_FALSE(watch.changed(paths, map));
  EXPECT_FALSE(watch.changed(paths, map));
  home.write("e1.m1.lin", "1 2 3");
  EXPECT_EQ(watch.changed(paths, map), home.path().string() + "/e1.m1.lin");
  EXPECT_FALSE(watch.changed(paths, map));
  std::filesystem::remove(home.path() / "e1.m1.lin");
  EXPECT_FALSE(watch.changed(paths, map));
}

}  // namespace
}  // namespace velk
