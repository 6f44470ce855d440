#include "desktop/system/path_text.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(PathText, KeepsEveryByte) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  for (const std::string& path :
       {std::string(), std::string("/a \u00e9\u20ac\U0001f3ae.map"), std::string("\xff\xe4\u00e9.map"),
        std::string("\xe2\x82"), std::string("\xed\xb2\x80"), all}) {
    EXPECT_EQ(PathBytes(PathText(path)), path);
  }
  EXPECT_EQ(PathText("\u00e9\U0001f3ae"), QString::fromUtf8("\u00e9\U0001f3ae"));
}

}  // namespace
}  // namespace velk
