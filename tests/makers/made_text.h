// What makers made, as short texts.
#pragma once

#include <string>

#include "base/text.h"
#include "makers/made.h"

namespace velk::test {

// "-8 0 0 .. 0 128 64", from the lowest corner to the highest.
inline std::string BoundsOf(const brush& b) {
  return Format("%g %g %g .. %g %g %g", b.mins.x, b.mins.y, b.mins.z, b.maxs.x, b.maxs.y, b.maxs.z);
}

// The bounds of all brushes, one after the other.
inline std::string BoundsOf(const Made& made) {
  std::string text;
  for (const auto& b : made.brushes) text += (text.empty() ? "" : ", ") + BoundsOf(*b);
  return text;
}

// "64 0 8, 64 16 8, 80 0 8", the points of a face.
inline std::string PointsOf(const brush& b, size_t face) {
  std::string text;
  for (const vec3& p : b.faces()[face].planepts)
    text += Format("%s%g %g %g", text.empty() ? "" : ", ", p.x, p.y, p.z);
  return text;
}

}  // namespace velk::test
