#include <vector>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

typedef test::MapTest DispatcherTest, MethodTest;

using Dispatcher = void (map::*)(const BrushMethod&);

// The brushes that a dispatcher visits, by entity and brush index, as "entity.brush ".
std::string Visited(map& m, Dispatcher dispatch) {
  std::string visited;
  (m.*dispatch)(BrushMethod::carriedOut(Method::Draw, [&](brush& b) {
    visited += std::to_string(m.indexOf(b.owner)) + "." + std::to_string(b.owner->indexOf(&b)) + " ";
  }));
  return visited;
}

TEST_F(DispatcherTest, VisitsItsClassFromTheLastToTheFirst) {
  entity& door = addEntity("func_door");
  for (int i = 0; i < 3; ++i) cube(i);
  for (int i = 0; i < 2; ++i) boxIn(door, {0, 0, 0}, {8, 8, 8});
  world().at(1)->select(true);
  door.at(0)->select(true);
  m.groups.setVisible(m.groups.add("hidden"), false);
  world().at(0)->setGroup(1);
  door.at(0)->setGroup(300);
  world().at(2)->setGroup(-1);

  const struct {
    Dispatcher dispatch;
    const char* name;
    const char* all;
    const char* inGroupMode;
  } cases[] = {{&map::MUSPerform, "MUSPerform", "1.1 0.2 0.0 ", "1.1 0.2 "},
               {&map::MSPerform, "MSPerform", "1.0 0.1 ", "0.1 "},
               {&map::MAPerform, "MAPerform", "1.1 1.0 0.2 0.1 0.0 ", "1.1 0.2 0.1 "},
               {&map::MGPerform, "MGPerform", "1.1 1.0 0.2 0.1 0.0 ", "1.1 1.0 0.2 0.1 0.0 "}};
  for (const auto& c : cases) {
    for (const int unknown : {-1, 16}) {
      EXPECT_FATAL((m.*c.dispatch)(Method(unknown)), std::string(c.name) + " Unknown method...");
    }
    m.modified = false;
    settings.groupmode = false;
    EXPECT_EQ(Visited(m, c.dispatch), c.all);
    EXPECT_TRUE(m.modified);
    settings.groupmode = true;
    EXPECT_EQ(Visited(m, c.dispatch), c.inGroupMode);
  }
}

TEST_F(MethodTest, DeleteTakesEmptiedEntitiesToo) {
  for (int i = 0; i < 3; ++i) cube(i).select(true);
  for (int i = 0; i < 4; ++i) addPoint("light", {0, 0, 0}).at(0)->select(i != 1);
  m.MSPerform(Method::Delete);
  EXPECT_EQ(summary(), "worldspawn  light -");
}

TEST_F(MethodTest, MoveToTargetReachesEverySelectedBrush) {
  entity& from = addEntity("func_door");
  entity& target = addEntity("func_wall");
  for (int i = 0; i < 3; ++i) cube(i).select(true);
  for (entity* owner : {&from, &target}) boxIn(*owner, {0, 0, 0}, {8, 8, 8}).select(true);
  m.MSPerform(BrushMethod::moveTo(target));
  EXPECT_EQ(summary(), "worldspawn  func_wall *****") << "the door is empty and gone";
  m.MSPerform(BrushMethod::moveTo(world()));
  EXPECT_EQ(summary(), "worldspawn *****");
}

TEST_F(MethodTest, SelectInsideOrTouchingABox) {
  const struct {
    vec3 mins, maxs;
    bool inside, touching;
  } cases[] = {{{0, 0, 0}, {64, 64, 64}, true, true},
               {{8, 8, 8}, {16, 16, 16}, true, true},
               {{8, 8, 8}, {65, 16, 16}, false, true},
               {{64, 0, 0}, {80, 16, 16}, false, false},
               {{-8, -8, -8}, {72, 72, 72}, false, true}};
  for (const auto& c : cases) {
    TestMap t;
    brush& b = t.box(c.mins, c.maxs);
    t.m.MAPerform(BrushMethod::selectInside({0, 0, 0}, {64, 64, 64}));
    EXPECT_EQ(b.selected(), c.inside);
    t.m.MAPerform(Method::Deselect);
    t.m.MAPerform(BrushMethod::selectTouching({0, 0, 0}, {64, 64, 64}));
    EXPECT_EQ(b.selected(), c.touching);
  }
}

}  // namespace
}  // namespace velk
