// Fatal errors in tests: the installed handler throws, so that a test can name the message.
#pragma once

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace velk::test {

struct FatalError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The message of the fatal error that `action` ends in; "" when there was none.
template <typename Action>
std::string FatalMessage(Action&& action) {
  try {
    action();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "";
}

#define EXPECT_FATAL(action, message) EXPECT_EQ(velk::test::FatalMessage([&] { action; }), message)

}  // namespace velk::test
