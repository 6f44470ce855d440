#include "base/paths.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace velk {
namespace {

TEST(PathsTest, NativeNames) {
  const test::TempFolder folder;
  folder.write("c/Quake/ID1/Base.WAD", "");
  folder.write("c/Quake/id1/Base.wad", "");
  folder.write("d/start.map", "");
  std::filesystem::create_symlink("nowhere", folder.path() / "c/Dangling");
  const Paths paths(folder.path());
  const struct {
    const char* given;
    const char* native;
    bool exists;
  } cases[] = {
      {"c:\\Quake\\id1\\Base.wad", "c/Quake/id1/Base.wad", true},
      {"C:/quake/id1\\base.wad", "c/Quake/id1/Base.wad", true},  // as far as it goes, names as written win
      {"c:\\quake\\iD1\\base.wad", "c/Quake/ID1/Base.WAD", true},
      {"D:start.MAP", "d/start.map", true},
      {"c:\\quake\\new\\NEWMAP.MAP", "c/Quake/new/NEWMAP.MAP", false},
      {"c:\\QUAKE\\", "c/Quake/", true},
      {"c:\\dangling", "c/Dangling", false},
      {"e:\\backup.map", "e/backup.map", false},
      {"c:", "c/", true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(paths.native(c.given), folder.path() / c.native) << c.given;
    EXPECT_EQ(paths.exists(c.given), c.exists) << c.given;
  }
  EXPECT_EQ(paths.native((folder.path() / "D/Start.map").string()), folder.path() / "d/start.map");
}

TEST(PathsTest, StrangeNamesAreMerelyMissing) {
  const Paths paths;
  for (const std::string& name : {std::string(), std::string(5000, 'x')}) EXPECT_FALSE(paths.exists(name));
  EXPECT_EQ(paths.native(std::string_view("no\0such", 7)), "no");
  EXPECT_EQ(paths.native("no such folder\\b.map"), "no such folder/b.map");
  EXPECT_EQ(paths.native("/dev/null/Name"), "/dev/null/Name");
}

TEST(PathsTest, Parts) {
  const struct {
    const char *path, *directory, *name, *withSeparator;
  } cases[] = {{"c:\\a\\b.map", "c:\\a\\", "b.map", "c:\\a\\b.map\\"},
               {"a/b\\", "a/b\\", "", "a/b\\"},
               {"b/", "b/", "", "b/"},
               {"b.map", "", "b.map", "b.map\\"},
               {"", "", "", ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(DirectoryPart(c.path), c.directory) << c.path;
    EXPECT_EQ(FileNamePart(c.path), c.name) << c.path;
    EXPECT_EQ(WithSeparator(c.path), c.withSeparator) << c.path;
  }
}

}  // namespace
}  // namespace velk
