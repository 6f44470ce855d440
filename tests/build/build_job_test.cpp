#include "build/build_job.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

struct FakeRunner : ProgramRunner {
  std::vector<std::string> run_;
  bool stopped = false;
  bool startAlone(const NativeLaunch&) override { return true; }
  void run(const NativeLaunch& launch) override { run_.push_back(launch.program); }
  void stop() override { stopped = true; }
  void wait(std::chrono::milliseconds) override { ended({}); }
};

struct Job : testing::Test {
  FakeRunner runner;
  BuildJob job{runner};
  int finished = 0;
  Job() {
    job.finished = [this] { ++finished; };
    job.start("Full", {{"one", {"one", {}, "", {}}}, {"two", {"two", {}, "", {}}}});
  }
  std::string texts() const {
    std::string all;
    for (const OutputLine& line : job.lines()) all += line.text + "|";
    return all.substr(0, all.find("Done in"));
  }
};

TEST_F(Job, StepsFollowOneAnother) {
  runner.output("first\r\nsec");
  runner.output("ond\nworking 10%\rworking 100%\nla\tst");
  EXPECT_EQ(texts(), "one|first|second|working 100%|");
  runner.ended({});
  EXPECT_EQ(runner.run_, (std::vector<std::string>{"one", "two"}));
  job.start("other", {{"three", {}}});  // one at a time
  EXPECT_TRUE(job.wait(std::chrono::seconds(1)));
  EXPECT_EQ(texts(), "one|first|second|working 100%|la st|two|");
  EXPECT_EQ(job.stateText(), "Succeeded");
  EXPECT_EQ(job.lastLine(), "la st");
  EXPECT_EQ(finished, 1);
  runner.output("late");
  runner.ended({});
  EXPECT_EQ(finished, 1);
}

TEST_F(Job, AFailureEndsTheBuild) {
  using How = ProgramEnd::How;
  const std::vector<std::pair<ProgramEnd, const char*>> cases{
      {{How::Exited, 3, {}}, "one ended with status 3"},
      {{How::Died, 11, {}}, "one was ended by signal 11"},
      {{How::NotStarted, 0, "no such file"}, "Couldn't start one: no such file"}};
  for (const auto& [end, text] : cases) {
    runner.run_.clear();
    job.start("Full", {{"one", {"one", {}, "", {}}}, {"two", {}}});
    runner.ended(end);
    EXPECT_EQ(job.lastLine(), text);
    EXPECT_EQ(job.state(), BuildJob::State::Failed) << text;
    EXPECT_LE(runner.run_.size(), 1u) << text;
  }
}

TEST_F(Job, StopIsNoFailureOfTheProgram) {
  job.stop();
  EXPECT_TRUE(runner.stopped && job.running());
  runner.ended({ProgramEnd::How::Died, 15, {}});
  EXPECT_EQ(job.state(), BuildJob::State::Stopped);
  EXPECT_EQ(runner.run_.size(), 1u);
}

TEST_F(Job, AFloodIsBounded) {
  const std::string piece(100000, 'x');
  for (int i = 0; i < 300; ++i) runner.output(piece);
  EXPECT_LE(job.bytes(), BuildJob::kMostBytes);
  EXPECT_GT(job.dropped(), 1000u);
  EXPECT_EQ(job.lines().back().text.size(), BuildJob::kLongestLine);
  runner.output("\nend\n");
  EXPECT_EQ(job.lastLine(), "end");
}

}  // namespace
}  // namespace velk
