#include "mapfile/face_text.h"

#include <algorithm>
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
#include "base/numbers.h"
#include "base/text.h"

namespace velk {
namespace {

double NumberOf(std::string_view text) {
  double value = 0;
  return PlainNumber(text, value) ? value : TextToDouble(text);
}

float StoredNumber(double value) { return static_cast<float>(std::clamp<double>(value, -FLT_MAX, FLT_MAX)); }

// Plane points are whole numbers: the fraction is dropped, and noted in `cut`.
float Coordinate(double value, bool& cut) {
  cut |= value != std::trunc(value);
  return static_cast<float>(Truncate(value));
}

void Require(const Tokenizer& tokens, std::string_view expected, const char* message) {
  if (tokens.token() != expected) Error("%s", message);
}

std::string_view SameLineToken(Tokenizer& tokens) {
  tokens.GetScriptToken(false);
  return tokens.token();
}

bool ReadPoint(Tokenizer& tokens, vec3& point, const FaceMessages& messages) {
  bool cut = false;
  for (int axis = 0; axis < 3; ++axis) point[axis] = Coordinate(NumberOf(SameLineToken(tokens)), cut);
  SameLineToken(tokens);
  Require(tokens, ")", messages.noClose);
  return cut;
}

// Several digits at a time: the bytes of the text as a word, the first byte lowest.
constexpr std::uint64_t kZeros = 0x3030303030303030;
constexpr std::uint64_t kOne = 0x3030303030302E31;  // "1.000000"

std::uint64_t LoadWord(const char* text) {
  std::uint64_t word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// The value of the first `count` bytes, 1 to 4; false when they are not all digits.
bool FourDigits(std::uint32_t word, int count, int& value) {
  // Every digit becomes its value; they move to the high bytes, zeros come in below.
  word = (word ^ static_cast<std::uint32_t>(kZeros)) << (32 - 8 * count);
  if (((word | (word + 0x06060606)) & 0xF0F0F0F0) != 0) return false;
  // Neighbours are joined to pairs, the pairs to the whole.
  word = word * 2561 >> 8 & 0x00FF00FF;
  value = static_cast<int>(word * 6553601 >> 16);
  return true;
}

// The same for 1 to 8.
bool EightDigits(std::uint64_t word, int count, int& value) {
  word = (word ^ kZeros) << (64 - 8 * count);
  if (((word | (word + 0x0606060606060606)) & 0xF0F0F0F0F0F0F0F0) != 0) return false;
  word = word * 2561 >> 8 & 0x00FF00FF00FF00FF;
  word = word * 6553601 >> 16 & 0x0000FFFF0000FFFF;
  value = static_cast<int>(word * 42949672960001 >> 32);
  return true;
}

// One token of a line, with at least 8 readable bytes from its first digit on.
struct LineToken {
  const char* text;
  int length;  // 0: the line is not in the usual form

  bool is(char c) const { return length == 1 && *text == c; }
  std::string_view view() const { return {text, static_cast<size_t>(length)}; }
  bool negative() const { return *text == '-'; }

  // Up to eight digits after an optional minus sign.
  bool smallInteger(int& magnitude) const {
    const int digits = length - negative();
    if (static_cast<unsigned>(digits - 1) > 7) return false;
    const std::uint64_t word = LoadWord(text + negative());
    return digits <= 4 ? FourDigits(static_cast<std::uint32_t>(word), digits, magnitude)
                       : EightDigits(word, digits, magnitude);
  }

  // "d.dddddd", the usual form of texture scales.
  bool sixDecimals(double& magnitude) const {
    if (length - negative() != 8) return false;
    const std::uint64_t word = LoadWord(text + negative());
    if (word == kOne) {
      magnitude = 1;
      return true;
    }
    if ((word >> 8 & 0xFF) != '.') return false;
    int millionths = 0;
    if (!EightDigits((word & ~std::uint64_t{0xFFFF}) | (word & 0xFF) << 8 | '0', 8, millionths)) return false;
    magnitude = millionths / 1e6;
    return true;
  }

  bool coordinate(float& value, bool& cut) const {
    int magnitude = 0;
    if (smallInteger(magnitude)) {
      value = static_cast<float>(negative() ? -magnitude : magnitude);
      return true;
    }
    double number = 0;
    if (!PlainNumber(view(), number)) return false;
    value = Coordinate(number, cut);
    return true;
  }

  bool number(float& value) const {
    int integer = 0;
    double magnitude = 0;
    if (sixDecimals(magnitude)) {
      value = static_cast<float>(negative() ? -magnitude : magnitude);
    } else if (smallInteger(integer)) {
      value = static_cast<float>(negative() ? -static_cast<double>(integer) : integer);
    } else if (PlainNumber(view(), magnitude)) {
      value = StoredNumber(magnitude);
    } else {
      return false;
    }
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

// The tokens of a line that are parted by one blank each, found for 64 bytes at a time.
class LineTokens {
 public:
  static constexpr int kBlocks = 3;
  // Bytes from the start of the line that may be looked at.
  static constexpr int kBytes = 64 * kBlocks + 8;

  // `line` starts with the blank before the first token.
  explicit LineTokens(const char* line) : block_(line), at_(line + 1), bytes_(Classify64(line)) {
    dropBlank();
  }

  LineToken next() {
    while (bytes_.blanks == 0) {
      if (blocks_ == kBlocks || bytes_.lineFeeds != 0) return {at_, 0};
      ++blocks_;
      block_ += 64;
      bytes_ = Classify64(block_);
    }
    const char* end = block_ + std::countr_zero(bytes_.blanks);
    dropBlank();
    const LineToken token{at_, static_cast<int>(end - at_)};
    at_ = end + 1;
    return token;
  }

  const char* end() const { return at_ - 1; }
  // The last token is on the line of the first.
  bool sameLine() const { return (bytes_.lineFeeds & ((std::uint64_t{1} << (end() - block_)) - 1)) == 0; }

 private:
  void dropBlank() { bytes_.blanks &= bytes_.blanks - 1; }

  const char* block_;
  const char* at_;
  Bytes64 bytes_;
  int blocks_ = 1;  // looked at
};

bool IsPlainName(const LineToken& name) {
  return name.length > 0 && *name.text != '"' && !name.view().starts_with("//");
}

void SetLowerCase(std::string& name, std::string_view text) {
  name.assign(text);
  for (char& c : name) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

}  // namespace

int ReadFaceLine(Tokenizer& tokens, face& f) {
  if constexpr (std::endian::native != std::endian::little) return -1;
  if (tokens.end() - tokens.position() < LineTokens::kBytes || *tokens.position() != ' ') return -1;
  LineTokens line(tokens.position());
  int cutPoints = 0;
  for (int point = 0; point < 3; ++point) {
    if (point > 0 && !line.next().is('(')) return -1;
    bool cut = false;
    for (int axis = 0; axis < 3; ++axis) {
      if (!line.next().coordinate(f.planepts[point][axis], cut)) return -1;
    }
    if (!line.next().is(')')) return -1;
    cutPoints += cut;
  }
  const LineToken name = line.next();
  texturedef& t = f.texture;
  for (float* number : {&t.shift[0], &t.shift[1], &t.rotate, &t.scale[0], &t.scale[1]}) {
    if (!line.next().number(*number)) return -1;
  }
  if (!line.sameLine() || !IsPlainName(name)) return -1;
  SetLowerCase(t.name, name.view());
  tokens.setPosition(line.end());
  return cutPoints;
}

int ReadFaceTokens(Tokenizer& tokens, face& f, const FaceMessages& messages) {
  int cutPoints = 0;
  for (int point = 0; point < 3; ++point) {
    if (point > 0) {
      if (!tokens.GetScriptToken(true)) Error("%s", messages.noOpen);
      Require(tokens, "(", messages.noOpen);
    }
    cutPoints += ReadPoint(tokens, f.planepts[point], messages);
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

int ReadFace(Tokenizer& tokens, face& f, const FaceMessages& messages) {
  const int cutPoints = ReadFaceLine(tokens, f);
  return cutPoints >= 0 ? cutPoints : ReadFaceTokens(tokens, f, messages);
}

}  // namespace velk
