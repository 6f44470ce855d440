// The arithmetic of windings on plain runs of corners, so that clipping can work in scratch memory. Windings
// and brush::buildWindings share it; both get the same results to the bit.
#pragma once

#include <cstdint>

#include "model/texturedef.h"
#include "model/winding.h"

namespace velk {

// What a clip may add to a polygon before it counts as broken.
inline constexpr int CLIP_EXTRA_POINTS = 4;

// A plane to split by, with what the inner loops want of it.
struct SplitPlane {
  explicit SplitPlane(const plane& p);
  SplitPlane() = default;

  double normal[3] = {};
  double dist = 0;
  // Where the normal is exactly 1 or -1 on an axis, corners of the cut get this value there.
  bool axial = false;
  bool fixed[3] = {};
  float fixedAt[3] = {};
};

// The sides of a polygon's corners. Bit i stands for corner i; one that is on neither side lies on the plane.
struct CornerSides {
  double distance[WINDING_MAX_POINTS + 1];  // the first repeated after the last
  std::uint64_t front = 0;
  std::uint64_t back = 0;
};

// Tells on which side of the plane each of up to 64 corners lies.
void FindSides(const WindingPoint* corners, int count, const SplitPlane& split, CornerSides& sides);

// Writes the part in front of the plane, for a polygon with corners on both sides, and returns its count.
// `out` needs room for count + CLIP_EXTRA_POINTS + 1 corners. More corners than count + CLIP_EXTRA_POINTS
// are fatal "ClipWinding: points exceeded estimate".
int CutCorners(const WindingPoint* corners, int count, const SplitPlane& split, const CornerSides& sides,
               WindingPoint* out);

// The four corners that BasePolyForPlane makes; `turn` belongs to the face's rotation.
void BaseCorners(face& f, int alignment, const TextureTurn& turn, WindingPoint* out);

// CheckFace for corners that need not be a winding's.
bool CheckCorners(const WindingPoint* corners, int count, const plane& facePlane);

}  // namespace velk
