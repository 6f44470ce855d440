// The tokenizer of entity class definitions.
#pragma once

#include <string_view>

namespace velk {

// Reads words, quoted texts, and { } ( ) ' : as tokens of their own; "//" comments out the rest of a line
// and bytes of 128 and above separate like blanks. The text ends at its first NUL byte or at its end.
class QuakedTokenizer {
 public:
  // Characters; longer tokens are cut, the rest of them is skipped.
  static constexpr size_t kMaxToken = 1023;

  explicit QuakedTokenizer(std::string_view text) : rest_(text.substr(0, text.find('\0'))) {}

  // Reads the next token; false when the text ends before one begins.
  bool next();
  // The last token, without its quotes; valid as long as the text is.
  std::string_view token() const { return token_; }
  // The text after the last token.
  std::string_view rest() const { return rest_; }

 private:
  void skipToToken();
  void take(size_t length) { token_ = rest_.substr(0, length < kMaxToken ? length : kMaxToken); }

  std::string_view rest_;
  std::string_view token_;
};

}  // namespace velk
