#include <algorithm>

#include "mouse/operations.h"
#include "mouse/pointer.h"
#include "support/plan_fixture.h"

namespace velk {
namespace {

struct PlanToolsTest : test::PlanFixture {
  // Presses at one point of the view, in world units, and releases at another.
  void drag(const char* names, int view, ViewPoint from, ViewPoint to) {
    bindings = ParseMouseBindings("1 1 { T\n{ " + std::string(names) + " LEFT }\n}");
    pointer.tools = {[&](const MouseContext& c, const PointerEvent& e) {
      return StartBound(bindings, PlanOperations(), c, e);
    }};
    const auto at = [](ViewPoint p) { return PointerEvent{{int(100 + p.u), int(100 - p.v)}}; };
    pointer.press(context(view), at(from));
    pointer.release(context(view), at(to));
  }

  MouseBindings bindings;
  Pointer pointer;
};

TEST_F(PlanToolsTest, ChangeTheSelectedBrushInEveryView) {
  const struct {
    const char* names;
    ViewPoint from;
    ViewPoint to;
    const char* bounds[kPlanViews];  // XY, XZ, YZ
  } cases[] = {
      {"FACEDRAG;BRUSHDRAG",
       {16, 16},
       {33, 7},
       {"16..48 -8..24 0..32", "16..48 0..32 -8..24", "0..32 16..48 -8..24"}},
      {"FACEDRAG;BRUSHDRAG",
       {40, 40},
       {48, 57},
       {"0..40 0..48 0..32", "0..40 0..32 0..48", "0..32 0..40 0..48"}},
      {"NOSUCHOP;BRUSHDRAG",
       {16, 16},
       {33, 7},
       {"0..32 0..32 0..32", "0..32 0..32 0..32", "0..32 0..32 0..32"}},
      {"facedrag", {40, 16}, {33, 16}, {"0..24 0..32 0..32", "0..24 0..32 0..32", "0..32 0..24 0..32"}},
  };
  for (const auto& c : cases) {
    for (int view = 0; view < kPlanViews; ++view) {
      for (int side = 0; side < 2; ++side) {
        brush& b = selectedBox({0, 0, 0}, {32, 32, 32});
        drag(c.names, view, c.from, c.to);
        EXPECT_EQ(test::Bounds(b), c.bounds[view]) << c.names << " in view " << view;
        DestroyBrush(b);
        set.views[size_t(view)].flip();
      }
    }
  }
}

// A box whose right side leans outwards with height: by the letter that side looks at a press inside.
TEST_F(PlanToolsTest, WithCareAPressInsideALeaningBrushMovesIt) {
  settings.face_drag_percent = 0.5f;
  for (const bool careful : {false, true}) {
    settings.careful_tools = careful;
    brush& b = selectedBox({0, 0, 0}, {32, 32, 32});
    face& side =
        *std::ranges::find_if(b.editFaces(), [](const face& f) { return f.facePlane.normal.x > 0.9; });
    for (vec3& p : side.planepts) p.x -= p.z / 4;
    b.buildWindings();
    drag("FACEDRAG;BRUSHDRAG", 0, {16, 16}, {24, 16});
    EXPECT_EQ(test::Bounds(b), careful ? "8..40 0..32 0..32" : "0..40 0..32 0..32");
    DestroyBrush(b);
  }
}

TEST_F(PlanToolsTest, BrushesDraggedToNothingGo) {
  selectedBox({0, 0, 0}, {32, 32, 32});
  drag("FACEDRAG", 0, {40, 16}, {-40, 16});
  EXPECT_EQ(m.brushCount(), 0);
  drag("NEWBRUSH", 0, {0, 0}, {0, 40});
  EXPECT_EQ(m.brushCount(), 0);
}

}  // namespace
}  // namespace velk
