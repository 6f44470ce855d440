#include "base/tokenizer.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/fatal.h"

namespace velk {
namespace {

using Tokens = std::vector<std::string>;

Tokens AllTokens(std::string_view text) {
  Tokens tokens;
  Tokenizer tokenizer(text);
  while (tokenizer.GetScriptToken(true)) tokens.emplace_back(tokenizer.token());
  return tokens;
}

TEST(TokenizerTest, Tokens) {
  using namespace std::string_view_literals;
  const struct {
    std::string_view text;
    Tokens tokens;
  } cases[] = {
      {"\"classname\" \"worldspawn\"", {"classname", "worldspawn"}},
      {"\"\"", {""}},
      {"( 0 0 0 ) ( 1 0 0 )", {"(", "0", "0", "0", ")", "(", "1", "0", "0", ")"}},
      {"\t{\r\n\x01\x02}\x1F", {"{", "}"}},
      {"a\xA0z \xFF", {"a\xA0z", "\xFF"}},
      {"a//b http://c /d / //e\nf", {"a//b", "http://c", "/d", "/", "f"}},
      {"\"two\nlines // no comment\"x", {"two\nlines // no comment", "x"}},
      {"a\"b\" c", {"a\"b\"", "c"}},
      {"// only a comment", {}},
      {"a\0b"sv, {"a"}},
      {"0123456789abcdef 0123456789abcde\nfollowed by more than sixteen bytes",
       {"0123456789abcdef", "0123456789abcde", "followed", "by", "more", "than", "sixteen", "bytes"}},
      {"", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(AllTokens(c.text), c.tokens) << c.text;
  EXPECT_EQ(AllTokens(std::string_view("abcdef", 3)), Tokens({"abc"}));
}

TEST(TokenizerTest, QuotedTokensAreTold) {
  Tokenizer tokenizer("\"{\" {");
  tokenizer.GetScriptToken(true);
  EXPECT_TRUE(tokenizer.quoted());
  tokenizer.GetScriptToken(true);
  EXPECT_FALSE(tokenizer.quoted());
}

TEST(TokenizerTest, LongestToken) {
  const std::string longest(255, 'x');
  EXPECT_EQ(AllTokens(longest), Tokens({longest}));
  EXPECT_EQ(AllTokens('"' + longest + '"'), Tokens({longest}));
  EXPECT_FATAL(AllTokens("\n" + longest + "x"), "Token too large on line 2");
  EXPECT_FATAL(AllTokens("\n\"" + longest + "x\""), "Token too large on line 2");
  EXPECT_FATAL(AllTokens('"' + longest + "x"), "Token too large on line 1");
  EXPECT_FATAL(AllTokens('"' + longest), "EOF inside quoted token");
}

TEST(TokenizerTest, TokensMissingOnTheSameLine) {
  const std::pair<std::string, std::string> cases[] = {
      {"1", "Line 1 is incomplete"},           {"1  \t", "Line 1 is incomplete"},
      {"1\n2", "Line 1 is incomplete"},        {"1 // text\n2", "Line 1 is incomplete\n"},
      {"1 // text", "Line 1 is incomplete\n"}, {"1 2", ""},
  };
  for (const auto& [text, message] : cases) {
    Tokenizer tokenizer(text);
    tokenizer.GetScriptToken(true);
    EXPECT_FATAL(tokenizer.GetScriptToken(false), message) << text;
  }
}

TEST(TokenizerTest, LineNumbers) {
  Tokenizer tokenizer("// 1\n// 2\r\n\n// 4\n\n\"six\nstill six\" six\nseven // comment");
  for (const int line : {6, 6, 7}) {
    ASSERT_TRUE(tokenizer.GetScriptToken(true));
    EXPECT_EQ(tokenizer.line(), line) << tokenizer.token();
  }
  EXPECT_FALSE(tokenizer.GetScriptToken(true));
  EXPECT_EQ(tokenizer.line(), 8);
  tokenizer.StartScript("x");
  EXPECT_EQ(tokenizer.line(), 1);
}

TEST(TokenizerTest, GroupNumbersInComments) {
  const std::pair<std::string, int> cases[] = {
      {"//\"0007\"", 7},   {"//\"12ab\" kept", 12}, {"//\"abcd\"", 0}, {"//plain words", 0},
      {"//\"12\"", 0},     {"//\"12\"345", 0},      {"//\"000", 0},    {"// \"0007\"", 0},
      {"//\"00\n7\"x", 0}, {"//\"0004\"\n//", 0},
  };
  for (const auto& [comment, group] : cases) {
    const std::string text = "//\"0009\"\n" + comment + "\n{ //\"0008\"\n}";
    Tokenizer tokenizer(text);
    tokenizer.setCapture(true);
    EXPECT_TRUE(tokenizer.GetScriptToken(true));
    EXPECT_EQ(tokenizer.capturedGroup(), group) << comment;
    tokenizer.setCapture(false);
    EXPECT_TRUE(tokenizer.GetScriptToken(true));
    EXPECT_EQ(tokenizer.capturedGroup(), group) << comment;
  }
}

}  // namespace
}  // namespace velk
