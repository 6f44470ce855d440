// Windings: convex polygons whose corners carry texture coordinates.
#pragma once

#include <memory>

#include "geometry/plane.h"

namespace velk {

struct face;

inline constexpr int WINDING_MAX_POINTS = 64;
// Side classification in ClipWinding; plane, convexity and shortest-edge tolerance in CheckFace.
inline constexpr double SIDE_EPSILON = 0.1;
// A face corner c must satisfy -COORD_LIMIT <= c < COORD_LIMIT on each axis.
inline constexpr double COORD_LIMIT = 18000;
// Half the side of the square that BasePolyForPlane makes.
inline constexpr double BASE_POLYGON_HALF_SIZE = 8192;

// A corner: position in world units, texture coordinates in texels.
struct WindingPoint {
  float x = 0;
  float y = 0;
  float z = 0;
  float s = 0;
  float t = 0;

  vec3 position() const { return {x, y, z}; }
  float& operator[](int axis) { return (&x)[axis]; }
  float operator[](int axis) const { return (&x)[axis]; }
};

// One allocation: the count and the corners, in order round the polygon. Made by NewWinding only.
struct winding {
  int count = 0;

  WindingPoint* points() { return reinterpret_cast<WindingPoint*>(this + 1); }
  const WindingPoint* points() const { return reinterpret_cast<const WindingPoint*>(this + 1); }
  WindingPoint& operator[](int i) { return points()[i]; }
  const WindingPoint& operator[](int i) const { return points()[i]; }
  const WindingPoint* begin() const { return points(); }
  const WindingPoint* end() const { return points() + count; }
};

struct FreeWinding {
  void operator()(winding* w) const;
};
using WindingPtr = std::unique_ptr<winding, FreeWinding>;

// Room for n corners, count 0, zero-filled. n above 64 is fatal "NewWinding: %i points".
WindingPtr NewWinding(int n);
WindingPtr CopyWinding(const winding& w);

// The part of w in front of `split` or on it, or none. Consumes w: gives it back unchanged, or frees it.
// More corners than w has plus 4 is fatal "ClipWinding: points exceeded estimate".
WindingPtr ClipWinding(WindingPtr w, const plane& split);

// The square of side 16384 in the face's plane with its texture coordinates; stores the face's shade and
// replaces a texture scale of 0 by 1. `alignment` is the texture_alignment setting. A plane without a
// largest axis is fatal "BasePolyForPlane: no axis found".
WindingPtr BasePolyForPlane(face& f, int alignment);

}  // namespace velk
