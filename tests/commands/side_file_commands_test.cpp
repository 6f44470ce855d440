// Side files and builds where a script cannot tell: what careful tools do better, what happens without a
// question, and what is put right after a failure.
#include "commands/files/named_files.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;

size_t Started(const Session& session) { return session.editor.build().started().size(); }

TEST(SideFiles, CarefulToolsLoseNothingToACancel) {
  for (const bool careful : {false, true}) {
    Session session;
    session.editor.settings().careful_tools = careful;
    session.open();
    session.answer(session.home.write("a.pts", "1 2 3\n4 5 6\n"));
    session.run("CM_SHOW_LEAKS");
    session.answer("cancel");
    session.run("CM_SHOW_LEAKS");
    EXPECT_EQ(session.editor.views().leaks.points().size(), careful ? 2u : 0u);

    session.run("CM_FILENEW");
    session.answer("yes");
    session.answer("cancel");
    session.run("282");
    EXPECT_EQ(Started(session), careful ? 0u : 1u);
  }
}

TEST(SideFiles, AClipboardOfPointEntitiesIsWorthSaving) {
  for (const bool careful : {false, true}) {
    Session session;
    session.editor.settings().careful_tools = careful;
    session.open();
    session.current().at(1)->at(0)->select();
    session.current().setCurrentEntity(session.current().at(1));
    session.run("CM_EDITCOPY");
    const std::string file = (session.home.path() / "clip.mrg").string();
    session.answer(file);
    if (!careful) session.answer("ok");
    session.run("CM_MERGE_CLIPBOARD");
    const std::string light = "{\r\n}\r\n{\r\n\"origin\"\t\"32 32 128\"\r\n\"classname\"\t\"light\"\r\n}\r\n";
    EXPECT_EQ(session.editor.services().paths.exists(file), careful);
    if (careful) {
      EXPECT_EQ(session.contents(file), light);
    }
  }
}

TEST(SideFiles, AMergeOutDoesNotSaveTheMap) {
  Session session;
  session.editor.settings().ask_when_changed = true;
  session.open();
  session.run("CM_SELECT_ALL");
  session.run("CM_XUP");
  session.answer((session.home.path() / "out.mrg").string());
  session.run("CM_MERGE_OUT");
  EXPECT_FALSE(session.current().modified);
  EXPECT_TRUE(session.editor.documents().current()->isUnsaved());
}

TEST(SideFiles, FilesGoByTheirEnding) {
  Session session;
  const std::string merge = session.home.write("a.MRG", "{\n}\n{\n\"classname\" \"light\"\n}\n");
  const std::string brushes = session.home.write("a.bru", test::Cube(5));
  ShowNamed(session.editor, session.home.write("a.pts", "1 2 3"));
  EXPECT_FALSE(session.editor.views().leaks.shown());  // no map is open
  ShowNamed(session.editor, merge);
  ASSERT_EQ(session.editor.documents().count(), 1);
  EXPECT_EQ(session.current().numentities(), 2);
  session.open();
  ShowNamed(session.editor, brushes);
  EXPECT_EQ(session.current().world()->numbrushes(), 3);
  ShowNamed(session.editor, session.home.write("a.lin", "1 2 3"));
  EXPECT_TRUE(session.editor.views().leaks.shown());
  EXPECT_EQ(session.editor.documents().count(), 2);

  // What is damaged changes nothing, and says why.
  session.editor.attend();
  session.editor.settings().careful_tools = true;
  for (const char* name : {"bad.mrg", "bad.bru"}) {
    session.answer("ok");
    ShowNamed(session.editor, session.home.write(name, "{ ( 0"));
    EXPECT_EQ(session.current().brushCount(), 4) << name;
  }
  EXPECT_EQ(session.prompts.queued(), 0);
}

TEST(Building, TheLauncherIsFoundInAnyCaseAndNeedsASavedMap) {
  Session session;
  session.editor.settings().bspbuild_directory = session.home.path().string() + "/";
  session.home.write("BSPBuild", "");
  const std::string path = session.open("e1.map");
  session.answer("yes");
  session.run("77");
  EXPECT_EQ(session.editor.documents().status(), "BSPBuild launched on map:  \"e1\"...");
  EXPECT_EQ(session.editor.build().started().back().program, session.home.path().string() + "/bspbuild");
  session.run("CM_FILENEW");
  session.current().modified = true;
  session.answer("yes");
  session.answer("cancel");
  session.run("77");
  EXPECT_EQ(Started(session), 1u);
}

TEST(Building, UnsavedMapsAreAskedForOnce) {
  Session session;
  session.open("e1.map");
  session.run("CM_BUILD_START");
  EXPECT_EQ(Started(session), 1u);  // it is as its file is
  session.run("CM_SELECT_ALL");
  session.run("CM_XUP");
  for (const auto& [answer, started] : {std::pair("cancel", 1u), {"no", 2u}, {"yes", 3u}}) {
    session.answer(answer);
    session.run("CM_BUILD_START");
    EXPECT_EQ(Started(session), started) << answer;
  }
  EXPECT_FALSE(session.current().modified);
}

TEST(Building, LeakFilesBesideTheMapAreNoticed) {
  Session session;
  session.editor.settings().watch_leaks = true;
  session.home.write("small.pts", "1 2 3");
  session.open();
  session.editor.checkDisk();
  EXPECT_FALSE(session.editor.views().leaks.shown());  // an old one
  session.home.write("small.pts", "1 2 3\n4 5 6\n");
  session.editor.checkDisk();
  EXPECT_EQ(session.editor.views().leaks.points().size(), 2u);
}

}  // namespace
}  // namespace velk
