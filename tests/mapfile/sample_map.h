// Maps read from texts, and texts of cubes.
#pragma once

#include <string>

#include "base/text.h"
#include "mapfile/map_reader.h"
#include "mapfile/map_writer.h"
#include "support/builders.h"

namespace velk::test {

struct SampleMap : TestMap {
  SampleMap() = default;
  explicit SampleMap(std::string_view text) { read(text); }

  MapReadResult read(std::string_view text, const MapReadOptions& options = {}) {
    return ReadMapText(m, text, "test.map", options);
  }
  std::string text(bool comments = true, bool selectedOnly = false) {
    return MapFileText(m, {.comments = comments, .selectedOnly = selectedOnly});
  }
};

// The faces of a cube of 64 units a side, at 64 * place along x.
inline std::string CubeFaces(int place, const std::string& texture = "brick1 0 0 0 1.000000 1.000000") {
  const int a = 64 * place, b = a + 64;
  const int points[][9] = {{a, 64, 64, a, 0, 64, a, 0, 0},   {b, 64, 64, a, 64, 64, a, 64, 0},
                           {b, 0, 64, b, 64, 64, b, 64, 0},  {a, 0, 64, b, 0, 64, b, 0, 0},
                           {a, 0, 64, a, 64, 64, b, 64, 64}, {b, 64, 0, a, 64, 0, a, 0, 0}};
  std::string text;
  for (const auto& p : points) {
    for (int i = 0; i < 9; i += 3) text += Format("( %d %d %d ) ", p[i], p[i + 1], p[i + 2]);
    text += texture + "\n";
  }
  return text;
}

inline std::string Cube(int place) { return "{\n" + CubeFaces(place) + "}\n"; }

inline std::string WithCrLf(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '\n' ? "\r\n" : std::string(1, c);
  return result;
}

}  // namespace velk::test
