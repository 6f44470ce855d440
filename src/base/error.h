// Fatal errors: the one way out for conditions the editor does not recover from.
#pragma once

#include <functional>
#include <string>

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

}  // namespace velk
