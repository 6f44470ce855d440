// A build at work: its steps one after the other, what they wrote, how they ended.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "build/output_line.h"
#include "build/program_runner.h"

namespace velk {

// A step of a build: what its head line says, and what is started.
struct BuildStep {
  std::string title;
  NativeLaunch launch;
};

class BuildJob {
 public:
  enum class State { Idle, Running, Succeeded, Failed, Stopped };
  // Older lines go when the output is longer than this.
  static constexpr size_t kMostBytes = size_t{10} << 20;
  static constexpr size_t kLongestLine = 4096;

  explicit BuildJob(ProgramRunner& runner) { useRunner(runner); }
  BuildJob(const BuildJob&) = delete;
  BuildJob& operator=(const BuildJob&) = delete;

  // Another one from now on; nothing may run.
  void useRunner(ProgramRunner& runner);

  // Starts the first step; the others follow while each ends with status 0. What an earlier build wrote goes.
  // Nothing happens while one runs.
  void start(std::string name, std::vector<BuildStep> steps);
  void stop();
  // Lets time pass until the build is over, at most so long; false when it still runs.
  bool wait(std::chrono::milliseconds most);

  State state() const { return state_; }
  bool running() const { return state_ == State::Running; }
  const std::string& name() const { return name_; }
  // "Running", "Succeeded", "Failed"...
  std::string stateText() const;
  int exitStatus() const { return exitStatus_; }  // of the last step that ended
  std::chrono::milliseconds elapsed() const;
  // The last line that a program wrote, or why the build failed; "" before the first.
  const std::string& lastLine() const { return lastLine_; }
  const std::deque<OutputLine>& lines() const { return lines_; }
  size_t bytes() const { return bytes_; }
  // How many lines went from the front since the build began.
  size_t dropped() const { return dropped_; }
  void clear();

  // After every change.
  std::function<void()> changed = [] {};
  // Once after the build ended.
  std::function<void()> finished = [] {};
  std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;

 private:
  void startStep();
  void take(std::string_view text);
  void takeLine();
  void stepEnded(const ProgramEnd& end);
  void add(OutputLine line);
  void finish(State state, OutputLine::Kind kind, const std::string& text);

  ProgramRunner* runner_ = nullptr;
  State state_ = State::Idle;
  std::string name_;
  std::vector<BuildStep> steps_;
  size_t step_ = 0;
  int exitStatus_ = 0;
  std::string lastLine_;
  std::string partial_;  // of a line whose end has not come
  std::deque<OutputLine> lines_;
  size_t bytes_ = 0;
  size_t dropped_ = 0;
  bool stopping_ = false;
  std::chrono::steady_clock::time_point begun_;
  std::chrono::steady_clock::time_point over_;
};

}  // namespace velk
