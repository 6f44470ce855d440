#include <filesystem>

#include "documents/disk_check.h"
#include "documents/opening.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;
namespace fs = std::filesystem;

constexpr const char* kOverwrite = "was changed on disk since it was read. Overwrite it?";
constexpr const char* kReload = "was changed on disk. Read it again?";

std::string Question(const std::string& path, const char* end, const char* answer) {
  return "message \"Velk - File Changed\" \"The file " + path + " " + end + "\" " + answer;
}

// One box at x, to tell the states of a file apart.
std::string BoxAt(int x) {
  return "{\n\"classname\" \"worldspawn\"\n" + test::Cube(x / 64, "wall1 0 0 0 1 1") + "}\n";
}

TEST(Disk, AChangedFileIsNotReplacedWithoutAsking) {
  for (const char* answer : {"no", "yes"}) {
    Session session;
    const std::string path = session.open();
    session.run("CM_SELECT_ALL");
    session.run("CM_FILESAVE");
    session.run("CM_SELECT_ALL");
    session.run("CM_FILESAVE");
    EXPECT_TRUE(session.prompts.log().empty()) << "our own saves";
    session.run("CM_SELECT_ALL");
    session.home.write("small.map", BoxAt(0));
    CheckDisk(session.editor.services(), session.editor.documents(), session.editor.door());
    EXPECT_EQ(session.editor.documents().status(),
              ("File [" + path + "] was changed on disk...").substr(0, 127));
    session.answer(answer);
    session.run("CM_FILESAVE");
    ASSERT_EQ(session.prompts.log().back(), Question(path, kOverwrite, answer));
    const bool kept = *answer == 'n';
    EXPECT_EQ(session.current().modified, kept);
    EXPECT_EQ(session.contents(path) == BoxAt(0), kept);
  }
}

TEST(Disk, AnUnmodifiedMapIsReadAgainInItsPlace) {
  Session session;
  session.editor.attend();
  const std::string path = session.open("a.map");
  session.open("b.map");
  session.editor.door().show(SwitchTo(session.editor.documents(), 0));
  session.current().activeCamera().origin = {1, 2, 3};
  session.editor.settings().undo_levels = 10;

  session.home.write("a.map", BoxAt(512));
  session.answer("no");
  CheckDisk(session.editor.services(), session.editor.documents(), session.editor.door());
  CheckDisk(session.editor.services(), session.editor.documents(), session.editor.door());
  EXPECT_EQ(session.prompts.log(), std::vector{Question(path, kReload, "no")}) << "asked once a change";
  EXPECT_EQ(session.current().brushCount(), 3);
  EXPECT_TRUE(session.editor.documents().current()->isUnsaved()) << "no file holds it any more";

  session.home.write("a.map", "{ \"classname\" \"worldspawn\" { nonsense");
  session.answer("yes");
  session.answer("ok");
  CheckDisk(session.editor.services(), session.editor.documents(), session.editor.door());
  EXPECT_EQ(session.prompts.log().back(),
            "message \"Velk - File Changed\" \"parsing map file\\n(reading [" + path + "], line 1)\" ok");
  EXPECT_EQ(session.current().brushCount(), 3);

  session.home.write("a.map", BoxAt(1024));
  session.answer("yes");
  CheckDisk(session.editor.services(), session.editor.documents(), session.editor.door());
  EXPECT_EQ(session.editor.documents().currentIndex(), 0);
  EXPECT_EQ(session.current().world()->at(0)->mins.x, 1024);
  EXPECT_EQ(session.current().activeCamera().origin.z, 3);
  EXPECT_FALSE(session.editor.documents().current()->isUnsaved());
  session.run("CM_UNDO");
  EXPECT_EQ(session.current().brushCount(), 3);
  EXPECT_TRUE(session.current().modified);
}

TEST(Disk, ALostFileLeavesItsMapUnsaved) {
  Session session;
  const std::string path = session.open();
  fs::remove(path);
  CheckDisk(session.editor.services(), session.editor.documents(), session.editor.door());
  EXPECT_EQ(session.editor.documents().status(),
            ("File [" + path + "] is gone from the disk...").substr(0, 127));
  session.answer("cancel");
  session.run("CM_FILECLOSE");
  EXPECT_EQ(session.editor.documents().count(), 1);
  session.run("CM_FILESAVE");
  EXPECT_TRUE(fs::exists(path));
  session.run("CM_FILECLOSE");
  EXPECT_EQ(session.editor.documents().count(), 0);
}

TEST(Disk, BrushesThatCannotBeSavedAreAskedAboutWhenTheirNumberGrows) {
  Session session;
  const std::string path = session.open();
  const std::string before = session.contents(path);
  entity& world = *session.current().world();
  const auto lose = [&](int index) { world.at(index)->translate({1e9f, 0, 0}); };
  lose(0);
  session.answer("no");
  session.run("CM_FILESAVE");
  EXPECT_EQ(session.prompts.log().back(),
            "message \"Velk - Save\" \"One brush of this map is not valid and will not be saved. Save "
            "anyway?\" no");
  EXPECT_EQ(session.contents(path), before);
  session.answer("yes");
  session.run("CM_FILESAVE");
  session.run("CM_FILESAVE");
  EXPECT_EQ(session.prompts.log().size(), 2u);
  EXPECT_NE(session.contents(path), before);
  lose(1);
  session.answer("no");
  session.run("CM_FILESAVE");
  EXPECT_EQ(session.prompts.log().size(), 3u);
}

}  // namespace
}  // namespace velk
