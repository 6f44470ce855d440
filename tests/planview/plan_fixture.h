// A map with a world, shown in views of 200 x 200 pixels, and what it takes to add to it.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "planview/drawplanview.h"
#include "planview/pointer.h"

namespace velk::test {

struct PlanFixture : testing::Test {
  PlanFixture() {
    for (PlanView& view : set.views) view.clientWidth = view.clientHeight = 200;
    EntityClass door;
    door.name = "door";
    door.fixedSize = false;
    door.color = {1, 0.5f, 0};
    classes.insert(door);
    settings.show_grid = settings.show_cameras = false;
    add("worldspawn");
  }

  entity& add(const std::string& classname) {
    entity& e = m.addobject(std::make_unique<entity>(m));
    e.setKey("classname", classname);
    e.isModel = true;
    return e;
  }
  brush& box(entity& owner, const vec3& mins, const vec3& maxs) {
    auto b = std::make_unique<brush>();
    b->initBox(owner, mins, maxs, {});
    return owner.addobject(std::move(b));
  }
  PlanPointerContext context(int view = 0) { return {set, settings, &m, view}; }

  Settings settings;
  EntityClassList classes;
  map m{settings, classes};
  PlanViewSet set;
};

}  // namespace velk::test
