#pragma once

#include "geometry/vec3.h"

namespace velk {

// The clip points of a map; those at or beyond count are stale.
struct clipper {
  int count = 0;  // 0..3
  vec3 points[3];
  int current = 0;  // 0..2
};

}  // namespace velk
