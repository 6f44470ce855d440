#include "build/output_line.h"

#include <array>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "base/tokenizer.h"

namespace velk {
namespace {

using Kind = OutputLine::Kind;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// The text behind a word of the line, without regard to case; none when the word is not in it.
std::optional<std::string_view> After(std::string_view lower, std::string_view word, size_t from = 0) {
  for (size_t at = lower.find(word, from); at != lower.npos; at = lower.find(word, at + 1)) {
    const size_t end = at + word.size();
    if (at > 0 && IsLetter(lower[at - 1])) continue;
    if (end < lower.size() && IsLetter(lower[end])) continue;
    return lower.substr(end);
  }
  return std::nullopt;
}

// The number behind a word: "line 12", "line: 12", "entity #3".
int NumberAfter(std::string_view lower, std::string_view word, int none) {
  auto rest = After(lower, word);
  if (!rest) return none;
  while (!rest->empty() && (rest->front() == ' ' || rest->front() == ':' || rest->front() == '#')) {
    rest->remove_prefix(1);
  }
  if (rest->empty() || rest->front() < '0' || rest->front() > '9') return none;
  return LeadingInt(*rest).value_or(none);
}

// Three numbers parted by blanks or commas.
std::optional<vec3> PointAt(std::string_view text) {
  vec3 point;
  for (int axis = 0; axis < 3; ++axis) {
    while (!text.empty() && (text.front() == ',' || text.front() == ' ' || text.front() == '(')) {
      text.remove_prefix(1);
    }
    const std::optional<double> number = TakeNumber(text);
    if (!number || !std::isfinite(static_cast<float>(*number))) return std::nullopt;
    point[axis] = static_cast<float>(*number);
  }
  return point;
}

std::optional<vec3> PointIn(std::string_view lower) {
  for (size_t at = lower.find('('); at != lower.npos; at = lower.find('(', at + 1)) {
    if (const auto point = PointAt(lower.substr(at + 1))) return point;
  }
  for (const char* word : {"at", "near", "point", "origin"}) {
    const auto rest = After(lower, word);
    const auto point = rest ? PointAt(*rest) : std::nullopt;
    if (point) return point;
  }
  return std::nullopt;
}

// Words first that mean more. "0 errors" says that there are none.
Kind KindOf(std::string_view lower) {
  constexpr std::array<std::pair<const char*, Kind>, 7> kWords{{{"leak", Kind::Leak},
                                                               {"leaked", Kind::Leak},
                                                               {"error", Kind::Error},
                                                               {"errors", Kind::Error},
                                                               {"not found", Kind::Error},
                                                               {"warning", Kind::Warning},
                                                               {"warnings", Kind::Warning}}};
  for (const auto& [word, kind] : kWords) {
    const auto rest = After(lower, word);
    if (!rest) continue;
    const size_t before = static_cast<size_t>(rest->data() - lower.data()) - std::string_view(word).size();
    const std::string_view count = Trimmed(lower.substr(0, before));
    const bool none = count == "0" || count == "no" || count.ends_with(" 0") || count.ends_with(" no");
    if (!none) return kind;
  }
  return Kind::Plain;
}

}  // namespace

OutputLine ReadOutputLine(std::string_view text) {
  const std::string lower = LowerCase(text);
  OutputLine line;
  line.text = text;
  line.kind = KindOf(lower);
  line.place.line = NumberAfter(lower, "line", 0);
  line.place.entity = NumberAfter(lower, "entity", -1);
  if (line.place.entity >= 0) line.place.brush = NumberAfter(lower, "brush", -1);
  line.place.point = PointIn(lower);
  return line;
}

// Over the bytes: quoted braces are text, comments end with their line.
MapPlace PlaceOfLine(std::string_view mapText, int line) {
  MapPlace place;
  int depth = 0, at = 1, entity = -1, brush = -1;
  bool quoted = false;
  for (size_t i = 0; i <= mapText.size(); ++i) {
    const char c = i < mapText.size() ? mapText[i] : '\n';
    if (c == '\n') {
      if (at == line) {
        place.line = line;
        place.entity = depth > 0 ? entity : -1;
        place.brush = depth > 1 ? brush : -1;
        return place;
      }
      ++at;
      quoted = false;
    } else if (c == '"') {
      quoted = !quoted;
    } else if (quoted) {
      continue;
    } else if (c == '/' && mapText.substr(i, 2) == "//") {
      i = std::min(mapText.find('\n', i), mapText.size()) - 1;
    } else if (c == '{') {
      if (++depth == 1) ++entity, brush = -1;
      if (depth == 2) ++brush;
    } else if (c == '}' && depth > 0) {
      --depth;
    }
  }
  return place;
}

}  // namespace velk
