#include "base/error.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace velk {
namespace {

struct ErrorState {
  ErrorHandler handler;
  bool reporting = false;
};

// The one piece of program-wide state: how fatal errors reach the user.
ErrorState& state() {
  static ErrorState instance;
  return instance;
}

struct Report {
  Report() { state().reporting = true; }
  ~Report() { state().reporting = false; }
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
};

}  // namespace

ErrorHandler SetErrorHandler(ErrorHandler handler) { return std::exchange(state().handler, std::move(handler)); }

void Error(const char* format, ...) {
  if (state().reporting) std::_Exit(0);
  char message[2048];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(message, sizeof message, format, arguments);
  va_end(arguments);
  {
    const Report report;
    if (state().handler) state().handler(message);
  }
  std::fprintf(stderr, "%s\n", message);
  std::fflush(nullptr);
  std::_Exit(3);
}

}  // namespace velk
