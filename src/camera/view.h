// The eye and the lens of the flat and textured pictures: where a point of the map falls on the picture.
#pragma once

#include <cmath>

#include "base/text.h"
#include "geometry/plane.h"
#include "geometry/polygon.h"
#include "geometry/winding.h"
#include "model/camera.h"

namespace velk {

// A camera's place and axes in the world.
struct Eye {
  vec3 origin;
  vec3 right;
  vec3 up;
  vec3 forward;
  vec3 heading;  // the horizontal direction of the yaw, which lights the faces
};

Eye MakeEye(const camera& c);

// In view space x is to the right, y up and z the depth.
inline vec3 ToView(const Eye& eye, const vec3& point) {
  const vec3 offset = subtract(point, eye.origin);
  return {float(dot(offset, eye.right)), float(dot(offset, eye.up)), float(dot(offset, eye.forward))};
}

// 90 degrees across the picture; the view axis passes a third of the height below its top.
struct Projection {
  int width = 0;  // pixels
  int height = 0;
  float halfWidth = 0;  // also the focal length in pixels
  float centerY = 0;
  // In view space, through the eye: right, left, top and bottom edge of the picture. Normals have unit
  // length, as those of every plane; they point into the picture.
  SplitPlane frustum[4];
  // Polygons are cut to the picture to the hair. Otherwise corners may stay that lie a little outside; close
  // to the eye that is far, and polygons that then reach beyond the top or bottom row are left out.
  bool cutsExactly = false;
};

Projection MakeProjection(int width, int height);

// A corner of a polygon on the picture.
struct ScreenVertex {
  float x = 0;  // pixels
  float y = 0;
  float w = 0;   // reciprocal depth
  float sw = 0;  // texture coordinates times w
  float tw = 0;
};

// To the nearest 1/256 of a pixel: a corner on the border of the picture, or one that two faces share but
// were cut differently, must not fall into another row for the last digit of a float.
inline float OnGrid(double pixels) {
  constexpr double kSteps = 256;
  constexpr double kExact = 1 << 22;  // beyond, floats hold no such steps
  return std::abs(pixels) < kExact ? float(std::nearbyint(pixels * kSteps) / kSteps) : float(pixels);
}

inline ScreenVertex Project(const Projection& projection, const WindingPoint& p) {
  ScreenVertex v;
  v.w = float(projection.halfWidth / double(p.z));
  v.x = OnGrid(double(v.w) * p.x + projection.halfWidth);
  v.y = OnGrid(projection.centerY - double(v.w) * p.y);
  v.sw = p.s * v.w;
  v.tw = p.t * v.w;
  return v;
}

// The pixel column that a span edge falls in. Polygons that touch the eye reach any distance; columns
// stop where differences of columns are still exact.
inline int ColumnOf(float x) {
  constexpr int kFar = 1 << 22;
  if (x > -kFar && x < kFar) return int(x);
  return x > 0 ? kFar : (x < 0 ? -kFar : 0);
}

// The brightness row of a face, 0 the brightest; intensities 0..63. Faces that look at the eye's heading
// are brightest, those on edge to it have 63 - light, none is darker than `ambient`.
int ShadeRow(const Eye& eye, const vec3& normal, double light, double ambient);

}  // namespace velk
