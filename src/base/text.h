// Text and rounding helpers shared by every layer.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdarg>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

// printf into a string.
std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
std::string FormatList(const char* format, va_list arguments) __attribute__((format(printf, 1, 0)));

// The integer at the start of the text (blanks, a sign, digits); a number out of range gives the nearest
// int.
std::optional<int> LeadingInt(std::string_view text);
// The same, 0 when there are no digits.
inline int TextToInt(std::string_view text) { return LeadingInt(text).value_or(0); }
// The longest decimal number at the start of the text, after blanks, which it takes off the text's
// front; always finite. Nothing is taken when there is none.
std::optional<double> TakeNumber(std::string_view& text);
// The same, 0 when there is none.
inline double TextToDouble(std::string_view text) { return TakeNumber(text).value_or(0); }

// Without the blanks and control characters at both ends.
std::string_view Trimmed(std::string_view text);

// The text's first bytes, at most so many, without a part of a UTF-8 character at their end.
std::string CutText(std::string_view text, size_t bytes);

// ASCII letters only; other bytes stay as they are.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);
// Order without regard to the case of ASCII letters: negative, 0 or positive.
int CompareNoCase(std::string_view a, std::string_view b);
inline bool EqualNoCase(std::string_view a, std::string_view b) { return CompareNoCase(a, b) == 0; }
bool StartsWithNoCase(std::string_view text, std::string_view prefix);

// The pieces between the separators, empty ones kept; an empty text gives no pieces.
std::vector<std::string> Split(std::string_view text, char separator);

// Nearest integer, halves away from zero; never -0, which would be shown as such.
inline double RoundHalfAway(double value) {
  return value < 0 ? std::ceil(value - 0.5) + 0.0 : std::floor(value + 0.5);
}
// The same for results of sines and cosines: what is half but for their last bits is half, on every machine.
inline double RoundComputed(double value) {
  constexpr double kParts = 1 << 20;
  return RoundHalfAway(RoundHalfAway(value * kParts) / kParts);
}
// Nearest multiple of step (at least 1), halves away from zero.
inline double Snap(double value, int step) { return RoundHalfAway(value / step) * step; }
// Integer part, the fraction dropped toward zero; a value out of an int's range gives the nearest int,
// not-a-number gives 0.
inline int Truncate(double value) {
  return std::isnan(value) ? 0 : int(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

}  // namespace velk
