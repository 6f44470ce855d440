// A map shown in views of 200 x 200 pixels, without grid and cameras.
#pragma once

#include <gtest/gtest.h>

#include "mouse/pointer.h"
#include "planview/draw_plan_view.h"
#include "support/builders.h"

namespace velk::test {

struct PlanFixture : testing::Test, TestMap {
  PlanFixture() {
    for (PlanView& view : set.views) view.clientWidth = view.clientHeight = 200;
    settings.show_grid = settings.show_cameras = false;
  }

  PlanPointerContext context(int view = 0) { return {set, settings, &m, view}; }

  PlanViewSet set;
};

}  // namespace velk::test
