// What the views show before a press, and over their pictures.
#include <tuple>

#include "app/view_overlay.h"
#include "support/recording_canvas.h"
#include "view_fixture.h"

namespace velk {
namespace {

struct CursorTest : test::ViewFixture {
  CursorTest()
      : ViewFixture(
            "1 1\n{ Test\n{ CLIPPOINTDRAG;CAMERADRAG;BRUSHDRAG;FACEDRAG;NEWBRUSH LEFT }\n"
            "{ VERTEXDRAG LEFT CTRL }\n{ ROTATE LEFT ALT }\n{ SELECT LEFT SHIFT }\n}\n") {
    settings().tool_cursors = settings().show_sizes = true;
    settings().drag_vertex = 1;
  }

  std::string cursorAt(int x, int y, bool shift = false, bool ctrl = false) {
    PointerEvent event;
    event.at = {x, y};
    event.shift = shift;
    event.ctrl = ctrl;
    input().move(0, event);
    return CursorName(input().cursor(0));
  }
  std::vector<std::string> overlay(int view) {
    test::RecordingCanvas canvas;
    DrawViewOverlay(canvas, session.editor, view, session.editor.input().hovered(view));
    return canvas.strokes;
  }
};

TEST_F(CursorTest, ShapesTellWhatAPressWouldBegin) {
  EXPECT_EQ(cursorAt(216, 140), "draw");
  EXPECT_EQ(cursorAt(216, 10), "idle");  // over the strip
  brush& wall = *session.current().world()->at(0);
  wall.select();
  EXPECT_EQ(cursorAt(216, 140), "move");
  EXPECT_EQ(cursorAt(280, 100), "resize");
  EXPECT_EQ(cursorAt(216, 140, false, true), "refused");
  EXPECT_EQ(cursorAt(201, 149, false, true), "vertex");
  EXPECT_EQ(cursorAt(201, 149, true, true), "turn");
  EXPECT_EQ(cursorAt(216, 140, true), "idle");  // a click selects
  session.current().clip.count = 1;
  session.current().clip.points[0] = {16, 10, 0};
  EXPECT_EQ(cursorAt(216, 140), "clip");
  session.current().clip.count = 0;
  session.current().world()->at(1)->select();
  EXPECT_EQ(cursorAt(280, 60), "refused");  // two cannot be resized at once
  settings().tool_cursors = false;
  EXPECT_EQ(cursorAt(216, 140), "idle");
}

TEST_F(CursorTest, WhatAClickWouldTakeIsShownBeforeIt) {
  cursorAt(250, 100);  // over the wall alone
  EXPECT_EQ(input().hovered(0).hit, session.current().world()->at(0));
  EXPECT_FALSE(overlay(0).empty());
  cursorAt(232, 118);  // the light comes first
  EXPECT_EQ(input().hovered(0).hit, session.current().at(1)->at(0));
  cursorAt(20, 280);
  EXPECT_EQ(input().hovered(0).hit, nullptr);
  EXPECT_TRUE(overlay(0).empty());
  cursorAt(250, 100);
  input().left(0);
  EXPECT_EQ(input().hovered(0).hit, nullptr);
}

TEST_F(CursorTest, SizesAndOffsetsStandBesideWhatIsDragged) {
  session.current().world()->at(0)->select();
  PointerEvent event;
  for (const auto& [from, to, text] : {std::tuple{Pixel{216, 140}, Pixel{248, 124}, "'+32 +16 +0'"},
                                       std::tuple{Pixel{310, 100}, Pixel{342, 100}, "'96 x 64 x 64'"}}) {
    event.at = from;
    input().press(0, event);
    event.at = to;
    input().move(0, event);
    const std::vector<std::string> shown = overlay(0);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_TRUE(shown[0].starts_with(std::string("text ") + text)) << shown[0];
    EXPECT_TRUE(overlay(1).empty());
    input().release(0, event);
  }
}

// The clipper's preview and a turn's copies are shown in every view.
TEST_F(CursorTest, StandInsAreShownInTheCameraViewToo) {
  brush& wall = *session.current().world()->at(0);
  wall.select();
  session.current().clip = {2, {{32, 0, 0}, {32, 64, 0}, {}}, 0};
  const RenderScene scene = session.editor.views().cameraScene();
  ASSERT_TRUE(scene.preview);
  EXPECT_EQ(scene.preview(wall)->mins.x, 32);
  session.current().clip.count = 0;
  EXPECT_FALSE(session.editor.views().cameraScene().preview);

  PointerEvent event;
  event.at = {201, 149};
  event.shift = event.ctrl = true;
  input().press(0, event);
  ASSERT_TRUE(input().pointer().drag());
  const int redraws = session.observer.cameraRedraws;
  event.at = {260, 60};
  input().move(0, event);
  EXPECT_GT(session.observer.cameraRedraws, redraws);
  EXPECT_NE(session.editor.views().cameraScene().preview(wall), &wall);
  input().cancel();
}

}  // namespace
}  // namespace velk
