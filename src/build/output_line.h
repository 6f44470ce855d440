// The lines that a compiler writes, and what they say about the map.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geometry/vec3.h"

namespace velk {

// What of the map a line names.
struct MapPlace {
  int line = 0;     // of the map's file, 1 the first; 0 for none
  int entity = -1;  // 0 the world; -1 for none
  int brush = -1;   // of that entity; -1 for none
  std::optional<vec3> point;
  bool any() const { return line > 0 || entity >= 0 || point.has_value(); }
};

struct OutputLine {
  enum class Kind { Plain, Head, Good, Warning, Error, Leak };
  std::string text;
  Kind kind = Kind::Plain;
  MapPlace place{};
};

// Reads one line, without its end: marked by the words "error", "warning" and "leak", and linked by "line
// 12", "entity 3", "brush 4" and a point such as "(16 -32 8)" or "at 16 -32 8".
OutputLine ReadOutputLine(std::string_view text);

// Entity and brush of a line of a map's text, counted as the text lists them; neither when it is outside.
MapPlace PlaceOfLine(std::string_view mapText, int line);

}  // namespace velk
