#include "base/tokenizer.h"

#include <cstring>

#include "base/error.h"

namespace velk {
namespace {

// Bytes of 128 and above are text.
bool isText(char c) { return static_cast<unsigned char>(c) > 32; }

int groupNumber(const char* comment, const char* end) {
  if (end - comment < 6 || comment[0] != '"' || comment[5] != '"') return 0;
  int number = 0;
  for (int i = 1; i < 5 && comment[i] >= '0' && comment[i] <= '9'; ++i) number = number * 10 + (comment[i] - '0');
  return number;
}

}  // namespace

void Tokenizer::StartScript(std::string_view text) {
  position_ = text.data();
  const void* nul = text.empty() ? nullptr : std::memchr(text.data(), 0, text.size());
  end_ = nul ? static_cast<const char*>(nul) : text.data() + text.size();
  line_ = 1;
  token_ = {};
  quoted_ = false;
}

bool Tokenizer::skipComment(bool acrossLines) {
  position_ += 2;
  if (capture_) capturedGroup_ = groupNumber(position_, end_);
  if (!acrossLines) Error("Line %i is incomplete\n", line_);
  const void* lineEnd = position_ < end_ ? std::memchr(position_, '\n', static_cast<size_t>(end_ - position_)) : nullptr;
  ++line_;
  position_ = lineEnd ? static_cast<const char*>(lineEnd) + 1 : end_;
  return lineEnd != nullptr;
}

bool Tokenizer::skipToToken(bool acrossLines) {
  for (;;) {
    while (position_ < end_ && !isText(*position_)) {
      if (*position_ == '\n') {
        if (!acrossLines) Error("Line %i is incomplete", line_);
        ++line_;
      }
      ++position_;
    }
    if (position_ >= end_) {
      if (!acrossLines) Error("Line %i is incomplete", line_);
      return false;
    }
    if (*position_ != '/' || end_ - position_ < 2 || position_[1] != '/') return true;
    if (!skipComment(acrossLines)) return false;
  }
}

bool Tokenizer::GetScriptToken(bool acrossLines) {
  token_ = {};
  if (!skipToToken(acrossLines)) return false;
  quoted_ = *position_ == '"';
  const char* start = position_;
  if (quoted_) {
    ++start;
    const void* quote = std::memchr(start, '"', static_cast<size_t>(end_ - start));
    const char* stop = quote ? static_cast<const char*>(quote) : end_;
    if (stop - start > kMaxToken) Error("Token too large on line %i", line_);
    if (!quote) Error("EOF inside quoted token");
    token_ = {start, static_cast<size_t>(stop - start)};
    position_ = stop + 1;
    return true;
  }
  while (position_ < end_ && isText(*position_)) ++position_;
  if (position_ - start > kMaxToken) Error("Token too large on line %i", line_);
  token_ = {start, static_cast<size_t>(position_ - start)};
  return true;
}

}  // namespace velk
