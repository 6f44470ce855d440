#include <vector>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::TestMap;

typedef test::MapTest DispatcherTest, MethodTest;

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
    const char* all;
    const char* inGroupMode;
  } cases[] = {{&map::MUSPerform, "1.1 0.2 0.0 ", "1.1 0.2 "},
               {&map::MSPerform, "1.0 0.1 ", "0.1 "},
               {&map::MAPerform, "1.1 1.0 0.2 0.1 0.0 ", "1.1 0.2 0.1 "},
               {&map::MGPerform, "1.1 1.0 0.2 0.1 0.0 ", "1.1 1.0 0.2 0.1 0.0 "}};
  for (const auto& c : cases) {
    m.modified = false;
    settings.groupmode = false;
    EXPECT_EQ(Visited(m, c.dispatch), c.all);
    EXPECT_TRUE(m.modified);
    settings.groupmode = true;
    EXPECT_EQ(Visited(m, c.dispatch), c.inGroupMode);
  }
}

TEST_F(DispatcherTest, AFatalMethodLeavesTheMapWhole) {
  for (int i = 0; i < 3; ++i) cube(i);
  m.perform.cut = [](brush& b) { b.setTexturedef({}, 99); };
  EXPECT_FATAL(m.MAPerform(Method::Cut), "setTexturedef:forFace: bad face number 99");
  EXPECT_EQ(m.brushCount(), 3);
}

TEST_F(MethodTest, MethodsWithoutACarrierDoNothing) {
  box({0, 0, 0}, {0, 0, 0});
  for (const Method method : {Method::Cut, Method::FloorSearch, Method::Draw, Method::Split, Method::Pick}) {
    m.MAPerform(method);
  }
  EXPECT_EQ(m.brushCount(), 1);
}

TEST(CutTest, CutAndSplitDestroyWhatIsLeftInvalid) {
  for (const Method method : {Method::Cut, Method::Split}) {
    TestMap t;
    t.boxIn(t.addEntity("func_door"), {0, 0, 0}, {8, 8, 8});
    for (int i = 0; i < 3; ++i) t.cube(i);
    t.m.perform.cut = t.m.perform.split = [](brush& b) { b.invalid = b.mins.x < 16; };
    t.m.MAPerform(method);
    EXPECT_EQ(t.summary(), "worldspawn --") << "the door went with its brush";
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
  m.perform.target = &target;
  m.MSPerform(Method::MoveToTarget);
  EXPECT_EQ(summary(), "worldspawn  func_wall *****") << "the door is empty and gone";
  m.perform.target = m.world();
  m.MSPerform(Method::MoveToTarget);
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
    t.m.perform.boxMaxs = {64, 64, 64};
    t.m.MAPerform(Method::SelectInside);
    EXPECT_EQ(b.selected(), c.inside);
    t.m.MAPerform(Method::Deselect);
    t.m.MAPerform(Method::SelectTouching);
    EXPECT_EQ(b.selected(), c.touching);
  }
}

TEST_F(MethodTest, ShapesAndBounds) {
  cube(1);
  brush& flat = box({-500, 0, 0}, {-500, 0, 0});
  PerformValues& v = m.perform;
  v.offset = {0, 0, 8};
  m.MAPerform(Method::Translate);
  flat.mins.x = -500;
  v.boundsMins = {32767, 32767, 32767};
  v.boundsMaxs = {-32767, -32767, -32767};
  m.MAPerform(Method::WidenBounds);
  EXPECT_TRUE(VecEqual(v.boundsMins, {32, 0, 8})) << "a brush without faces does not count";
  EXPECT_TRUE(VecEqual(v.boundsMaxs, {48, 16, 24}));

  v.matrix[0][0] = -1;
  v.matrix[1][1] = v.matrix[2][2] = 1;
  m.MAPerform(Method::Transform);
  EXPECT_TRUE(world().at(0)->invalid) << "a mirrored brush is inside out";
  m.MAPerform(Method::ReverseFaces);
  EXPECT_TRUE(VecEqual(world().at(0)->mins, {-48, 0, 8}));
}

}  // namespace
}  // namespace velk
