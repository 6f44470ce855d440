#pragma once

#include <string_view>

namespace velk {

// The tokenizer of entity definitions: words, quoted texts, and { } ( ) ' : as tokens of their own.
class QuakedTokenizer {
 public:
  static constexpr size_t kMaxToken = 1023;

  explicit QuakedTokenizer(std::string_view text) : rest_(text) {}

  // False when the text ends before a token begins.
  bool next();
  std::string_view token() const { return token_; }
  std::string_view rest() const { return rest_; }

 private:
  std::string_view rest_;
  std::string_view token_;
};

}  // namespace velk
