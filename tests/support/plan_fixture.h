// A map shown in views of 200 x 200 pixels, without grid and cameras.
#pragma once

#include <gtest/gtest.h>

#include "mouse/drag.h"
#include "planview/draw_plan_view.h"
#include "support/builders.h"
#include "support/declining_prompts.h"

namespace velk::test {

struct PlanFixture : testing::Test, TestMap {
  PlanFixture() {
    for (PlanView& view : set.views) view.clientWidth = view.clientHeight = 200;
    settings.show_grid = settings.show_cameras = false;
  }

  MouseContext context(int view = 0) { return {m, settings, set, prompts, view}; }

  PlanViewSet set;
  DecliningPrompts prompts;
};

}  // namespace velk::test
