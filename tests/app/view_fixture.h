// A map in plan views of 400 by 300 pixels, where a pixel is a unit and (0, 0) is in the middle.
#pragma once

#include <string>

#include "support/session.h"

namespace velk::test {

struct ViewFixture : testing::Test {
  // bindings: of velkmouse.ini.
  explicit ViewFixture(const std::string& bindings) {
    session.home.write("velkmouse.ini", bindings);
    session.open();
    settings().gridsize = 16;
    settings().hover_pick = true;
    settings().show_cameras = false;
    for (int view = 0; view < kPlanViews; ++view) session.editor.views().resize(view, 400, 300);
    session.editor.views().plans.planCenter = {};
    session.current().setCurrentEntity(session.current().world());
  }

  Settings& settings() { return session.editor.settings(); }
  ViewInput& input() { return session.editor.input(); }

  Session session;
};

}  // namespace velk::test
