// Text and rounding helpers shared by every layer.
#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

// printf into a string.
std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Text to integer as the C library's atoi reads it (blanks, sign, leading digits; 0 when there are
// none), but a number out of range gives the nearest int.
int TextToInt(std::string_view text);
// Text to number: the longest leading decimal number, 0 when there is none.
double TextToDouble(std::string_view text);

// ASCII letters only; other bytes stay as they are.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);
// Order without regard to the case of ASCII letters: negative, 0 or positive.
int CompareNoCase(std::string_view a, std::string_view b);
inline bool EqualNoCase(std::string_view a, std::string_view b) { return CompareNoCase(a, b) == 0; }
bool StartsWithNoCase(std::string_view text, std::string_view prefix);

// The pieces between the separators, empty ones kept; an empty text gives no pieces.
std::vector<std::string> Split(std::string_view text, char separator);

// Nearest integer, halves away from zero.
inline double RoundHalfAway(double value) { return value < 0 ? std::ceil(value - 0.5) : std::floor(value + 0.5); }
// Nearest multiple of step (at least 1), halves away from zero.
inline double Snap(double value, int step) { return RoundHalfAway(value / step) * step; }
// Integer part, the fraction dropped toward zero; a value out of an int's range gives the nearest int,
// not-a-number gives 0.
int Truncate(double value);

}  // namespace velk
