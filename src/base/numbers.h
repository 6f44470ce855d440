// Numbers in other forms than plain text's (see base/text.h): the one reading of each that all file formats
// share.
#pragma once

#include <optional>
#include <string_view>

namespace velk {

// The whole number at the front of the text, after blanks, which it takes off: decimal, or as in a program
// "0x1f" in base 16 and "017" in base 8. Out of range it is the nearest int. Nothing is taken when there is
// none.
std::optional<int> TakeWhole(std::string_view& text);

// The number at the front of the text as a float, which it takes off; see TakeNumber. None for one beyond a
// float's range.
std::optional<float> TakeFloat(std::string_view& text);

// Whether the whole text is a plain decimal number (digits, a minus sign, a fraction) that can be read
// without rounding twice; the value is then the nearest double. For long files of short numbers.
bool PlainNumber(std::string_view text, double& value);

}  // namespace velk
