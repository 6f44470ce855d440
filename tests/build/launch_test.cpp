#include "build/launch.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "build/profiles.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

TEST(Launch, TheArgumentIsTheNameUpToItsFirstDot) {
  for (const auto& [path, argument] : {std::pair("c:\\quake\\maps\\e1m1.map", "e1m1"),
                                       {"/maps/plain", "plain"},
                                       {"my.test.map", "my"},
                                       {"", ""}}) {
    EXPECT_EQ(MapArgument(path), argument) << path;
  }
}

TEST(Launch, FindsProgramsInAnyCaseAndGivesScriptsToTheShell) {
  test::TempFolder home;
  const std::string folder = home.path().string() + "/";
  const Paths paths(home.path());
  Settings settings;
  EXPECT_EQ(FindProgram(paths, folder, BatchNames("full")), folder + "full.bat");
  const std::string script = home.write("Full.SH", "exit 0\n");
  EXPECT_EQ(FindProgram(paths, folder, BatchNames("full")), folder + "full.sh");
  const BuildMap map{"c:\\a.map", {}};
  NativeLaunch native = NativeOf(paths, settings, {folder + "full.sh", {"a"}, "c:\\maps\\"}, map);
  EXPECT_EQ(native.program, "sh");
  EXPECT_EQ(native.arguments, (std::vector<std::string>{script, "a"}));
  EXPECT_EQ(native.directory, folder + "c/maps/");
  EXPECT_EQ(native.variables[0].second, folder + "c/a.map");
  std::filesystem::permissions(script, std::filesystem::perms::owner_all);
  native = NativeOf(paths, settings, {folder + "full.sh", {"a"}, ""}, map);
  EXPECT_EQ(native.program, script);
  // A plain name is the compiler's own before the system's.
  settings.compiler_directory = home.path().string();
  std::filesystem::permissions(home.write("qbsp", ""), std::filesystem::perms::owner_all);
  EXPECT_EQ(NativeOf(paths, settings, {"qbsp", {}, ""}, map).program, folder + "qbsp");
  EXPECT_EQ(NativeOf(paths, settings, {"vis", {}, ""}, map).program, "vis");
}

TEST(Profiles, KeepLinesAndFillThemIn) {
  test::TempFolder home;
  const std::filesystem::path file = home.path() / "velkbuild.ini";
  BuildProfiles profiles;
  profiles.put({"mine", "", {"qbsp \"%map%\" -w %wads%", "light %bsp%"}, "cp %name%.bsp \"a b\""});
  profiles.put({"other", "", {"x"}, ""});
  profiles.remove("other");
  profiles.chosen = "mine";
  ASSERT_TRUE(profiles.save(file));
  profiles = BuildProfiles::Load(file);
  EXPECT_EQ(profiles.chosen, "mine");
  EXPECT_EQ(profiles.names().size(), std::size(kBatchFiles) + 1);
  const auto launches =
      LaunchesOf(profiles, "mine", Paths(), Settings(), {"/my maps/e1.map", {"/a.wad", "/b.wad"}});
  ASSERT_EQ(launches.size(), 3u);
  EXPECT_EQ(LaunchText(launches[0]), "\"qbsp\" \"/my maps/e1.map\" \"-w\" \"/a.wad;/b.wad\" \"/my maps/\"");
  EXPECT_EQ(LaunchText(launches[2]), "\"cp\" \"e1.bsp\" \"a b\" \"/my maps/\"");
  EXPECT_EQ(BuildProfiles::Load(home.path() / "none").chosen, "Full");
}

}  // namespace
}  // namespace velk
