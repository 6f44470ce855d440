// Text of the files that the editor writes, built in memory. Lines end with CR LF.
#pragma once

#include <string>
#include <string_view>

namespace velk {

// Longest results of PutInteger and PutSixDecimals.
inline constexpr int kIntegerLength = 11;
inline constexpr int kSixDecimalsLength = 47;

// Write the number at `at` and return the place after it. The texts are those of printf's "%d" and "%f";
// numbers that are not finite are written as 0.
char* PutManyDigits(char* at, int value);
inline char* PutInteger(char* at, int value) {
  if (value < 0 || value > 9) return PutManyDigits(at, value);
  *at = static_cast<char>('0' + value);
  return at + 1;
}
char* PutSixDecimals(char* at, float value);
inline char* PutText(char* at, std::string_view text) { return at + text.copy(at, text.size()); }

class TextOut {
 public:
  // A place for up to `size` bytes; what was written there counts after `taken`.
  char* room(size_t size) {
    if (text_.size() - used_ < size) grow(size);
    return text_.data() + used_;
  }
  void taken(const char* end) { used_ = static_cast<size_t>(end - text_.data()); }

  void add(std::string_view text) { taken(PutText(room(text.size()), text)); }
  void line(std::string_view text) {
    add(text);
    add("\r\n");
  }

  // Hands the text over.
  std::string take();

 private:
  void grow(size_t size);

  std::string text_;  // longer than used_: the rest is room
  size_t used_ = 0;
};

}  // namespace velk
