#include "desktop/crash_guard.h"

#include <csignal>
#include <utility>
#include <vector>

#include <unistd.h>

namespace velk {
namespace {

constexpr int kSignals[] = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGTERM, SIGHUP, SIGINT};
constexpr unsigned kTimeLimit = 20;  // seconds
constexpr size_t kStackSize = 512 * 1024;

// Signal handlers are given nothing: like the error handler, this is the program's own.
struct GuardState {
  std::function<void()> rescue;
  std::vector<char> stack;  // to run on when the normal one has overflowed
};
GuardState& state() {
  static GuardState instance;
  return instance;
}

void onSignal(int number) {
  ::alarm(kTimeLimit);
  CrashGuard::RunNow();
  std::signal(number, SIG_DFL);
  std::raise(number);
}

}  // namespace

CrashGuard::CrashGuard(std::function<void()> rescue) {
  state().rescue = std::move(rescue);
  state().stack.resize(kStackSize);
  stack_t alternate{};
  alternate.ss_sp = state().stack.data();
  alternate.ss_size = kStackSize;
  sigaltstack(&alternate, nullptr);
  struct sigaction action {};
  action.sa_handler = onSignal;
  action.sa_flags = SA_ONSTACK;
  for (const int number : kSignals) sigaction(number, &action, nullptr);
}

CrashGuard::~CrashGuard() {
  for (const int number : kSignals) std::signal(number, SIG_DFL);
  state().rescue = nullptr;
}

void CrashGuard::RunNow() {
  const std::function<void()> rescue = std::exchange(state().rescue, nullptr);
  if (rescue) rescue();
}

}  // namespace velk
