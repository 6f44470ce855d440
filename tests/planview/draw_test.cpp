#include <climits>
#include <numbers>

#include <gtest/gtest.h>

#include "planview/view_painter.h"
#include "support/plan_fixture.h"
#include "support/recording_canvas.h"

namespace velk {
namespace {

using Strokes = std::vector<std::string>;

struct Drawing : test::PlanFixture {
  test::RecordingCanvas draw(int view = 0) {
    test::RecordingCanvas canvas;
    DrawPlanView(canvas, scene, view);
    return canvas;
  }
  Strokes polygons(int view = 0) { return draw(view).starting("polygon"); }

  PlanScene scene{.set = set, .settings = settings, .shown = &m};
};

TEST_F(Drawing, GoesFromTheBackgroundToTheHeaderStrip) {
  settings.show_grid = settings.showeye = settings.show_cameras = settings.show_names = true;
  settings.gridsize = 64;
  m.clip.count = 1;
  m.clip.points[0] = {-40, 40, 0};
  boxIn(addEntity("func_door"), {-10, -10, 0}, {10, 10, 20});
  const vec3 leak[] = {{50, 50, 0}};
  scene.leakPoints = leak;
  const Strokes strokes = draw().strokes;
  size_t at = 0;
  for (const char* next :
       {"fill #000000 0 0 200 200", "polygon #00007f 1 36", "text '-64' #ffff00 10 36 186",
        "text '1' #ffffff 14 56 66", "fill #ffff00 55 55 10 10", "polygon #ff0000 1 55 55 64 64",
        "polygon #007fcc 1 90 90 110 110", "text 'func_door' #ffffff 12 90 113",
        "polygon #800000 1 98 98 101 101", "fill #000000 92 92 15 15", "polygon #ff0000 1 92 92 106 106",
        "polygon #ffff00 1 92 92 106 106", "points #ff0000 150,50", "fill #d4d0c8 0 0 200 18", "text '64'",
        "text 'C(1)'"}) {
    const auto found = std::find_if(strokes.begin() + static_cast<std::ptrdiff_t>(at), strokes.end(),
                                    [&](const std::string& s) { return s.starts_with(next); });
    ASSERT_NE(found, strokes.end()) << next;
    at = static_cast<size_t>(found - strokes.begin()) + 1;
  }
}

TEST_F(Drawing, BrushesShowFacesTurnedToTheViewer) {
  box({-10, -20, 0}, {10, 20, 40});
  EXPECT_EQ(polygons(0), (Strokes{"polygon #ffffff 1 90 80 110 120"}));
  EXPECT_EQ(polygons(1), (Strokes{"polygon #ffffff 1 90 60 110 100"}));
  EXPECT_EQ(polygons(2), (Strokes{"polygon #ffffff 1 80 60 120 100"}));
}

TEST_F(Drawing, PensFollowSelectionOwnerAndGroup) {
  entity& door = addEntity("func_door");
  box({-10, -10, 0}, {10, 10, 20});
  brush& inDoor = boxIn(door, {20, 20, 0}, {30, 30, 20});
  const std::string a = " 1 90 90 110 110", b = " 1 120 70 130 80";
  m.setCurrentEntity(m.world());
  EXPECT_EQ(polygons(), (Strokes{"polygon #ffffff" + a, "polygon #007fcc" + b}));
  m.setCurrentEntity(&door);
  EXPECT_EQ(polygons(), (Strokes{"polygon #7f7f7f" + a, "polygon #ffffff" + b}));

  settings.groupmode = true;
  inDoor.setGroup(m.groups.add("lift"));
  m.groups.setColour(inDoor.group(), {0, 255, 1});
  EXPECT_EQ(polygons(), (Strokes{"polygon #7f7f7f" + a, "polygon #00ff01" + b}));
  m.groups.setVisible(inDoor.group(), false);
  EXPECT_EQ(polygons(), (Strokes{"polygon #7f7f7f" + a}));
  settings.groupmode = false;
  settings.filter.omitWorld = true;
  EXPECT_EQ(polygons(), (Strokes{"polygon #ffffff" + b}));
}

TEST_F(Drawing, TheFirstSelectedBrushShowsAllFacesAndItsCurrentOneOnTop) {
  brush& first = box({-10, -10, 0}, {10, 10, 20});
  brush moved(first);
  moved.translate({50, 0, 0});
  first.select();
  box({20, 20, 0}, {30, 30, 20}).select();
  first.setCurrentFace(4);
  const Strokes strokes = polygons();
  ASSERT_EQ(strokes.size(), 7u);
  EXPECT_EQ(strokes[5], "polygon #ffff00 2 90 90 110 110");
  EXPECT_EQ(strokes[6], "polygon #ff3f00 2 120 70 130 80");

  moved.setCurrentFace(4);
  scene.preview = [&](const brush&) { return &moved; };
  EXPECT_EQ(polygons()[5], "polygon #ffff00 2 140 90 160 110");
  first.select(false);
  EXPECT_EQ(polygons()[0], "polygon #ffffff 1 90 90 110 110");
}

TEST_F(Drawing, BrushesAreClippedToTheViewAndSkippedOutside) {
  box({500, 0, 0}, {600, 10, 20});
  box({-5000, -5000, 0}, {5000, 5000, 20});
  settings.scale = 16;
  EXPECT_EQ(polygons(), (Strokes{"polygon #ffffff 1 -8 -8 208 208"}));  // its border cannot be seen
}

TEST_F(Drawing, AnglesPointFromTheFirstBrushInTopViews) {
  entity& door = addEntity("func_door");
  boxIn(door, {-10, -10, 0}, {10, 10, 20});
  EXPECT_TRUE(draw(0).starting("line").empty());
  const std::pair<const char*, Strokes> cases[] = {
      {"-1", {}}, {"0", {"line #007fcc 1 96 100 - 111 100"}}, {"90", {"line #007fcc 1 100 105 - 100 90"}}};
  for (const auto& [angle, expected] : cases) {
    door.setKey("angle", angle);
    EXPECT_EQ(draw(0).starting("line"), expected) << angle;
    EXPECT_TRUE(draw(1).starting("line").empty());
  }
}

TEST_F(Drawing, CamerasShrinkWithTheScaleAndLoseTheirNumbers) {
  settings.show_cameras = true;
  settings.num_dots = 0;
  settings.box_size = 16;
  for (camera& c : m.cameras) c.yaw = float(std::numbers::pi / 2);  // looking along +x
  EXPECT_EQ(draw().starting("text '5' #ffffff 9 95 95").size(), 1u);
  EXPECT_EQ(draw().starting("line").back(), "line #ffff00 1 95 100 - 111 100");
  EXPECT_EQ(draw().starting("points").size(), 6u);  // one dot each, and the leak points
  EXPECT_EQ(draw().starting("points")[0], "points #ff0000 118,100");
  settings.scale = 0.25f;
  EXPECT_EQ(draw().starting("line").back(), "line #ffff00 1 99 100 - 103 100");
  EXPECT_TRUE(draw().starting("text '5'").empty());
  EXPECT_TRUE(draw(1).starting("line").empty());
}

TEST_F(Drawing, GridDotsStandAtIntersections) {
  settings.show_grid = true;
  settings.grid_style = 1;
  settings.gridsize = 64;
  settings.show_coordinates = false;
  settings.scale = 0.25f;
  for (PlanView& view : set.views) view.clientWidth = 16, view.clientHeight = 24;
  const Strokes dots = draw().starting("points");
  EXPECT_EQ(dots.front(), "points #3f3f3f -8,28 8,28 24,28");
  EXPECT_EQ(dots.back(), "points #ff0000");  // the leak points
  EXPECT_EQ(draw().starting("points #00007f").front(), "points #00007f 8,12");
}

TEST_F(Drawing, GridLabelsStandAtEvenSteps) {
  settings.show_grid = true;
  for (PlanView& view : set.views) view.clientWidth = 800, view.clientHeight = 600;
  for (const auto& [scale, step] : {std::pair{1.0f, 64}, {0.5f, 64}, {0.25f, 128}, {0.0625f, 512}}) {
    settings.scale = scale;
    std::vector<int> along, up;  // labels of vertical lines, of horizontal ones
    for (const std::string& stroke : draw().starting("text '")) {
      if (stroke.find("#ffff00 10") == std::string::npos) continue;
      (stroke.ends_with(" 586") ? along : up).push_back(std::stoi(stroke.substr(6)));
    }
    for (const std::vector<int>& labels : {along, up}) {
      ASSERT_GE(labels.size(), 9u) << scale;
      for (size_t i = 1; i < labels.size(); ++i) EXPECT_EQ(labels[i] - labels[i - 1], step) << scale;
    }
  }
}

TEST_F(Drawing, LeakPathsHaveAStartAndAnEnd) {
  const vec3 leak[] = {{0, 0, 0}, {5000, 0, 0}, {50, 0, 0}};
  scene.leakPoints = leak;
  EXPECT_EQ(draw().starting("polygon #ff0000 1 100 100").size(), 1u);
  EXPECT_EQ(draw().starting("fill #00c800"), Strokes{"fill #00c800 96 96 9 9"});
  EXPECT_EQ(draw().starting("fill #ff0000"), Strokes{"fill #ff0000 146 96 9 9"});
}

TEST(ClipPolygon, CutsAtEveryBorderWithoutOverflow) {
  const ClipRect rect{0, 0, 100, 100};
  Pixel corners[kMaxClipped] = {{INT_MIN, 50}, {50, INT_MIN}, {INT_MAX, 50}, {50, INT_MAX}};
  EXPECT_EQ(ClipPolygon(corners, 4, rect), 4);
  Pixel corner[kMaxClipped] = {{-50, 20}, {20, 20}, {20, 80}};
  ASSERT_EQ(ClipPolygon(corner, 3, rect), 4);
  EXPECT_EQ(corner[0], (Pixel{0, 20}));
  EXPECT_EQ(corner[3], (Pixel{0, 62}));
  Pixel outside[kMaxClipped] = {{-50, 20}, {-20, 20}, {-20, 80}};
  EXPECT_EQ(ClipPolygon(outside, 3, rect), 0);
}

}  // namespace
}  // namespace velk
