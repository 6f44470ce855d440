#include "documents/door.h"

#include "base/error.h"
#include "mapfile/map_writer.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;

struct DoorTest : testing::Test {
  DoorTest() {
    session.editor.settings().undo_levels = 10;
    session.editor.attend();
    session.open();
    session.editor.door().now = [this] { return time; };
  }

  Outcome move() {
    session.current().world()->at(0)->translate({8, 0, 0});
    return Outcome::Drawn(Redraw::All, "moved");
  }
  bool perform(const char* name, bool byKey = false) {
    return session.editor.door().perform({.name = name, .byKey = byKey}, [this] { return move(); });
  }
  std::vector<std::string> levels() { return session.editor.documents().current()->history.undoNames(); }
  std::string text() { return MapFileText(session.current(), {}); }

  Session session;
  std::chrono::steady_clock::time_point time;
};

TEST_F(DoorTest, WhatFailsLeavesEverythingAsItWas) {
  session.current().world()->at(1)->select();
  const std::string before = text();
  session.answer("ok");
  EXPECT_FALSE(session.editor.door().perform({.name = "Fail"}, [this] {
    session.current().MGPerform(Method::Delete);
    Error("no room for %i", 5);
    return Outcome{};
  }));
  EXPECT_EQ(session.prompts.log().back(), "message \"Velk Error...\" \"no room for 5\" ok");
  EXPECT_EQ(text(), before);
  EXPECT_EQ(session.current().totalSelected(), 1);
  EXPECT_TRUE(levels().empty());
}

TEST_F(DoorTest, HeldKeysAreOneLevelForASecond) {
  for (int i = 0; i < 3; ++i, time += std::chrono::milliseconds(300)) perform("Nudge", true);
  EXPECT_EQ(levels().size(), 1u);
  time += std::chrono::seconds(2);
  perform("Nudge", true);
  EXPECT_EQ(levels().size(), 2u);
  perform("Other", true);
  perform("Nudge", false);
  EXPECT_EQ(levels().size(), 4u);
}

TEST_F(DoorTest, ADragIsOneChangeAndRefusesOthers) {
  Door& door = session.editor.door();
  const std::string before = text();
  const auto step = [this] { return move(); };
  for (const bool cancelled : {true, false}) {
    EXPECT_TRUE(door.press({.name = "Drag"}, step, [] { return true; }));
    EXPECT_FALSE(perform("Nudge"));
    EXPECT_TRUE(door.drag(step));
    if (cancelled) {
      door.cancelDrag();
      EXPECT_EQ(text(), before);
      EXPECT_TRUE(levels().empty());
    } else {
      door.drop("Drag Face", step);
      EXPECT_EQ(session.current().world()->at(0)->mins.x, 24);
      EXPECT_EQ(levels(), std::vector<std::string>{"Drag Face"});
    }
    EXPECT_FALSE(door.dragRuns());
  }
}

}  // namespace
}  // namespace velk
