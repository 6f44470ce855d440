// A map with a few entity classes, and texts to fill it from.
#pragma once

#include <string>

#include "base/text.h"
#include "mapfile/mapreader.h"
#include "mapfile/mapwriter.h"
#include "model/map.h"

namespace velk::test {

struct SampleMap {
  Settings settings;
  EntityClassList classes;
  map m{settings, classes};

  SampleMap() {
    classes.scanText(
        "/*QUAKED worldspawn (0 0 0) ?\n*/\n"
        "/*QUAKED func_door (0 .5 .8) ?\n*/\n"
        "/*QUAKED light (0 1 0) (-8 -8 -8) (8 8 8)\n*/\n"
        "/*QUAKED info_player_start (1 0 0) (-16 -16 -24) (16 16 32)\n*/\n");
  }
  explicit SampleMap(std::string_view text) : SampleMap() { read(text); }

  MapReadResult read(std::string_view text, const MapReadOptions& options = {}) {
    return ReadMapText(m, text, "test.map", options);
  }
  std::string text(bool comments = true, bool selectedOnly = false) {
    return MapFileText(m, {.comments = comments, .selectedOnly = selectedOnly});
  }
};

// The faces of a cube of 64 units a side, 64 * place along x.
inline std::string CubeFaces(int place, const std::string& texture = "brick1 0 0 0 1.000000 1.000000") {
  const int a = 64 * place;
  const int b = a + 64;
  const int sides[][9] = {{a, 64, 64, a, 0, 64, a, 0, 0},   {b, 64, 64, a, 64, 64, a, 64, 0},
                          {b, 0, 64, b, 64, 64, b, 64, 0},  {a, 0, 64, b, 0, 64, b, 0, 0},
                          {a, 0, 64, a, 64, 64, b, 64, 64}, {b, 64, 0, a, 64, 0, a, 0, 0}};
  std::string text;
  for (const auto& p : sides) {
    text += Format("( %d %d %d ) ( %d %d %d ) ( %d %d %d ) %s\n", p[0], p[1], p[2], p[3], p[4], p[5], p[6],
                   p[7], p[8], texture.c_str());
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
