// What starts programs. The desktop's starts them as processes; the plain one only notes what was asked for.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "build/launch.h"

namespace velk {

// How a program ended.
struct ProgramEnd {
  enum class How { Exited, Died, NotStarted };
  How how = How::Exited;
  int status = 0;      // Exited: its exit status; Died: the signal, 0 when the system does not tell
  std::string reason;  // NotStarted: in the system's words
};

// The programs of a build run one at a time; those started alone are not watched.
class ProgramRunner {
 public:
  virtual ~ProgramRunner() = default;
  // Starts a program and forgets it; false when it cannot be started.
  virtual bool startAlone(const NativeLaunch& launch) = 0;
  // Starts a program whose output and errors come to `output` as they are written, and its end to `ended`,
  // once, also when it could not be started. Never before this returns.
  virtual void run(const NativeLaunch& launch) = 0;
  // Ends the program and what it started, by force when it does not end by itself within two seconds. Its
  // end is told as any other.
  virtual void stop() = 0;
  // Lets up to so much time pass in which output and ends arrive; returns early when something arrived.
  virtual void wait(std::chrono::milliseconds most) = 0;

  std::function<void(std::string_view)> output = [](std::string_view) {};
  std::function<void(const ProgramEnd&)> ended = [](const ProgramEnd&) {};
};

// Starts nothing. What is to be run succeeds without output at the next wait.
class NoPrograms : public ProgramRunner {
 public:
  bool startAlone(const NativeLaunch&) override { return true; }
  void run(const NativeLaunch&) override { running_ = true; }
  void stop() override {}
  void wait(std::chrono::milliseconds) override {
    if (std::exchange(running_, false)) ended({});
  }

 private:
  bool running_ = false;
};

}  // namespace velk
