#include "base/error.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "base/text.h"

namespace velk {
namespace {

struct ErrorState {
  ErrorHandler handler;
  bool reporting = false;
  const ErrorPlace* place = nullptr;  // the innermost
};

// The one piece of program-wide state: how fatal errors reach the user, and where they come from.
ErrorState& state() {
  static ErrorState instance;
  return instance;
}

// A report under way; over when the handler throws.
struct Report {
  Report() { state().reporting = true; }
  ~Report() { state().reporting = false; }
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
};

[[noreturn]] void endProgram(int status) {
  std::fflush(nullptr);
  std::_Exit(status);
}

}  // namespace

ErrorHandler SetErrorHandler(ErrorHandler handler) {
  return std::exchange(state().handler, std::move(handler));
}

ErrorPlace::ErrorPlace(std::function<std::string()> describe)
    : outer_(std::exchange(state().place, this)), describe_(std::move(describe)) {}

ErrorPlace::~ErrorPlace() { state().place = outer_; }

std::string WhereErrorsHappen() { return state().place ? state().place->describe_() : ""; }

ErrorTrap::ErrorTrap()
    : before_(SetErrorHandler([](const std::string& message) {
        const std::string where = WhereErrorsHappen();
        throw TrappedError(where.empty() ? message : message + "\n(" + where + ")");
      })) {}

void Error(const char* format, ...) {
  if (state().reporting) endProgram(0);
  const Report report;
  va_list arguments;
  va_start(arguments, format);
  const std::string message = FormatList(format, arguments);
  va_end(arguments);
  // A copy, so that a handler may install another one.
  if (const ErrorHandler handler = state().handler) handler(message);
  std::fprintf(stderr, "%s\n", message.c_str());
  endProgram(3);
}

}  // namespace velk
