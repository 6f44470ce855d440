#include "desktop/system/crash_guard.h"

#include <csignal>
#include <cstdlib>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace velk {
namespace {

constexpr int kCrashes[] = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};
constexpr int kRequests[] = {SIGTERM, SIGHUP, SIGINT};
constexpr unsigned kTimeLimit = 20;  // seconds
constexpr size_t kStackSize = 512 * 1024;

// Signal handlers are given nothing: like the error handler, this is the program's own.
struct GuardState {
  std::function<void()> rescue;
  std::vector<char> stack;  // to run on when the normal one has overflowed
  int pipe[2] = {-1, -1};   // wakes the event loop for a request
  volatile std::sig_atomic_t request = 0;
};
GuardState& State() {
  static GuardState instance;
  return instance;
}

void Die(int number) {
  std::signal(number, SIG_DFL);
  std::raise(number);
}

void OnCrash(int number) {
  ::alarm(kTimeLimit);
  CrashGuard::RunNow();
  Die(number);
}

void OnRequest(int number) {
  if (State().request == 0) {
    State().request = number;
    if (::write(State().pipe[1], "", 1) == 1) return;
  }
  OnCrash(number);
}

// No other signal interrupts the handler: it would end the program in the middle of a rescue.
template <size_t N>
void Handle(const int (&signals)[N], void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_ONSTACK | SA_RESTART;
  for (const int number : kCrashes) sigaddset(&action.sa_mask, number);
  for (const int number : kRequests) sigaddset(&action.sa_mask, number);
  for (const int number : signals) sigaction(number, &action, nullptr);
}

}  // namespace

CrashGuard::CrashGuard(std::function<void()> rescue) {
  State().rescue = std::move(rescue);
  State().stack.resize(kStackSize);
  stack_t alternate{};
  alternate.ss_sp = State().stack.data();
  alternate.ss_size = kStackSize;
  sigaltstack(&alternate, nullptr);
  if (::pipe2(State().pipe, O_CLOEXEC | O_NONBLOCK) == 0) {
    requests_ = std::make_unique<QSocketNotifier>(State().pipe[0], QSocketNotifier::Read);
    QObject::connect(requests_.get(), &QSocketNotifier::activated, [this] { end(); });
  }
  Handle(kCrashes, OnCrash);
  Handle(kRequests, OnRequest);
  // Messages that nobody reads any more are no reason to end.
  std::signal(SIGPIPE, SIG_IGN);
  // Qt ends the program by exit() when the X server is gone.
  std::atexit(RunNow);
}

CrashGuard::~CrashGuard() {
  for (const int number : kCrashes) std::signal(number, SIG_DFL);
  for (const int number : kRequests) std::signal(number, SIG_DFL);
  State().rescue = nullptr;
}

void CrashGuard::end() {
  requests_->setEnabled(false);
  RunNow();
  Die(State().request);
}

void CrashGuard::RunNow() {
  const std::function<void()> rescue = std::exchange(State().rescue, nullptr);
  if (rescue) rescue();
}

}  // namespace velk
