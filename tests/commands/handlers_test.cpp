// Commands whose effect is not told by a script's output.
#include "commands/dispatch.h"
#include "commands/files/named_files.h"
#include "documents/opening.h"
#include "mapfile/map_writer.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;

TEST(Handlers, OmitWorksWithoutAMapAndOnEveryMap) {
  Session session;
  FindCommand("CM_OMIT_LIGHTS")->run.plain(session.editor);
  EXPECT_TRUE(session.editor.settings().filter.omitLights);
  EXPECT_EQ(session.editor.documents().status(), "Welcome to Velk...");
  session.run("CM_FILENEW");
  session.run("CM_OMIT_LIGHTS");
  session.open("a.map");
  session.open("b.map");
  session.run("CM_OMIT_LIGHTS");
  for (int i = 1; i < 3; ++i) {
    const map& m = session.editor.documents().at(i)->model;
    EXPECT_FALSE(IsShown(m, *m.at(1)->at(0))) << i;
    EXPECT_TRUE(IsShown(m, *m.world()->at(0))) << i;
  }
}

TEST(Handlers, HitListCommands) {
  Session session;
  session.open();
  map& m = session.current();
  brush& first = *m.world()->at(0);
  brush& second = *m.world()->at(1);
  first.select(true);
  m.hits.add(first);
  m.hits.add(second);
  session.run("CM_HIT_UP");
  EXPECT_TRUE(first.selected() && second.selected());
  EXPECT_EQ(m.hits.current, 1);
  session.run("CM_HIT_UP");
  EXPECT_TRUE(first.selected() && !second.selected());
  session.run("CM_HIT_DOWN");
  EXPECT_EQ(m.hits.current, 1);
  session.run("CM_HIT_1");
  EXPECT_FALSE(second.selected());
  session.run("CM_HIT_7");
  EXPECT_EQ(session.editor.documents().status(), "Selecting hit brush # 7...");
  session.run("CM_HIT_UP");
  EXPECT_EQ(m.hits.current, 7) << "out of range: nothing to cycle from";
  session.run("228");
  EXPECT_TRUE(first.selected() && second.selected());
}

TEST(Handlers, PlanViewsGoToTheCameraOfTheMapThatIsShown) {
  Session session;
  Editor& editor = session.editor;
  const std::string start = "{\n\"classname\" \"info_player_start\"\n\"origin\" \"32 48 96\"\n}\n";
  OpenNamed(editor, session.home.write("start.map", test::SmallMapText() + start));
  EXPECT_TRUE(VecEqual(editor.views().plans.planCenter, {32, 48, 96}));
  session.open();
  EXPECT_TRUE(VecEqual(editor.views().plans.planCenter, {0, 0, 0}));
  editor.settings().lock_cameras = true;
  editor.door().show(SwitchTo(editor.documents(), 0));
  EXPECT_TRUE(VecEqual(editor.views().plans.planCenter, {0, 0, 0}));
  editor.settings().lock_cameras = false;
  editor.door().show(CloseDocument(editor.documents(), 1));
  EXPECT_TRUE(VecEqual(editor.views().plans.planCenter, {32, 48, 96}));
}

TEST(Handlers, WindowQualityHasTheDevicesPixels) {
  Session session;
  Editor& editor = session.editor;
  editor.views().cameraWidth = 301;
  editor.views().cameraHeight = 200;
  editor.views().deviceScale = 1.5;
  session.run("CM_QUALITY_WINDOW");
  EXPECT_EQ(editor.views().renderSize(), (RenderSize{452, 300}));
  session.run("192");
  EXPECT_EQ(editor.views().renderSize(), (RenderSize{80, 60}));
}

TEST(Handlers, RedrawsOnlyWhatChanged) {
  Session session;
  session.open();
  test::RecordingObserver& seen = session.observer;
  seen.cameraRedraws = seen.planRedraws = 0;
  session.run("CM_TOGGLE_OUTLINE");
  EXPECT_EQ(seen.cameraRedraws, 1);
  EXPECT_EQ(seen.planRedraws, 0);
  session.run("CM_GRID_UP");
  EXPECT_EQ(seen.cameraRedraws, 1);
  EXPECT_EQ(seen.planRedraws, 1);
}

TEST(Undo, CopiesWithoutRoomLeaveTheMapAsItWas) {
  Session session;
  session.editor.attend();
  session.open();
  const auto doubled = [&] { return session.run("CM_SELECT_ALL") && session.run("CM_EDITCLONE"); };
  for (int i = 0; i < 9; ++i) ASSERT_TRUE(doubled());
  const std::string before = MapFileText(session.current(), {});
  session.answer("ok");
  doubled();
  EXPECT_EQ(session.prompts.log().back(),
            "message \"Velk - Cannot Copy\" \"The map has no room for the "
            "copies.\\n\\nmap->addobject, too many brushes on entity...\" ok");
  EXPECT_EQ(MapFileText(session.current(), {}), before);
  EXPECT_EQ(session.current().totalSelected(), session.current().brushCount());
}

TEST(Undo, CommandsTakeTheirOwnCopiesAboveOneLevel) {
  Session session;
  session.open();
  const Command& undo = *FindCommand(11844);
  session.editor.settings().undo_levels = 5;
  session.run("CM_SELECT_ALL");
  EXPECT_FALSE(IsEnabled(session.editor, undo));
  EXPECT_EQ(LabelOf(session.editor, undo), "&Undo...");
  session.run("CM_DELETE");
  EXPECT_EQ(LabelOf(session.editor, undo), "&Undo Delete...");
  EXPECT_EQ(session.current().brushCount(), 0);
  session.run("11844");
  EXPECT_EQ(session.editor.documents().status(), "Undo...");
  EXPECT_EQ(session.current().brushCount(), 3);
  session.run("CM_REDO");
  EXPECT_EQ(session.current().brushCount(), 0);

  session.editor.settings().undo_levels = 1;
  session.run("11844");
  session.run("CM_DELETE");
  EXPECT_FALSE(IsEnabled(session.editor, undo));
}

}  // namespace
}  // namespace velk
