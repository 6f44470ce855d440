#include <gtest/gtest.h>

#include "support/plan_fixture.h"

namespace velk {
namespace {

struct Pointer : test::PlanFixture {
  Pointer() { settings.wheel_zoom = settings.middle_drag = true; }

  static PointerEvent at(int x, int y, MouseButton button = MouseButton::Left) { return {{x, y}, button}; }

  PlanPointer pointer;
};

TEST_F(Pointer, WheelZoomKeepsThePointUnderTheCursor) {
  set.planCenter = {1000, -50, 7};
  for (int view = 0; view < kPlanViews; ++view) {
    for (int steps : {1, -1, -3, 20, -20, 4}) {
      const ViewPoint before = context(view).projection().screenToWorld({170, 40});
      EXPECT_TRUE(pointer.wheel(context(view), at(170, 40), steps).redrawPlanViews);
      const ViewPoint after = context(view).projection().screenToWorld({170, 40});
      EXPECT_NEAR(after.u, before.u, 1e-3);
      EXPECT_NEAR(after.v, before.v, 1e-3);
    }
  }
  settings.scale = 16;
  EXPECT_EQ(pointer.wheel(context(), at(170, 40), 1).status, "Scale increased...");
  EXPECT_EQ(settings.scale, 16);
  settings.wheel_zoom = false;
  EXPECT_FALSE(pointer.wheel(context(), at(170, 40), -1).handled);
  EXPECT_EQ(settings.scale, 16);
}

TEST_F(Pointer, MiddleButtonDragsTheView) {
  EXPECT_TRUE(pointer.press(context(2), at(50, 60, MouseButton::Middle)).capture);
  EXPECT_NE(set.views[2].dragOp, 0);
  EXPECT_TRUE(pointer.move(context(2), at(60, 80)).redrawPlanViews);
  EXPECT_FALSE(pointer.move(context(2), at(60, 80)).redrawPlanViews);
  EXPECT_FLOAT_EQ(set.planCenter.y, -10);  // the view looks along x
  EXPECT_FLOAT_EQ(set.planCenter.z, 20);
  EXPECT_TRUE(pointer.release(context(2), at(60, 80, MouseButton::Middle)).handled);
  EXPECT_EQ(set.views[2].dragOp, 0);
  EXPECT_FALSE(pointer.release(context(2), at(60, 80)).handled);
  settings.middle_drag = false;
  EXPECT_FALSE(pointer.press(context(2), at(50, 60, MouseButton::Middle)).handled);
}

TEST_F(Pointer, OperationsAreTriedInOrderBeforeTheView) {
  std::string tried;
  for (const char letter : {'a', 'b', 'c'}) {
    pointer.operations.push_back([&tried, letter](const PlanPointerContext&, const PointerEvent& event) {
      tried += letter;
      PressResult result;
      result.claimed = letter == 'b' && event.shift;
      result.outcome.status = tried;
      return result;
    });
  }
  PointerEvent event = at(50, 60, MouseButton::Middle);
  event.shift = true;
  EXPECT_EQ(pointer.press(context(), event).status, "ab");
  EXPECT_FALSE(pointer.dragging());
  event.shift = false;
  EXPECT_TRUE(pointer.press(context(), event).capture);
  pointer.press(context(), event);  // a second press during the drag
  EXPECT_EQ(tried, "ababc");
  pointer.release(context(), event);
  event.at.y = 3;  // the header strip
  EXPECT_FALSE(pointer.press(context(), event).handled);
  EXPECT_FALSE(pointer.press({set, settings, nullptr, 0}, at(50, 60, MouseButton::Middle)).handled);
}

TEST_F(Pointer, EveryMoveUpdatesTheCoordinateField) {
  EXPECT_TRUE(pointer.move(context(), at(113, 100)).redrawStrip);
  EXPECT_EQ(set.views[0].coordinateText, "(13,0)");
  EXPECT_FALSE(pointer.move(context(), at(113, 100)).redrawStrip);
  settings.show_grid = true;
  pointer.move(context(), at(113, 112));
  EXPECT_EQ(set.views[0].coordinateText, "(16,-16)");
}

}  // namespace
}  // namespace velk
