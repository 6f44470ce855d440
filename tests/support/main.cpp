#include <gtest/gtest.h>

#include "base/error.h"
#include "support/fatal.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  velk::SetErrorHandler([](const std::string& message) { throw velk::test::FatalError(message); });
  return RUN_ALL_TESTS();
}
