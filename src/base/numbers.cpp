#include "base/numbers.h"

#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/text.h"

namespace velk {
namespace {

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                   1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// 16 for what is no digit in any base.
int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

// Takes the mark of the base off; the 0 of base 8 counts as a digit.
int TakeBase(std::string_view& text) {
  if (!text.starts_with('0')) return 10;
  const bool hex = text.size() > 2 && (text[1] | 0x20) == 'x' && DigitOf(text[2]) < 16;
  if (hex) text.remove_prefix(2);
  return hex ? 16 : 8;
}

}  // namespace

std::optional<int> TakeWhole(std::string_view& text) {
  std::string_view rest = text;
  while (!rest.empty() && IsBlank(rest.front())) rest.remove_prefix(1);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  const int base = TakeBase(rest);
  if (rest.empty() || DigitOf(rest.front()) >= base) return std::nullopt;
  long long value = 0;
  for (; !rest.empty() && DigitOf(rest.front()) < base; rest.remove_prefix(1)) {
    if (value <= INT_MAX) value = value * base + DigitOf(rest.front());
  }
  text = rest;
  if (value > INT_MAX) return negative ? INT_MIN : INT_MAX;
  return static_cast<int>(negative ? -value : value);
}

std::optional<float> TakeFloat(std::string_view& text) {
  const std::optional<double> number = TakeNumber(text);
  if (!number || std::fabs(*number) > std::numeric_limits<float>::max()) return std::nullopt;
  return float(*number);
}

// Up to 15 digits and powers of ten up to 22 are exact as doubles, so one division gives the nearest double.
bool PlainNumber(std::string_view text, double& value) {
  const bool negative = text.starts_with('-');
  text.remove_prefix(negative);
  if (text.empty() || text.size() > 16) return false;
  std::int64_t digits = 0;
  size_t point = text.size();
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '.' && point == text.size()) {
      point = i;
    } else if (text[i] >= '0' && text[i] <= '9') {
      digits = digits * 10 + (text[i] - '0');
    } else {
      return false;
    }
  }
  const size_t fraction = point == text.size() ? 0 : text.size() - point - 1;
  if (fraction == 0 && text.size() > 15) return false;
  value = static_cast<double>(digits) / kPowersOfTen[fraction];
  if (negative) value = -value;
  return point > 0;
}

}  // namespace velk
