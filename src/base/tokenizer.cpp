#include "base/tokenizer.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <algorithm>
#include <bit>
#include <cstring>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

// Bytes of 128 and above are text.
bool IsText(char c) { return static_cast<unsigned char>(c) > 32; }

bool StartsComment(const char* at, const char* end) { return end - at >= 2 && at[0] == '/' && at[1] == '/'; }

const char* Find(const char* from, const char* end, char wanted) {
  const void* found = from < end ? std::memchr(from, wanted, static_cast<size_t>(end - from)) : nullptr;
  return found ? static_cast<const char*>(found) : end;
}

// The first byte that is no text. Tokens are short and of irregular length, so a byte-wise loop would
// mostly wait for mispredicted branches.
const char* WordEnd(const char* from, const char* end) {
#ifdef __SSE2__
  const __m128i lastBlank = _mm_set1_epi8(32);
  for (; end - from >= 16; from += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    const int blanks = _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_min_epu8(bytes, lastBlank), bytes));
    if (blanks != 0) return from + std::countr_zero(static_cast<unsigned>(blanks));
  }
#endif
  return std::find_if_not(from, end, IsText);
}

// The number in a comment whose text after the slashes is "dddd" in quotes, otherwise 0.
int GroupNumber(const char* comment, const char* lineEnd) {
  if (lineEnd - comment < 6 || comment[0] != '"' || comment[5] != '"') return 0;
  return TextToInt(std::string_view(comment + 1, 4));
}

}  // namespace

void Tokenizer::StartScript(std::string_view text) {
  position_ = text.data();
  end_ = Find(position_, position_ + text.size(), '\0');
  line_ = 1;
  token_ = {};
  quoted_ = false;
}

bool Tokenizer::skipComment(bool acrossLines) {
  const char* comment = position_ + 2;
  const char* lineEnd = Find(comment, end_, '\n');
  if (capture_) capturedGroup_ = GroupNumber(comment, lineEnd);
  if (!acrossLines) Error("Line %i is incomplete\n", line_);
  ++line_;
  position_ = lineEnd < end_ ? lineEnd + 1 : end_;
  return lineEnd < end_;
}

bool Tokenizer::skipToToken(bool acrossLines) {
  for (;;) {
    for (; position_ < end_ && !IsText(*position_); ++position_) {
      if (*position_ != '\n') continue;
      if (!acrossLines) Error("Line %i is incomplete", line_);
      ++line_;
    }
    if (position_ < end_ && !StartsComment(position_, end_)) return true;
    if (position_ < end_ && skipComment(acrossLines)) continue;
    if (!acrossLines) Error("Line %i is incomplete", line_);
    return false;
  }
}

void Tokenizer::take(const char* start, const char* stop) {
  if (stop - start > kMaxToken) Error("Token too large on line %i", line_);
  token_ = {start, static_cast<size_t>(stop - start)};
}

void Tokenizer::takeQuoted() {
  const char* start = position_ + 1;
  const char* stop = Find(start, end_, '"');
  take(start, stop);
  if (stop == end_) Error("EOF inside quoted token");
  position_ = stop + 1;
}

bool Tokenizer::GetScriptToken(bool acrossLines) {
  // Nearly every token is a word behind a single blank.
  const char* start = position_ < end_ && *position_ == ' ' ? position_ + 1 : position_;
  if (start == end_ || !IsText(*start) || *start == '/' || *start == '"') {
    if (!skipToToken(acrossLines)) return false;
    start = position_;
  }
  quoted_ = *start == '"';
  if (quoted_) {
    takeQuoted();
    return true;
  }
  position_ = WordEnd(start, end_);
  take(start, position_);
  return true;
}

}  // namespace velk
