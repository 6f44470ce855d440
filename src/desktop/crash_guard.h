#pragma once

#include <functional>

namespace velk {

// While it lives, a fatal error, a crash or a request to end (SIGTERM, SIGHUP, SIGINT) first runs the
// rescue, once. What it does is not safe in a signal handler by the letter; the program is lost anyway, and
// a time limit ends it should the rescue hang.
class CrashGuard {
 public:
  explicit CrashGuard(std::function<void()> rescue);
  ~CrashGuard();
  CrashGuard(const CrashGuard&) = delete;
  CrashGuard& operator=(const CrashGuard&) = delete;

  // Runs the living guard's rescue now; later calls do nothing.
  static void RunNow();
};

}  // namespace velk
