#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdarg>
#include <cstdio>

namespace velk {
namespace {

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

std::string_view withoutLeadingBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  return text;
}

}  // namespace

std::string Format(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  std::string result(static_cast<size_t>(std::max(length, 0)), '\0');
  std::vsnprintf(result.data(), result.size() + 1, format, again);
  va_end(again);
  return result;
}

int TextToInt(std::string_view text) {
  text = withoutLeadingBlanks(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  long long value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    value = value * 10 + (c - '0');
    if (value > INT_MAX) return negative ? INT_MIN : INT_MAX;
  }
  return static_cast<int>(negative ? -value : value);
}

double TextToDouble(std::string_view text) {
  text = withoutLeadingBlanks(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument || !std::isfinite(value)) return 0;
  return value;
}

std::string LowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), lower);
  return result;
}

std::string UpperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upper);
  return result;
}

int CompareNoCase(std::string_view a, std::string_view b) {
  const size_t common = std::min(a.size(), b.size());
  for (size_t i = 0; i < common; ++i) {
    const int difference = static_cast<unsigned char>(lower(a[i])) - static_cast<unsigned char>(lower(b[i]));
    if (difference != 0) return difference;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualNoCase(text.substr(0, prefix.size()), prefix);
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  while (!text.empty()) {
    const size_t at = text.find(separator);
    pieces.emplace_back(text.substr(0, at));
    if (at == std::string_view::npos) return pieces;
    text.remove_prefix(at + 1);
    if (text.empty()) pieces.emplace_back();
  }
  return pieces;
}

int Truncate(double value) {
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

}  // namespace velk
