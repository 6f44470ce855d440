#include "mapfile/text_out.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

namespace velk {
namespace {

constexpr std::uint64_t kMillion = 1000000;

// A finite float is mantissa * 2^exponent with a mantissa below 2^24; in millionths that is a whole number
// below 2^44 times a power of two, so the rounding (to nearest, ties to even, as printf's) is exact.
std::uint64_t Millionths(std::uint64_t mantissa, int exponent) {
  const std::uint64_t scaled = mantissa * kMillion;
  if (exponent >= 0) return scaled << exponent;
  const int drop = -exponent;
  if (drop > 45) return 0;
  const std::uint64_t whole = scaled >> drop;
  const std::uint64_t rest = scaled - (whole << drop);
  const std::uint64_t half = std::uint64_t{1} << (drop - 1);
  return whole + (rest > half || (rest == half && (whole & 1) != 0));
}

}  // namespace

char* PutManyDigits(char* at, int value) { return std::to_chars(at, at + kIntegerLength, value).ptr; }

char* PutSixDecimals(char* at, float value) {
  if (value == 1) return PutText(at, "1.000000");
  if (!std::isfinite(value)) value = 0;
  const auto bits = std::bit_cast<std::uint32_t>(value);
  if (bits >> 31 != 0) *at++ = '-';
  // The exponent of a whole mantissa; numbers without its implied highest bit have the lowest exponent.
  const int biased = bits >> 23 & 0xFF;
  const std::uint64_t mantissa = (bits & 0x7FFFFF) | (biased > 0 ? 0x800000 : 0);
  const int exponent = std::max(biased, 1) - 150;
  if (exponent > 18) {  // out of the range of 64 bits
    return std::to_chars(at, at + kSixDecimalsLength, std::fabs(value), std::chars_format::fixed, 6).ptr;
  }
  const std::uint64_t millionths = Millionths(mantissa, exponent);
  at = std::to_chars(at, at + 20, millionths / kMillion).ptr;
  *at++ = '.';
  std::uint64_t fraction = millionths % kMillion;
  for (int digit = 5; digit >= 0; --digit, fraction /= 10) at[digit] = static_cast<char>('0' + fraction % 10);
  return at + 6;
}

void TextOut::grow(size_t size) { text_.resize(std::max(2 * text_.size(), used_ + size + 4096)); }

std::string TextOut::take() {
  text_.resize(std::exchange(used_, 0));
  return std::exchange(text_, {});
}

}  // namespace velk
