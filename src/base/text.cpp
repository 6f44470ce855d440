#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdio>
#include <limits>

namespace velk {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

void SkipBlanks(std::string_view& text) {
  while (!text.empty() && (text.front() == ' ' || (text.front() >= '\t' && text.front() <= '\r'))) {
    text.remove_prefix(1);
  }
}

// Skips one sign and says whether it was a minus.
bool TakeSign(std::string_view& text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  return negative;
}

// The nearest double to a number that is out of range: a tiny one is 0, a huge one the largest.
double NearestInRange(std::string_view number) {
  const bool tiny = number.front() == '0' || number.front() == '.' || number.find("e-") != number.npos ||
                    number.find("E-") != number.npos;
  return tiny ? 0 : std::numeric_limits<double>::max();
}

}  // namespace

std::string FormatList(const char* format, va_list arguments) {
  va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, again);
  va_end(again);
  std::string result(static_cast<size_t>(std::max(length, 0)), '\0');
  std::vsnprintf(result.data(), result.size() + 1, format, arguments);
  return result;
}

std::string Format(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  std::string result = FormatList(format, arguments);
  va_end(arguments);
  return result;
}

std::string CutText(std::string_view text, size_t bytes) {
  if (text.size() > bytes) {
    while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80) --bytes;
    text = text.substr(0, bytes);
  }
  return std::string(text);
}

std::optional<int> LeadingInt(std::string_view text) {
  SkipBlanks(text);
  const bool negative = TakeSign(text);
  if (text.empty() || !IsDigit(text.front())) return std::nullopt;
  long long value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) break;
    value = value * 10 + (c - '0');
    if (value > INT_MAX) return negative ? INT_MIN : INT_MAX;
  }
  return static_cast<int>(negative ? -value : value);
}

std::optional<double> TakeNumber(std::string_view& text) {
  std::string_view rest = text;
  SkipBlanks(rest);
  const bool negative = TakeSign(rest);
  // Keeps out a second sign, and the words for infinity and not-a-number.
  if (rest.empty() || !(IsDigit(rest.front()) || rest.front() == '.')) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  if (error == std::errc::invalid_argument) return std::nullopt;
  const auto length = static_cast<size_t>(end - rest.data());
  if (error == std::errc::result_out_of_range) value = NearestInRange(rest.substr(0, length));
  text = rest.substr(length);
  return negative ? -value : value;
}

std::string_view Trimmed(std::string_view text) {
  const auto blank = [](char c) { return static_cast<unsigned char>(c) <= 32; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

std::string LowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Lower);
  return result;
}

std::string UpperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Upper);
  return result;
}

int CompareNoCase(std::string_view a, std::string_view b) {
  const size_t common = std::min(a.size(), b.size());
  for (size_t i = 0; i < common; ++i) {
    const int difference = static_cast<unsigned char>(Lower(a[i])) - static_cast<unsigned char>(Lower(b[i]));
    if (difference != 0) return difference;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualNoCase(text.substr(0, prefix.size()), prefix);
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  for (size_t at = text.find(separator); at != text.npos; at = text.find(separator)) {
    pieces.emplace_back(text.substr(0, at));
    text.remove_prefix(at + 1);
  }
  pieces.emplace_back(text);
  return pieces;
}

}  // namespace velk
