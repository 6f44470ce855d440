#include <filesystem>

#include "commands/dispatch.h"
#include "commands/files/named_files.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;
namespace fs = std::filesystem;

TEST(Documents, NewMap) {
  Session session;
  EXPECT_EQ(FrameTitle(session.editor), "[Velk - Velk]");
  EXPECT_EQ(session.editor.documents().status(), "Welcome to Velk...");
  session.run("CM_FILENEW");
  EXPECT_EQ(FrameTitle(session.editor), "[Velk - NEWMAP.MAP]");
  EXPECT_EQ(session.editor.documents().status(), "Map [NEWMAP.MAP] created...");
  EXPECT_EQ(session.current().world()->valueOfKey("wad"), "test.wad");
  EXPECT_FALSE(session.current().modified);
  EXPECT_EQ(session.editor.documents().current()->textures.count(), 3);
}

TEST(Documents, OpensSeveralChosenFiles) {
  Session session;
  const std::string one = session.home.write("one.map", test::SmallMapText());
  const std::string two = session.home.write("two.map", test::SmallMapText());
  session.prompts.queue({one, two}, false);
  session.run("CM_FILEOPEN");
  ASSERT_EQ(session.editor.documents().count(), 2);
  EXPECT_EQ(FrameTitle(session.editor), "[Velk - " + two + "]");
  EXPECT_EQ(session.editor.documents().status(), ("File [" + two + "] processed...").substr(0, 127));
  EXPECT_EQ(session.current().brushCount(), 3);
  EXPECT_FALSE(session.current().modified);
}

TEST(Documents, EleventhMapIsRefused) {
  Session session;
  for (int i = 0; i < MAX_MAPS; ++i) session.run("CM_FILENEW");
  session.answer("ok");
  EXPECT_FALSE(IsEnabled(session.editor, *FindCommand("CM_FILENEW")));
  EXPECT_TRUE(session.run("CM_FILENEW"));
  session.answer("ok");
  EXPECT_TRUE(session.run("CM_FILEOPEN"));
  EXPECT_EQ(session.editor.documents().count(), MAX_MAPS);
  const std::vector<std::string> expected{
      R"(message "Velk - Cannot Open New Map" "No more maps available..." ok)",
      R"(message "Velk - Cannot Open" "No more maps available..." ok)"};
  EXPECT_EQ(session.prompts.log(), expected);
}

TEST(Documents, FatalErrorWhileOpeningLeavesTheListAlone) {
  Session session;
  session.open();
  const std::string bad = session.home.write("bad.map", "{\n\"classname\" \"worldspawn\"\n{\n( 1 2");
  EXPECT_NE(test::FatalMessage([&] { OpenNamed(session.editor, bad); }), "");
  EXPECT_NE(test::FatalMessage([&] { OpenNamed(session.editor, "/nowhere/no.map"); }), "");
  EXPECT_EQ(session.editor.documents().count(), 1);
  EXPECT_TRUE(session.run("CM_SELECT_ALL"));
}

TEST(Documents, FavouritesAreTheNamedTexturesThatAreThere) {
  Session session;
  const std::pair<std::string, std::string> cases[] = {
      {"", "//VELKFAVORITES0010\r\n//FLOOR1;SKY1;WALL1\r\n"},
      {"//VELKFAVORITES0010\n//none;wall1\n", "//VELKFAVORITES0010\r\n//WALL1\r\n"},
      {"//VELKFAVORITES0010\n\n", "//VELKFAVORITES0010\r\n\r\n"},
      {"//VELKFAVORITES0010\n//none\n", "//VELKFAVORITES0010\r\n\r\n"}};
  for (const auto& [header, saved] : cases) {
    const std::string path = session.home.write("favourites.map", header + test::SmallMapText());
    OpenNamed(session.editor, path);
    session.run("CM_FILESAVE");
    EXPECT_NE(session.contents(path).find(saved + "//VELKCAMERAS"), std::string::npos) << header;
  }
}

TEST(Documents, TheCurrentTextureStaysWhateverIsOpened) {
  Session session;
  TextureChoice& browser = session.editor.texture();
  EXPECT_EQ(browser.current().name, "FLOOR1");
  browser.setCurrent({.name = "WALL1"});
  session.run("CM_FILENEW");
  session.open();
  EXPECT_EQ(browser.current().name, "WALL1");
  browser.setCurrent({});
  session.open();
  EXPECT_EQ(browser.current().name, "FLOOR1") << "there was none";
}

TEST(Documents, UntitledMapAsksForItsName) {
  Session session;
  session.run("CM_FILENEW");
  session.current().world()->addobject(std::make_unique<brush>());
  session.current().world()->at(0)->initBox(*session.current().world(), {0, 0, 0}, {64, 64, 64}, {});
  session.current().modified = true;
  session.answer("cancel");
  session.run("CM_FILESAVE");
  EXPECT_TRUE(session.current().modified);
  EXPECT_EQ(session.current().name, "NEWMAP.MAP");
  const std::string path = (session.home.path() / "named.map").string();
  session.answer(path);
  session.run("CM_FILESAVE");
  EXPECT_EQ(session.current().name, path);
  EXPECT_FALSE(session.current().modified);
  EXPECT_TRUE(fs::exists(path));
}

TEST(Documents, MapWithoutWorldBrushIsNotSaved) {
  Session session;
  session.run("CM_FILENEW");
  session.current().modified = true;
  session.answer((session.home.path() / "empty.map").string());
  session.answer("ok");
  session.run("CM_FILESAVEAS");
  EXPECT_EQ(session.prompts.log().back(),
            R"(message "Velk - Save" "Nothing to save...\nMap must have at least one world brush!" ok)");
  EXPECT_TRUE(session.current().modified);
  EXPECT_FALSE(fs::exists(session.home.path() / "empty.map"));
}

TEST(Documents, FailedSaveIsNamedAndKeepsTheMapModified) {
  Session session;
  const std::string path = session.open();
  session.run("CM_SELECT_ALL");
  session.answer("/nowhere/there/no.map");
  session.answer("ok");
  session.run("CM_FILESAVEAS");
  EXPECT_EQ(
      session.prompts.log().back(),
      R"(message "Velk - Save" "Couldn't write map file /nowhere/there/no.map: No such file or directory" ok)");
  EXPECT_TRUE(session.current().modified);
  EXPECT_EQ(session.current().name, path);
}

TEST(Documents, CloseAsksAboutChanges) {
  struct Case {
    const char* answer;
    int mapsLeft;
    bool saved;
  };
  for (const Case& c : {Case{"yes", 0, true}, Case{"no", 0, false}, Case{"cancel", 1, false}}) {
    Session session;
    const std::string path = session.open();
    const std::string before = session.contents(path);
    session.run("CM_SELECT_ALL");
    session.answer(c.answer);
    session.run("CM_FILECLOSE");
    EXPECT_EQ(session.editor.documents().count(), c.mapsLeft) << c.answer;
    EXPECT_EQ(session.contents(path) != before, c.saved) << c.answer;
    EXPECT_EQ(session.prompts.log().back(),
              "message \"Velk - Save Changes?\" \"Save changes to map " + path + "?\" " + c.answer);
  }
}

TEST(Documents, ClosedMapLeavesItsPlaceToTheLast) {
  Session session;
  const std::string a = session.open("a.map");
  const std::string b = session.open("b.map");
  const std::string c = session.open("c.map");
  session.run("CM_PREVIOUS_MAP");
  EXPECT_EQ(session.editor.documents().status(), "Map switched...");
  session.run("CM_FILECLOSE");
  EXPECT_EQ(session.editor.documents().status(), "Map closed...");
  ASSERT_EQ(session.editor.documents().count(), 2);
  EXPECT_EQ(session.editor.documents().currentIndex(), 0);
  EXPECT_EQ(session.editor.documents().at(0)->model.name, a);
  EXPECT_EQ(session.editor.documents().at(1)->model.name, c);
  session.run("CM_PREVIOUS_MAP");
  EXPECT_EQ(session.editor.documents().currentIndex(), 1);
  session.run("CM_NEXT_MAP");
  EXPECT_EQ(session.editor.documents().currentIndex(), 0);
}

TEST(Documents, ExitAsksForEveryModifiedMap) {
  Session session;
  session.open("a.map");
  session.run("CM_SELECT_ALL");
  session.open("b.map");
  session.run("CM_SELECT_ALL");
  session.open("c.map");
  session.answer("no");
  session.answer("cancel");
  session.run("CM_FILEEXIT");
  EXPECT_FALSE(session.observer.exiting);
  EXPECT_EQ(session.editor.documents().count(), 3);
  session.answer("no");
  session.answer("yes");
  session.run("CM_FILEEXIT");
  EXPECT_TRUE(session.observer.exiting);
  EXPECT_EQ(session.prompts.log().size(), 4u);
  EXPECT_FALSE(session.editor.documents().at(1)->model.modified);
}

TEST(Status, EmptyTextAndDebugForm) {
  Session session;
  session.editor.documents().post("");
  EXPECT_EQ(session.editor.documents().status(), "...");
  session.editor.settings().debugmode = true;
  session.editor.documents().post("text");
  EXPECT_EQ(session.editor.documents().status(), "...");
  session.open();
  session.editor.documents().post("Text");
  const std::string numbers = "3-0=3 Num: 3, e: 3-1=2 Num: 3   ";
  EXPECT_EQ(session.editor.documents().status(), "Text, " + numbers);
  session.editor.documents().post("");
  EXPECT_EQ(session.editor.documents().status(), numbers + " ");
}

TEST(Start, MissingBadtexIsAskedFor) {
  test::TempFolder home;
  test::FurnishHome(home);
  fs::remove(home.path() / "badtex.bmp");
  ScriptPrompts prompts;
  test::RecordingObserver observer;
  Editor editor({home.path(), home.path()}, prompts, observer);
  prompts.queue({"cancel"}, false);
  EXPECT_FATAL(editor.start(), "You must select a valid badtex.bmp file...");
  prompts.queue({home.write("other.bmp", "BM")}, false);
  editor.start();
  EXPECT_EQ(FileNamePart(editor.settings().badtex), "other.bmp");
}

}  // namespace
}  // namespace velk
