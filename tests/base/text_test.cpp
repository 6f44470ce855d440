#include "base/text.h"

#include <climits>
#include <limits>

#include <gtest/gtest.h>

namespace velk {
namespace {

constexpr double kHuge = std::numeric_limits<double>::max();

TEST(TextTest, Integers) {
  const struct {
    const char* text;
    std::optional<int> value;
  } cases[] = {
      {" \t\r\n-7x", -7},
      {"+5", 5},
      {"007", 7},
      {"0x10", 0},
      {"", {}},
      {"x1", {}},
      {"- 5", {}},
      {"--5", {}},
      {"2147483647", INT_MAX},
      {"-2147483648", INT_MIN},
      {"99999999999999999999", INT_MAX},
      {"-99999999999999999999", INT_MIN},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(LeadingInt(c.text), c.value) << c.text;
    EXPECT_EQ(TextToInt(c.text), c.value.value_or(0)) << c.text;
  }
}

TEST(TextTest, Numbers) {
  const struct {
    const char* text;
    double value;
    const char* rest;
  } cases[] = {
      {"+1.5 2", 1.5, " 2"},  {" -.5)", -0.5, ")"},   {"1e2x", 100, "x"},  {"1e", 1, "e"},     {"5.", 5, ""},
      {"1e400,", kHuge, ","}, {"-1e400", -kHuge, ""}, {"1e-400", 0, ""},   {"0x10", 0, "x10"}, {"", 0, ""},
      {"+-5", 0, "+-5"},      {".", 0, "."},          {" inf", 0, " inf"}, {"nan", 0, "nan"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(TextToDouble(c.text), c.value) << c.text;
    std::string_view text = c.text;
    TakeNumber(text);
    EXPECT_EQ(text, c.rest) << c.text;
  }
}

TEST(TextTest, LetterCaseConcernsAsciiLettersOnly) {
  EXPECT_EQ(LowerCase("Base\xC4_Z1"), "base\xC4_z1");
  EXPECT_EQ(UpperCase("base\xE4_z1"), "BASE\xE4_Z1");
  EXPECT_TRUE(EqualNoCase("WORLDSPAWN", "worldspawn"));
  EXPECT_LT(CompareNoCase("A", "b"), 0);
  EXPECT_LT(CompareNoCase("light", "Light_torch"), 0);
  EXPECT_GT(CompareNoCase("a\xFF", "A~"), 0);
  EXPECT_TRUE(StartsWithNoCase("Monster_ogre", "monster_"));
  EXPECT_FALSE(StartsWithNoCase("mon", "monster_"));
}

TEST(TextTest, CutsBetweenCharacters) {
  for (const auto& [bytes, cut] :
       {std::pair(9u, "a\u00e9\u20ac"), {6u, "a\u00e9\u20ac"}, {5u, "a\u00e9"}, {2u, "a"}, {0u, ""}}) {
    EXPECT_EQ(CutText("a\u00e9\u20ac", bytes), cut) << bytes;
  }
}

TEST(TextTest, Split) {
  using Pieces = std::vector<std::string>;
  EXPECT_EQ(Split("", ';'), Pieces());
  EXPECT_EQ(Split("a", ';'), Pieces({"a"}));
  EXPECT_EQ(Split(";a;;b;", ';'), Pieces({"", "a", "", "b", ""}));
}

TEST(TextTest, Rounding) {
  const struct {
    double value, rounded, snapped8;
    int truncated;
  } cases[] = {{0.5, 1, 0, 0},   {-0.5, -1, 0, 0},      {1.49, 1, 0, 1}, {4, 4, 8, 4},
               {-4, -4, -8, -4}, {-11.9, -12, -8, -11}, {2.5, 3, 0, 2}};
  for (const auto& c : cases) {
    EXPECT_EQ(RoundHalfAway(c.value), c.rounded) << c.value;
    EXPECT_EQ(Snap(c.value, 8), c.snapped8) << c.value;
    EXPECT_EQ(Truncate(c.value), c.truncated) << c.value;
  }
  EXPECT_FALSE(std::signbit(Snap(-3, 8))) << "shown as 0, not -0";
  EXPECT_EQ(Truncate(1e300), INT_MAX);
  EXPECT_EQ(Truncate(-1e300), INT_MIN);
  EXPECT_EQ(Truncate(std::nan("")), 0);
}

}  // namespace
}  // namespace velk
