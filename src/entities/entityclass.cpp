#include "entities/entityclass.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "base/error.h"
#include "entities/quakedtokenizer.h"

namespace velk {
namespace {

constexpr std::string_view kMark = "/*QUAKED";
constexpr size_t kMaxFlagName = 31;
constexpr size_t kMaxFlagLine = 255;

void skipBlanks(std::string_view& text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
}

bool skipCharacter(std::string_view& text, char wanted) {
  skipBlanks(text);
  if (!text.starts_with(wanted)) return false;
  text.remove_prefix(1);
  return true;
}

bool readNumber(std::string_view& text, float& number) {
  skipBlanks(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return false;
  text.remove_prefix(static_cast<size_t>(end - text.data()));
  return true;
}

// Three numbers; what was read before a failure is kept.
bool readNumbers(std::string_view& text, std::array<float, 3>& numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [&](float& number) { return readNumber(text, number); });
}

bool moveAfter(std::string_view& text, char wanted) {
  const size_t at = text.find(wanted);
  if (at == std::string_view::npos) return false;
  text.remove_prefix(at + 1);
  return true;
}

bool readBox(std::string_view& text, std::array<float, 3>& mins, std::array<float, 3>& maxs) {
  std::string_view numbers = text;
  if (!readNumbers(numbers, mins) || !skipCharacter(numbers, ')') || !skipCharacter(numbers, '(') ||
      !readNumbers(numbers, maxs)) {
    return false;
  }
  return moveAfter(text, ')') && moveAfter(text, ')');
}

void readFlagNames(std::string_view line, std::array<std::string, 8>& names) {
  QuakedTokenizer tokens(line.substr(0, kMaxFlagLine));
  for (std::string& name : names) {
    if (!tokens.next()) return;
    name = tokens.token().substr(0, kMaxFlagName);
  }
}

}  // namespace

const std::string& EntityClass::flagName(int bit) const {
  if (bit < 0 || bit > 7) Error("EntityClass flagName: bad number");
  return flagNames[static_cast<size_t>(bit)];
}

void EntityClass::parseDefinition(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  QuakedTokenizer header(text.substr(std::min(kMark.size() + 1, text.size())));
  if (!header.next()) return;
  name = header.token();
  std::string_view rest = header.rest();
  std::string_view colour = rest;
  if (!skipCharacter(colour, '(') || !readNumbers(colour, color) || !moveAfter(rest, ')')) return;
  QuakedTokenizer body(rest);
  if (!body.next()) return;
  fixedSize = body.token() == "(";
  rest = body.rest();
  if (fixedSize && !readBox(rest, mins, maxs)) return;
  const size_t lineEnd = std::min(rest.find('\n'), rest.size());
  readFlagNames(rest.substr(0, lineEnd), flagNames);
  rest.remove_prefix(std::min(lineEnd + 1, rest.size()));
  comments = rest.substr(0, rest.find("*/"));
}

}  // namespace velk
