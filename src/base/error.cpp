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
ErrorState& State() {
  static ErrorState instance;
  return instance;
}

// A report under way; over when the handler throws.
struct Report {
  Report() { State().reporting = true; }
  ~Report() { State().reporting = false; }
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
};

[[noreturn]] void EndProgram(int status) {
  std::fflush(nullptr);
  std::_Exit(status);
}

}  // namespace

ErrorHandler SetErrorHandler(ErrorHandler handler) {
  return std::exchange(State().handler, std::move(handler));
}

ErrorPlace::ErrorPlace(std::function<std::string()> describe)
    : outer_(std::exchange(State().place, this)), describe_(std::move(describe)) {}

ErrorPlace::~ErrorPlace() { State().place = outer_; }

std::string WhereErrorsHappen() { return State().place ? State().place->describe_() : ""; }

ErrorTrap::ErrorTrap()
    : before_(SetErrorHandler([](const std::string& message) {
        const std::string where = WhereErrorsHappen();
        throw TrappedError(where.empty() ? message : message + "\n(" + where + ")");
      })) {}

void Error(const char* format, ...) {
  if (State().reporting) EndProgram(0);
  const Report report;
  va_list arguments;
  va_start(arguments, format);
  const std::string message = FormatList(format, arguments);
  va_end(arguments);
  // A copy, so that a handler may install another one.
  if (const ErrorHandler handler = State().handler) handler(message);
  std::fprintf(stderr, "%s\n", message.c_str());
  EndProgram(3);
}

}  // namespace velk
