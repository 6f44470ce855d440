// Real programs, small ones, as a build meets them.
#include "desktop/system/qt_programs.h"

#include <QTest>

#include <gtest/gtest.h>

#include "application.h"
#include "build/build_job.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

using State = BuildJob::State;

struct Programs : testing::Test {
  test::TempFolder home;
  QtPrograms runner;
  BuildJob job{runner};

  Programs() { test::Application(); }
  // Starts a shell script of that text.
  void start(const std::string& script) {
    job.start("test", {{"script", {"sh", {"-c", script}, home.path().string(), {{"VELK_MAP", "m.map"}}}}});
  }
  bool ends() { return job.wait(std::chrono::seconds(20)); }
};

TEST_F(Programs, EndsAreTold) {
  struct Case {
    const char* script;
    State state;
    const char* last;
  };
  const std::vector<Case> cases{{"echo $VELK_MAP; pwd >/dev/null", State::Succeeded, "m.map"},
                                {"echo bad >&2; exit 3", State::Failed, "script ended with status 3"},
                                {"kill -SEGV $$", State::Failed, "script was ended by signal 11"},
                                {"printf 'LEAK near 1 2 3'", State::Succeeded, "LEAK near 1 2 3"},
                                {"read x; echo got $x", State::Succeeded, "got"}};
  for (const Case& c : cases) {
    start(c.script);
    ASSERT_TRUE(ends()) << c.script;
    EXPECT_EQ(job.state(), c.state) << c.script;
    EXPECT_EQ(job.lastLine(), c.last) << c.script;
  }
}

TEST_F(Programs, WhatCannotBeStartedSaysSo) {
  job.start("test", {{"nothing", {(home.path() / "nothing").string(), {}, "", {}}}});
  EXPECT_TRUE(job.running());
  ASSERT_TRUE(ends());
  EXPECT_TRUE(job.lastLine().starts_with("Couldn't start nothing: ")) << job.lastLine();
  EXPECT_FALSE(runner.startAlone({(home.path() / "nothing").string(), {}, "", {}}));
}

// It ignores the polite signal, and so does its child.
TEST_F(Programs, WhatHangsIsStoppedWithItsChildren) {
  start("trap '' TERM; (sleep 60; echo late > child) & echo up; wait; sleep 60");
  while (job.lastLine() != "up") runner.wait(std::chrono::milliseconds(100));
  EXPECT_FALSE(job.wait(std::chrono::milliseconds(50)));
  job.stop();
  ASSERT_TRUE(ends());
  EXPECT_EQ(job.state(), State::Stopped);
  EXPECT_LT(job.elapsed(), std::chrono::seconds(15));
}

TEST_F(Programs, AFloodIsKeptWithinBounds) {
  start("yes 'a line of a flood that goes on and on' | head -c 30000000; echo; echo end");
  ASSERT_TRUE(ends());
  EXPECT_EQ(job.lastLine(), "end");
  EXPECT_LE(job.bytes(), BuildJob::kMostBytes);
}

}  // namespace
}  // namespace velk
