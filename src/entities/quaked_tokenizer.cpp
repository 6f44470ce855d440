#include "entities/quaked_tokenizer.h"

#include <algorithm>

namespace velk {
namespace {

bool IsSeparator(char c) { return static_cast<signed char>(c) <= 32; }
bool IsSingle(char c) { return std::string_view("{}()':").find(c) != std::string_view::npos; }

size_t WordLength(std::string_view text) {
  if (IsSingle(text.front())) return 1;
  const auto* end = std::ranges::find_if(text, [](char c) { return IsSeparator(c) || IsSingle(c); });
  return static_cast<size_t>(end - text.begin());
}

}  // namespace

void QuakedTokenizer::skipToToken() {
  for (;;) {
    while (!rest_.empty() && IsSeparator(rest_.front())) rest_.remove_prefix(1);
    if (!rest_.starts_with("//")) return;
    rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
  }
}

bool QuakedTokenizer::next() {
  skipToToken();
  take(0);
  if (rest_.empty()) return false;
  if (rest_.front() == '"') {
    rest_.remove_prefix(1);
    const size_t quote = std::min(rest_.find('"'), rest_.size());
    take(quote);
    rest_.remove_prefix(std::min(quote + 1, rest_.size()));
  } else {
    const size_t length = WordLength(rest_);
    take(length);
    rest_.remove_prefix(length);
  }
  return true;
}

}  // namespace velk
