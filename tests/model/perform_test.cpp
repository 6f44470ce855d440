#include <vector>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

using Dispatcher = void (map::*)(Method);

// The brushes that a dispatcher visits, by entity and brush index, as "entity.brush ".
std::string Visited(map& m, Dispatcher dispatch) {
  std::string visited;
  m.perform.draw = [&](brush& b) {
    visited += std::to_string(m.indexOf(b.owner)) + "." + std::to_string(b.owner->indexOf(&b)) + " ";
  };
  (m.*dispatch)(Method::Draw);
  return visited;
}

TEST(DispatcherTest, VisitsItsClassFromTheLastToTheFirst) {
  TestMap t;
  entity& door = t.addEntity("func_door");
  for (int i = 0; i < 3; ++i) t.cube(i);
  for (int i = 0; i < 2; ++i) t.boxIn(door, {0, 0, 0}, {8, 8, 8});
  t.world().at(1)->selected = true;
  door.at(0)->selected = true;
  t.m.groups.setVisible(t.m.groups.add("hidden"), false);
  t.world().at(0)->group = 1;
  door.at(0)->group = 300;
  t.world().at(2)->group = -1;

  const struct {
    Dispatcher dispatch;
    const char* all;
    const char* inGroupMode;
  } cases[] = {{&map::MUSPerform, "1.1 0.2 0.0 ", "1.1 0.2 "},
               {&map::MSPerform, "1.0 0.1 ", "0.1 "},
               {&map::MAPerform, "1.1 1.0 0.2 0.1 0.0 ", "1.1 0.2 0.1 "},
               {&map::MGPerform, "1.1 1.0 0.2 0.1 0.0 ", "1.1 1.0 0.2 0.1 0.0 "}};
  for (const auto& c : cases) {
    t.m.modified = false;
    t.settings.groupmode = false;
    EXPECT_EQ(Visited(t.m, c.dispatch), c.all);
    EXPECT_TRUE(t.m.modified);
    t.settings.groupmode = true;
    EXPECT_EQ(Visited(t.m, c.dispatch), c.inGroupMode);
  }
}

TEST(DispatcherTest, RefusesUnknownMethods) {
  TestMap t;
  for (const int number : {-1, 16}) {
    const Method method = static_cast<Method>(number);
    EXPECT_FATAL(t.m.MUSPerform(method), "MUSPerform Unknown method...");
    EXPECT_FATAL(t.m.MSPerform(method), "MSPerform Unknown method...");
    EXPECT_FATAL(t.m.MAPerform(method), "MAPerform Unknown method...");
    EXPECT_FATAL(t.m.MGPerform(method), "MGPerform Unknown method...");
  }
}

TEST(DispatcherTest, AFatalMethodLeavesTheMapWhole) {
  TestMap t;
  for (int i = 0; i < 3; ++i) t.cube(i);
  t.m.perform.cut = [](brush& b) { b.setTexturedef({}, 99); };
  EXPECT_FATAL(t.m.MAPerform(Method::Cut), "setTexturedef:forFace: bad face number 99");
  EXPECT_EQ(t.m.brushCount(), 3);
}

TEST(MethodTest, MethodsWithoutACarrierDoNothing) {
  TestMap t;
  t.box({0, 0, 0}, {0, 0, 0});
  for (const Method method : {Method::Cut, Method::FloorSearch, Method::Draw, Method::Split, Method::Pick}) {
    t.m.MAPerform(method);
  }
  EXPECT_EQ(t.m.brushCount(), 1);
}

TEST(MethodTest, CutAndSplitDestroyWhatIsLeftInvalid) {
  for (const Method method : {Method::Cut, Method::Split}) {
    TestMap t;
    entity& door = t.addEntity("func_door");
    t.boxIn(door, {0, 0, 0}, {8, 8, 8});
    for (int i = 0; i < 3; ++i) t.cube(i);
    t.m.perform.cut = t.m.perform.split = [](brush& b) { b.invalid = b.mins.x < 16; };
    t.m.MAPerform(method);
    EXPECT_EQ(t.m.numentities(), 1) << "the door went with its brush";
    EXPECT_EQ(t.m.brushCount(), 2);
  }
}

TEST(MethodTest, DeleteTakesEmptiedEntitiesToo) {
  TestMap t;
  for (int i = 0; i < 3; ++i) t.cube(i).selected = true;
  for (int i = 0; i < 4; ++i) t.addPoint("light", {0, 0, 0}).at(0)->selected = i != 1;
  t.m.MSPerform(Method::Delete);
  EXPECT_EQ(t.m.numentities(), 2);
  EXPECT_EQ(t.m.brushCount(), 1);
  EXPECT_EQ(t.world().numbrushes(), 0);
}

TEST(MethodTest, MoveToTargetReachesEverySelectedBrush) {
  TestMap t;
  entity& from = t.addEntity("func_door");
  entity& target = t.addEntity("func_door");
  for (int i = 0; i < 3; ++i) t.cube(i).selected = true;
  t.boxIn(from, {0, 0, 0}, {8, 8, 8}).selected = true;
  t.boxIn(target, {0, 0, 0}, {8, 8, 8}).selected = true;
  t.m.perform.target = &target;
  t.m.MSPerform(Method::MoveToTarget);
  EXPECT_EQ(target.numbrushes(), 5);
  EXPECT_EQ(t.m.numentities(), 2) << "the other door is empty and gone";
  t.m.perform.target = t.m.world();
  t.m.MSPerform(Method::MoveToTarget);
  EXPECT_EQ(t.world().numbrushes(), 5);
  EXPECT_EQ(t.m.numentities(), 1);
}

TEST(MethodTest, SelectInsideOrTouchingABox) {
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
    t.m.perform.boxMaxs = {64, 64, 64};
    t.m.MAPerform(Method::SelectInside);
    EXPECT_EQ(b.selected, c.inside);
    t.m.MAPerform(Method::Deselect);
    t.m.MAPerform(Method::SelectTouching);
    EXPECT_EQ(b.selected, c.touching);
  }
}

TEST(MethodTest, ShapesAndBounds) {
  TestMap t;
  t.cube(1);
  brush& flat = t.box({-500, 0, 0}, {-500, 0, 0});
  PerformValues& v = t.m.perform;
  v.offset = {0, 0, 8};
  t.m.MAPerform(Method::Translate);
  flat.mins.x = -500;
  v.boundsMins = {32767, 32767, 32767};
  v.boundsMaxs = {-32767, -32767, -32767};
  t.m.MAPerform(Method::WidenBounds);
  EXPECT_TRUE(VecEqual(v.boundsMins, {32, 0, 8})) << "a brush without faces does not count";
  EXPECT_TRUE(VecEqual(v.boundsMaxs, {48, 16, 24}));

  v.matrix[0][0] = -1;
  v.matrix[1][1] = v.matrix[2][2] = 1;
  t.m.MAPerform(Method::Transform);
  EXPECT_TRUE(t.world().at(0)->invalid) << "a mirrored brush is inside out";
  t.m.MAPerform(Method::ReverseFaces);
  EXPECT_TRUE(VecEqual(t.world().at(0)->mins, {-48, 0, 8}));
}

}  // namespace
}  // namespace velk
