// Fatal errors: the one way out for conditions the editor does not recover from.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace velk {

// Receives the formatted message of a fatal error. It must not return: the desktop's shows the
// message and ends the program, the tests' throws.
using ErrorHandler = std::function<void(const std::string& message)>;

// Installs a handler and returns the one before it. Without a handler the message goes to standard
// error and the program ends with status 3.
ErrorHandler SetErrorHandler(ErrorHandler handler);

// Reports a fatal error (printf rules) to the installed handler; never returns. A second error
// while the first is being reported ends the program at once with status 0; a handler that throws
// ends the report.
[[noreturn]] void Error(const char* format, ...) __attribute__((format(printf, 1, 2)));

// While one lives, it can tell what the editor is busy with, for reports of fatal errors whose messages do
// not say which file they are about. The innermost speaks.
class ErrorPlace {
 public:
  explicit ErrorPlace(std::function<std::string()> describe);
  ~ErrorPlace();
  ErrorPlace(const ErrorPlace&) = delete;
  ErrorPlace& operator=(const ErrorPlace&) = delete;

 private:
  friend std::string WhereErrorsHappen();
  const ErrorPlace* outer_;
  std::function<std::string()> describe_;
};

// "reading [e1m1.map], line 12"; "" when nothing tells.
std::string WhereErrorsHappen();

// What an ErrorTrap throws: the message, and below it in parentheses where the error happened.
struct TrappedError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// While one lives, fatal errors throw TrappedError instead of ending the program: round work whose results
// are thrown away when it fails.
class ErrorTrap {
 public:
  ErrorTrap();
  ~ErrorTrap() { SetErrorHandler(std::move(before_)); }
  ErrorTrap(const ErrorTrap&) = delete;
  ErrorTrap& operator=(const ErrorTrap&) = delete;

 private:
  ErrorHandler before_;
};

}  // namespace velk
