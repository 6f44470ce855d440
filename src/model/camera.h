#pragma once

#include "geometry/vec3.h"

namespace velk {

inline constexpr int kCameras = 5;

// One of a map's five eyes. Angles in radians; a level camera has roll pi and pitch 3*pi/2. Forward is
// (sin yaw, -cos yaw, 0); a map entity's "angle" a in degrees corresponds to yaw a*pi/180 + pi/2.
struct camera {
  vec3 origin;
  float roll = 3.1415927f;
  float pitch = 4.712389f;
  float yaw = 0;
};

}  // namespace velk
