// Presses, drags and clicks as they reach the tools.
#include "app/view_input.h"

#include "view_fixture.h"

namespace velk {
namespace {

struct ViewInputTest : test::ViewFixture {
  ViewInputTest() : ViewFixture("1 1\n{ Test\n{ FACEDRAG;BRUSHDRAG LEFT }\n}\n") {
    settings().undo_levels = 1;
    settings().click_selects = settings().click_menu = true;
  }

  // From x 0 to 64, and so is y.
  brush& wall() { return *session.current().world()->at(0); }
  void begin(int fromX, int toX) {
    input().press(0, {{fromX, 100}});
    input().move(0, {{toX, 100}});
  }
  void click(MouseButton button = MouseButton::Left) {
    input().press(0, {{232, 118}, button});
    input().release(0, {{232, 118}, button});
  }
};

TEST_F(ViewInputTest, ACancelledDragLeavesTheClassicLevelOfTheOneBefore) {
  wall().select();
  begin(300, 332);
  input().release(0, {{332, 100}});
  EXPECT_EQ(wall().maxs.x, 96);
  begin(310, 342);
  EXPECT_EQ(wall().maxs.x, 128);
  input().cancel();
  EXPECT_EQ(wall().maxs.x, 96);
  ASSERT_TRUE(session.run("CM_UNDO"));
  EXPECT_EQ(wall().maxs.x, 64);
  EXPECT_EQ(session.current().numentities(), 2);
  EXPECT_EQ(session.current().brushCount(), 3);
}

TEST_F(ViewInputTest, OnlyTheButtonOfThePressEndsADrag) {
  wall().select();
  begin(300, 332);
  input().release(0, {{332, 100}, MouseButton::Right});
  EXPECT_TRUE(input().pointer().drag());
  input().release(0, {{332, 100}});
  EXPECT_FALSE(input().pointer().drag());
}

TEST_F(ViewInputTest, WhatAFilterHidesIsNotDragged) {
  wall().select();
  settings().filter.omitWorld = true;
  for (const int x : {216, 300}) {
    begin(x, x + 32);
    EXPECT_FALSE(input().pointer().drag()) << x;
    input().release(0, {{x + 32, 100}});
  }
}

TEST_F(ViewInputTest, AfterAClickTheNextOneIsShownAndHitsLeaveNothingBehind) {
  brush* light = session.current().at(1)->at(0);
  session.current().world()->at(1)->select();
  click();
  EXPECT_TRUE(light->selected());
  input().move(0, {{232, 118}});
  EXPECT_EQ(input().hovered(0).hit, &wall());
  ASSERT_TRUE(session.run("CM_HIT_UP"));
  EXPECT_EQ(session.current().totalSelected(), 1);
  EXPECT_TRUE(wall().selected());
  session.run("CM_DESELECT_ALL");
  session.current().hits.clear();
  click(MouseButton::Right);
  EXPECT_EQ(session.current().hits.count, 2);
  EXPECT_TRUE(light->selected());
}

}  // namespace
}  // namespace velk
