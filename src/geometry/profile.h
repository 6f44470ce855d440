// Profiles: outlines that are turned about an axis to make a solid.
#pragma once

#include <vector>

namespace velk {

struct ProfilePoint {
  double radius = 0;  // distance from the axis, 1 for the solid's own radius
  double along = 0;   // position along the axis, on the same scale
};
using Profile = std::vector<ProfilePoint>;

}  // namespace velk
