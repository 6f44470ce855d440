// The tokenizer of all of the editor's text formats: words and quoted strings parted by whitespace,
// "//" comments to the end of a line, and a strict notion of a token on the same line.
#pragma once

#include <string_view>

namespace velk {

class Tokenizer {
 public:
  // Longest token, in characters.
  static constexpr int kMaxToken = 255;

  Tokenizer() = default;
  explicit Tokenizer(std::string_view text) { StartScript(text); }

  // Starts at the beginning of `text`, line 1. The text must outlive the reading; it ends at its first
  // NUL byte or at its end.
  void StartScript(std::string_view text);

  // Reads the next token; false at the end of the text. With acrossLines the token may stand on a later
  // line than the one before; without, a missing token is fatal "Line %i is incomplete".
  // Also fatal: "EOF inside quoted token", "Token too large on line %i".
  bool GetScriptToken(bool acrossLines);

  // The last token, without its quotes; valid as long as the text is.
  std::string_view token() const { return token_; }
  // The last token was quoted.
  bool quoted() const { return quoted_; }
  // The last token is that character, unquoted; in quotes it would be a text.
  bool isMark(char mark) const { return !quoted_ && token_.size() == 1 && token_.front() == mark; }
  // The line being read, 1 at the start of the text. Line feeds inside quoted tokens do not count.
  int line() const { return line_; }

  // While on, every skipped comment is examined for a group number: //"dddd", four characters of which
  // the leading digits count.
  void setCapture(bool on) { capture_ = on; }
  // The number in the last comment examined, 0 when it held none.
  int capturedGroup() const { return capturedGroup_; }

  // The text not read yet, for readers with a faster path through well-formed lines.
  const char* position() const { return position_; }
  const char* end() const { return end_; }
  // Goes on at `position`, which must lie in the rest of the same line.
  void setPosition(const char* position) { position_ = position; }

 private:
  bool skipToToken(bool acrossLines);
  bool skipComment(bool acrossLines);
  void take(const char* start, const char* stop);
  void takeQuoted();

  const char* position_ = nullptr;
  const char* end_ = nullptr;
  std::string_view token_;
  int line_ = 1;
  int capturedGroup_ = 0;
  bool capture_ = false;
  bool quoted_ = false;
};

}  // namespace velk
