#include "app/place.h"

#include "base/files.h"
#include "support/fatal.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

TEST(Place, WhereHomeIs) {
  const test::TempFolder here;
  const test::TempFolder there;
  const auto home = [&](const std::string& velkHome, const std::string& config) {
    return FindPlace({here.path(), velkHome, config, "/home/someone"}, "").home;
  };
  EXPECT_EQ(home("", ""), fs::path("/home/someone/.config/velk"));
  EXPECT_EQ(home("", "/etc/x"), fs::path("/etc/x/velk"));
  EXPECT_EQ(home("", "relative"), fs::path("/home/someone/.config/velk"));
  EXPECT_EQ(home(there.path().string(), "/etc/x"), there.path());
  here.write("velk.ini", "");
  EXPECT_EQ(home(there.path().string(), "/etc/x"), here.path());
}

TEST(Place, FirstStartCopiesTheKitOverNothing) {
  const test::TempFolder kit;
  kit.write("ents.qc", "kit");
  fs::permissions(kit.write("velk.ini", "kit"), fs::perms::owner_read);
  kit.write("maps/first.map", "kit");
  const test::TempFolder user;
  const std::string own = user.write("velk/ents.qc", "own");
  const Surroundings around{user.path(), "", user.path().string(), ""};
  const EditorPlace place = FindPlace(around, kit.path());
  EXPECT_EQ(place.home, user.path() / "velk");
  EXPECT_EQ(LoadFile(Paths(), own), "own");
  const fs::perms mode = fs::status(place.home / "velk.ini").permissions();
  EXPECT_NE(mode & fs::perms::owner_write, fs::perms::none);
  EXPECT_EQ(LoadFile(Paths(), (place.home / "maps/first.map").string()), "kit");
  fs::remove(place.home / "maps/first.map");
  FindPlace(around, kit.path());
  EXPECT_FALSE(fs::exists(place.home / "maps/first.map")) << "only the first start copies";
}

TEST(Place, KitServesWhereItCannotBeCopied) {
  const test::TempFolder kit;
  kit.write("velk.ini", "");
  EXPECT_EQ(FindPlace({"/", "/proc/no-such/home", "", ""}, kit.path()).home, kit.path());
}

TEST(Place, RelativeDirectoriesStartAtHome) {
  Settings settings;
  settings.wad_directory = ".\\";
  settings.map_directory = "maps\\";
  settings.bat_directory = "c:\\qbsp\\";
  settings.entity_qc_directory = "/usr/share/";
  settings.badtex = "badtex.bmp";
  ResolvePaths(settings, "/home/me");
  EXPECT_EQ(settings.wad_directory, "/home/me/");
  EXPECT_EQ(settings.map_directory, "/home/me/maps\\");
  EXPECT_EQ(settings.bat_directory, "c:\\qbsp\\");
  EXPECT_EQ(settings.entity_qc_directory, "/usr/share/");
  EXPECT_EQ(settings.badtex, "/home/me/badtex.bmp");
  const Settings written = WithRelativePaths(settings, "/home/me");
  EXPECT_EQ(written.wad_directory, ".\\");
  EXPECT_EQ(written.map_directory, ".\\maps\\");
  EXPECT_EQ(written.bat_directory, "c:\\qbsp\\");
}

}  // namespace
}  // namespace velk
