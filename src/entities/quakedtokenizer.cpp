#include "entities/quakedtokenizer.h"

#include <algorithm>

namespace velk {
namespace {

bool isSeparator(char c) { return c != 0 && static_cast<signed char>(c) <= 32; }
bool isSingle(char c) { return c == '{' || c == '}' || c == '(' || c == ')' || c == '\'' || c == ':'; }

}  // namespace

bool QuakedTokenizer::next() {
  token_ = {};
  for (;;) {
    while (!rest_.empty() && isSeparator(rest_.front())) rest_.remove_prefix(1);
    if (!rest_.starts_with("//")) break;
    rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
  }
  if (rest_.empty() || rest_.front() == 0) return false;
  size_t length = 1;
  if (rest_.front() == '"') {
    rest_.remove_prefix(1);
    const size_t quote = std::min(rest_.find('"'), rest_.size());
    token_ = rest_.substr(0, std::min(quote, kMaxToken));
    rest_.remove_prefix(std::min(quote + 1, rest_.size()));
    return true;
  }
  if (!isSingle(rest_.front())) {
    while (length < rest_.size() && rest_[length] != 0 && !isSeparator(rest_[length]) &&
           !isSingle(rest_[length])) {
      ++length;
    }
  }
  token_ = rest_.substr(0, std::min(length, kMaxToken));
  rest_.remove_prefix(length);
  return true;
}

}  // namespace velk
