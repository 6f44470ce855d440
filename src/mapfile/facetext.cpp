#include "mapfile/facetext.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                   1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};

// A plain decimal number: digits with an optional minus sign and fraction. Up to 15 digits and powers of
// ten up to 22 are exact as doubles, so one division gives the nearest double.
bool ParsePlainNumber(std::string_view text, double& value) {
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

double NumberOf(std::string_view text) {
  double value = 0;
  return ParsePlainNumber(text, value) ? value : TextToDouble(text);
}

float StoredNumber(double value) { return static_cast<float>(std::clamp<double>(value, -FLT_MAX, FLT_MAX)); }

// Plane points are whole numbers: the fraction is dropped, and noted in `cut`.
float Coordinate(double value, bool& cut) {
  cut |= value != std::trunc(value);
  return static_cast<float>(Truncate(value));
}

void Require(const Tokenizer& tokens, std::string_view expected) {
  if (tokens.token() != expected) Error("parsing map file");
}

std::string_view SameLineToken(Tokenizer& tokens) {
  tokens.GetScriptToken(false);
  return tokens.token();
}

bool ReadPoint(Tokenizer& tokens, vec3& point) {
  bool cut = false;
  for (int axis = 0; axis < 3; ++axis) point[axis] = Coordinate(NumberOf(SameLineToken(tokens)), cut);
  SameLineToken(tokens);
  Require(tokens, ")");
  return cut;
}

// Eight digits at a time: a word of ASCII digits, the first digit in the lowest byte.
constexpr std::uint64_t kZeros = 0x3030303030303030;

std::uint64_t LoadWord(const char* text) {
  std::uint64_t word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

bool AllDigits(std::uint64_t word) {
  constexpr std::uint64_t high = 0xF0F0F0F0F0F0F0F0;
  return (word & high) == kZeros && ((word + 0x0606060606060606) & high) == kZeros;
}

int DigitsValue(std::uint64_t word) {
  word = (word & 0x0F0F0F0F0F0F0F0F) * 2561 >> 8;
  word = (word & 0x00FF00FF00FF00FF) * 6553601 >> 16;
  return static_cast<int>((word & 0x0000FFFF0000FFFF) * 42949672960001 >> 32);
}

// One token of a line, with at least 8 readable bytes from its first digit on.
struct LineToken {
  const char* text;
  int length;

  bool is(char c) const { return length == 1 && *text == c; }
  std::string_view view() const { return {text, static_cast<size_t>(length)}; }

  // Up to eight digits after an optional minus sign. A negative zero keeps its sign only as `negative`.
  bool smallInteger(int& magnitude, bool& negative) const {
    negative = *text == '-';
    const int digits = length - negative;
    if (digits < 1 || digits > 8) return false;
    std::uint64_t word = LoadWord(text + negative);
    // The digits move to the high bytes and zeros fill up the low ones.
    word = word << (64 - 8 * digits) | (kZeros >> (4 * digits) >> (4 * digits));
    magnitude = DigitsValue(word);
    return AllDigits(word);
  }

  // "d.dddddd", the usual form of texture scales.
  bool sixDecimals(double& value) const {
    const bool negative = *text == '-';
    if (length - negative != 8) return false;
    std::uint64_t word = LoadWord(text + negative);
    if ((word >> 8 & 0xFF) != '.') return false;
    word = (word & ~std::uint64_t{0xFFFF}) | (word & 0xFF) << 8 | '0';
    value = DigitsValue(word) / 1e6;
    if (negative) value = -value;
    return AllDigits(word);
  }

  bool coordinate(float& value, bool& cut) const {
    int magnitude = 0;
    bool negative = false;
    if (smallInteger(magnitude, negative)) {
      value = static_cast<float>(negative ? -magnitude : magnitude);
      return true;
    }
    double number = 0;
    if (!ParsePlainNumber(view(), number)) return false;
    value = Coordinate(number, cut);
    return true;
  }

  bool number(float& value) const {
    int magnitude = 0;
    bool negative = false;
    double number = 0;
    if (smallInteger(magnitude, negative)) {
      number = negative ? -static_cast<double>(magnitude) : magnitude;
    } else if (!sixDecimals(number) && !ParsePlainNumber(view(), number)) {
      return false;
    }
    value = StoredNumber(number);
    return true;
  }
};

struct Bytes64 {
  std::uint64_t blanks = 0;  // one bit a byte, the first lowest: bytes up to 32
  std::uint64_t lineFeeds = 0;
};

Bytes64 Classify64(const char* text) {
  Bytes64 found;
  for (int i = 0; i < 64; i += 16) {
#if defined(__SSE2__)
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + i));
    const __m128i blank = _mm_cmpeq_epi8(_mm_min_epu8(bytes, _mm_set1_epi8(32)), bytes);
    const __m128i feed = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'));
    found.blanks |= std::uint64_t(static_cast<unsigned>(_mm_movemask_epi8(blank))) << i;
    found.lineFeeds |= std::uint64_t(static_cast<unsigned>(_mm_movemask_epi8(feed))) << i;
#else
    for (int k = i; k < i + 16; ++k) {
      found.blanks |= std::uint64_t{static_cast<unsigned char>(text[k]) <= 32} << k;
      found.lineFeeds |= std::uint64_t{text[k] == '\n'} << k;
    }
#endif
  }
  return found;
}

// What follows the opening "(": three points with their parentheses, the name and five numbers.
constexpr int kLineTokens = 20;
constexpr int kNameToken = 14;
constexpr int kLineBlocks = 3;
// Bytes that the fast way may look at: whole blocks, and a word from the last of their bytes.
constexpr int kLineBytes = 64 * kLineBlocks + 8;

// Finds where the tokens of the line begin and end: edges 2i and 2i+1 for token i. False when the line
// has fewer tokens, or does not end its last one within the blocks.
bool FindTokens(const char* line, std::array<std::uint8_t, 2 * kLineTokens + 64>& edges) {
  int count = 0;
  std::uint64_t before = 1;  // the byte before counts as blank: the line goes on with one
  for (int block = 0; block < kLineBlocks; ++block) {
    const Bytes64 bytes = Classify64(line + 64 * block);
    std::uint64_t changes = bytes.blanks ^ (bytes.blanks << 1 | before);
    before = bytes.blanks >> 63;
    const int found = std::popcount(changes);
    for (int i = 0; i < found; ++i, changes &= changes - 1) {
      edges[static_cast<size_t>(count + i)] =
          static_cast<std::uint8_t>(64 * block + std::countr_zero(changes));
    }
    count += found;
    if (count >= 2 * kLineTokens) {
      const int end = edges[2 * kLineTokens - 1];
      return bytes.lineFeeds == 0 || 64 * block + std::countr_zero(bytes.lineFeeds) >= end;
    }
    if (bytes.lineFeeds != 0) return false;
  }
  return false;
}

// Token `i` of the line, as FindTokens found it.
LineToken TokenAt(const char* line, const std::array<std::uint8_t, 2 * kLineTokens + 64>& edges, int i) {
  const auto at = static_cast<size_t>(2 * i);
  return {line + edges[at], edges[at + 1] - edges[at]};
}

bool IsPlainName(const LineToken& name) {
  return *name.text != '"' && !(name.text[0] == '/' && name.text[1] == '/');
}

void SetLowerCase(std::string& name, std::string_view text) {
  name.assign(text);
  for (char& c : name) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

}  // namespace

int ReadFaceLine(Tokenizer& tokens, face& f) {
  if constexpr (std::endian::native != std::endian::little) return -1;
  const char* line = tokens.position();
  if (tokens.end() - line < kLineBytes || static_cast<unsigned char>(*line) > 32) return -1;
  std::array<std::uint8_t, 2 * kLineTokens + 64> edges;
  if (!FindTokens(line, edges)) return -1;
  const auto token = [&](int i) { return TokenAt(line, edges, i); };

  if (!token(3).is(')') || !token(4).is('(') || !token(8).is(')') || !token(9).is('(') || !token(13).is(')'))
    return -1;
  int cutPoints = 0;
  for (int point = 0; point < 3; ++point) {
    bool cut = false;
    for (int axis = 0; axis < 3; ++axis) {
      if (!token(5 * point + axis).coordinate(f.planepts[point][axis], cut)) return -1;
    }
    cutPoints += cut;
  }
  float* const numbers[] = {&f.texture.shift[0], &f.texture.shift[1], &f.texture.rotate, &f.texture.scale[0],
                            &f.texture.scale[1]};
  for (int i = 0; i < 5; ++i) {
    if (!token(kNameToken + 1 + i).number(*numbers[i])) return -1;
  }
  const LineToken name = token(kNameToken);
  if (!IsPlainName(name)) return -1;
  SetLowerCase(f.texture.name, name.view());
  tokens.setPosition(line + edges[2 * kLineTokens - 1]);
  return cutPoints;
}

int ReadFaceTokens(Tokenizer& tokens, face& f) {
  int cutPoints = 0;
  for (int point = 0; point < 3; ++point) {
    if (point > 0) {
      if (!tokens.GetScriptToken(true)) Error("parsing map file");
      Require(tokens, "(");
    }
    cutPoints += ReadPoint(tokens, f.planepts[point]);
  }
  f.texture.name = LowerCase(SameLineToken(tokens));
  if (SameLineToken(tokens).starts_with('[')) {
    Error("Line %i gives its texture axes in square brackets, a format that Velk does not read",
          tokens.line());
  }
  f.texture.shift[0] = StoredNumber(NumberOf(tokens.token()));
  f.texture.shift[1] = StoredNumber(NumberOf(SameLineToken(tokens)));
  f.texture.rotate = StoredNumber(NumberOf(SameLineToken(tokens)));
  f.texture.scale[0] = StoredNumber(NumberOf(SameLineToken(tokens)));
  f.texture.scale[1] = StoredNumber(NumberOf(SameLineToken(tokens)));
  return cutPoints;
}

int ReadFace(Tokenizer& tokens, face& f) {
  const int cutPoints = ReadFaceLine(tokens, f);
  return cutPoints >= 0 ? cutPoints : ReadFaceTokens(tokens, f);
}

}  // namespace velk
