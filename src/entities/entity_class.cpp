#include "entities/entity_class.h"

#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "entities/quaked_tokenizer.h"

namespace velk {
namespace {

constexpr size_t kMaxFlagName = 31;
constexpr size_t kMaxFlagLine = 255;
// Longer than any real comment; keeps a damaged file's open comments from filling the memory.
constexpr size_t kMaxComment = 65536;
// Beyond any map; keeps numbers of damaged files within what geometry can be computed with.
constexpr double kFarthest = 1e6;

// After blanks.
bool TakeCharacter(std::string_view& text, char wanted) {
  const size_t at = text.find_first_not_of(" \t\r\n\v\f");
  if (at == text.npos || text[at] != wanted) return false;
  text.remove_prefix(at + 1);
  return true;
}

// Three numbers; those read before a failure are kept.
bool TakeNumbers(std::string_view& text, std::array<float, 3>& numbers) {
  for (float& number : numbers) {
    const auto value = TakeNumber(text);
    if (!value) return false;
    number = static_cast<float>(std::clamp(*value, -kFarthest, kFarthest));
  }
  return true;
}

bool MoveAfter(std::string_view& text, std::string_view wanted) {
  const size_t at = text.find(wanted);
  if (at == text.npos) return false;
  text.remove_prefix(at + wanted.size());
  return true;
}

bool TakeColour(std::string_view& text, std::array<float, 3>& color) {
  std::string_view numbers = text;
  return TakeCharacter(numbers, '(') && TakeNumbers(numbers, color) && MoveAfter(text, ")");
}

// The two corners, behind the first "(".
bool TakeBox(std::string_view& text, std::array<float, 3>& mins, std::array<float, 3>& maxs) {
  std::string_view numbers = text;
  return TakeNumbers(numbers, mins) && TakeCharacter(numbers, ')') && TakeCharacter(numbers, '(') &&
         TakeNumbers(numbers, maxs) && MoveAfter(text, ")") && MoveAfter(text, ")");
}

void ReadFlagNames(std::string_view line, std::array<std::string, 8>& names) {
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
  // The mark and the blank after it.
  QuakedTokenizer header(text.substr(std::min(kMark.size() + 1, text.size())));
  if (!header.next()) return;
  name = header.token();
  std::string_view rest = header.rest();
  if (!TakeColour(rest, color)) return;

  QuakedTokenizer body(rest);
  if (!body.next()) return;
  fixedSize = body.token() == "(";
  rest = body.rest();
  if (fixedSize && !TakeBox(rest, mins, maxs)) return;

  const size_t line = std::min(rest.find('\n'), rest.size());
  ReadFlagNames(rest.substr(0, line), flagNames);
  rest.remove_prefix(std::min(line + 1, rest.size()));
  rest = rest.substr(0, kMaxComment);
  comments = rest.substr(0, rest.find("*/"));
}

}  // namespace velk
