#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace velk {

// While it lives, a fatal error, a crash, the loss of the display or a request to end (SIGTERM, SIGHUP,
// SIGINT) first runs the rescue, once. A request waits for the event loop, so that no change is caught
// halfway; a second one does not wait. In a crash the rescue runs in the signal handler, where it is not safe
// by the letter; the program is lost anyway, and a time limit ends it should the rescue hang.
class CrashGuard {
 public:
  explicit CrashGuard(std::function<void()> rescue);
  ~CrashGuard();
  CrashGuard(const CrashGuard&) = delete;
  CrashGuard& operator=(const CrashGuard&) = delete;

  // Runs the living guard's rescue now; later calls do nothing.
  static void RunNow();

 private:
  void end();

  std::unique_ptr<QSocketNotifier> requests_;  // none when there can be no pipe: requests do not wait
};

}  // namespace velk
