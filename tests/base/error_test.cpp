#include "base/error.h"

#include <gtest/gtest.h>

#include "support/fatal.h"

namespace velk {
namespace {

TEST(ErrorTest, HandlerGetsTheFormattedMessageAndMayThrowAgainAndAgain) {
  EXPECT_FATAL(Error("Line %i of %s", 7, "a.map"), "Line 7 of a.map");
  EXPECT_FATAL(Error("%s", std::string(5000, 'x').c_str()), std::string(5000, 'x'));
}

TEST(ErrorTest, ATrapThrowsAndTheInnermostPlaceTellsWhere) {
  const auto trapped = [] {
    try {
      const ErrorTrap trap;
      Error("no good");
    } catch (const TrappedError& error) {
      return std::string(error.what());
    }
  };
  EXPECT_EQ(trapped(), "no good");
  const ErrorPlace outer([] { return std::string("reading a map"); });
  {
    const ErrorPlace inner([] { return std::string("reading its wad"); });
    EXPECT_EQ(trapped(), "no good\n(reading its wad)");
  }
  EXPECT_EQ(trapped(), "no good\n(reading a map)");
  EXPECT_FATAL(Error("after"), "after");
}

TEST(ErrorDeathTest, ErrorInsideAReportEndsTheProgramAtOnce) {
  const auto nested = [] {
    SetErrorHandler([](const std::string&) { Error("inner"); });
    Error("outer");
  };
  EXPECT_EXIT(nested(), testing::ExitedWithCode(0), "^$");
}

TEST(ErrorDeathTest, WithoutAHandlerOrWithOneThatReturnsTheMessageGoesToStandardError) {
  const ErrorHandler handlers[] = {nullptr, [](const std::string&) {}};
  for (const ErrorHandler& handler : handlers) {
    const auto fail = [&] {
      SetErrorHandler(handler);
      Error("Couldn't copy %s!", "map");
    };
    EXPECT_EXIT(fail(), testing::ExitedWithCode(3), "^Couldn't copy map!\n$");
  }
}

}  // namespace
}  // namespace velk
