// Cubes as map files hold them.
#pragma once

#include <string>

#include "base/text.h"

namespace velk::test {

inline const std::string kBrick = "brick1 0 0 0 1.000000 1.000000";

// The faces of a cube of 64 units a side, at 64 * place along x.
inline std::string CubeFaces(int place, const std::string& texture = kBrick) {
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

inline std::string Cube(int place, const std::string& texture = kBrick) {
  return "{\n" + CubeFaces(place, texture) + "}\n";
}

}  // namespace velk::test
