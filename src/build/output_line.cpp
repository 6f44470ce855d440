#include "build/output_line.h"

#include <algorithm>
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
std::optional<std::string_view> After(std::string_view lower, std::string_view word) {
  for (size_t at = lower.find(word); at != lower.npos; at = lower.find(word, at + 1)) {
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
    const std::optional<float> number = TakeFloat(text);
    if (!number) return std::nullopt;
    point[axis] = *number;
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
                                                                {"warning", Kind::Warning},
                                                                {"warnings", Kind::Warning},
                                                                {"not found", Kind::Error}}};
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

// Where in a map's text the lines passed so far end.
class MapLines {
 public:
  // Braces count that stand alone: others are part of a text or of a texture's name. Comments end with their
  // line.
  void pass(std::string_view line) {
    bool quoted = false;
    for (size_t i = 0; i < line.size(); ++i) {
      if (line[i] == '"') quoted = !quoted;
      if (quoted) continue;
      if (line.substr(i, 2) == "//") return;
      if (!isBlank(line, i - 1) || !isBlank(line, i + 1)) continue;
      if (line[i] == '{') open();
      if (line[i] == '}' && depth_ > 0) --depth_;
    }
  }
  MapPlace place(int line) const {
    MapPlace place;
    place.line = line;
    place.entity = depth_ > 0 ? entity_ : -1;
    place.brush = depth_ > 1 ? brush_ : -1;
    return place;
  }

 private:
  // Also beyond the line's ends.
  static bool isBlank(std::string_view line, size_t at) {
    return at >= line.size() || static_cast<unsigned char>(line[at]) <= ' ';
  }
  void open() {
    if (++depth_ == 1) {
      ++entity_;
      brush_ = -1;
    } else if (depth_ == 2) {
      ++brush_;
    }
  }

  int depth_ = 0;
  int entity_ = -1;
  int brush_ = -1;
};

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

MapPlace PlaceOfLine(std::string_view mapText, int line) {
  MapLines lines;
  for (int at = 1; !mapText.empty(); ++at) {
    const std::string_view text = mapText.substr(0, mapText.find('\n'));
    mapText.remove_prefix(std::min(text.size() + 1, mapText.size()));
    lines.pass(text);
    if (at == line) return lines.place(line);
  }
  return {};
}

}  // namespace velk
