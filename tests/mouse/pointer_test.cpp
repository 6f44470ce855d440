#include "mouse/pointer.h"

#include <gtest/gtest.h>

#include "mouse/view_drag.h"
#include "support/plan_fixture.h"

namespace velk {
namespace {

struct PointerTest : test::PlanFixture {
  PointerTest() {
    settings.wheel_zoom = settings.middle_drag = true;
    pointer.tools.emplace_back(StartViewDrag);
  }

  static PointerEvent at(int x, int y, MouseButton button = MouseButton::Left) { return {{x, y}, button}; }

  Pointer pointer;
};

TEST_F(PointerTest, WheelZoomKeepsThePointUnderTheCursor) {
  set.planCenter = {1000, -50, 7};
  for (int view = 0; view < kPlanViews; ++view) {
    for (int steps : {1, -1, -3, 20, -20, 4}) {
      const ViewPoint before = context(view).projection().screenToWorld({170, 40});
      EXPECT_EQ(ZoomAt(context(view), {170, 40}, steps).redraw, Redraw::Plans);
      const ViewPoint after = context(view).projection().screenToWorld({170, 40});
      EXPECT_NEAR(after.u, before.u, 1e-3);
      EXPECT_NEAR(after.v, before.v, 1e-3);
    }
  }
  settings.scale = 16;
  EXPECT_EQ(ZoomAt(context(), {170, 40}, 1).status, "Scale increased...");
  EXPECT_EQ(settings.scale, 16);
  settings.wheel_zoom = false;
  EXPECT_EQ(ZoomAt(context(), {170, 40}, -1).redraw, Redraw::None);
}

TEST_F(PointerTest, MiddleButtonDragsTheViewAndCanBeCancelled) {
  pointer.press(context(2), at(50, 60, MouseButton::Middle));
  ASSERT_TRUE(pointer.drag());
  EXPECT_NE(set.views[2].dragOp, 0);
  EXPECT_EQ(pointer.move(context(2), at(60, 80)).redraw, Redraw::Plans);
  EXPECT_EQ(pointer.move(context(2), at(60, 80)).redraw, Redraw::None);
  EXPECT_FLOAT_EQ(set.planCenter.y, -10);  // the view looks along x
  EXPECT_FLOAT_EQ(set.planCenter.z, 20);
  pointer.release(context(2), at(60, 80, MouseButton::Middle));
  EXPECT_FALSE(pointer.drag());
  EXPECT_EQ(set.views[2].dragOp, 0);
  pointer.press(context(2), at(50, 60, MouseButton::Middle));
  pointer.move(context(2), at(90, 10));
  pointer.cancel(context(2));
  EXPECT_FLOAT_EQ(set.planCenter.y, -10);
  settings.middle_drag = false;
  pointer.press(context(2), at(50, 60, MouseButton::Middle));
  EXPECT_FALSE(pointer.drag());
}

TEST_F(PointerTest, ToolsAreTriedInOrder) {
  std::string tried;
  pointer.tools.clear();
  for (const char letter : {'a', 'b', 'c'}) {
    pointer.tools.emplace_back([&tried, letter](const MouseContext&, const PointerEvent& event) {
      tried += letter;
      ToolStart start;
      start.claimed = letter == 'b' && event.shift;
      start.outcome.status = tried;
      return start;
    });
  }
  pointer.tools.emplace_back(StartViewDrag);
  PointerEvent event = at(50, 60, MouseButton::Middle);
  event.shift = true;
  EXPECT_EQ(pointer.press(context(), event).status, "ab");
  EXPECT_FALSE(pointer.drag());
  event.shift = false;
  pointer.press(context(), event);
  EXPECT_TRUE(pointer.drag());
  pointer.press(context(), event);  // a second press during the drag
  EXPECT_EQ(tried, "ababc");
}

}  // namespace
}  // namespace velk
