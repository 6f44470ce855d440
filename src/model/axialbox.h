// Boxes along the axes, as most brushes and all boxes of point entities are.
#pragma once

#include <vector>

#include <emmintrin.h>

#include "model/polygon.h"

namespace velk {

struct face;

// Finds the polygons of such a box without cutting each face by each plane: every cut moves one side of a
// rectangle, and how far it goes along the rectangle's edges is the same for all faces that it cuts. The
// results are those of cutting, to the bit.
class AxialBox {
 public:
  static constexpr int kFaces = 6;

  // True when the planes of the faces make a box, one thick and near enough for all cuts to be plain.
  bool take(const std::vector<face>& faces);

  // The polygon of the face that was given as number `index`: four corners, their coordinates settled.
  void makePolygon(const face& f, int index, const TextureAxes& axes, const TextureTurn& turn,
                   WindingPoint* corners) const;

  const vec3& mins() const { return mins_; }
  const vec3& maxs() const { return maxs_; }

 private:
  // What a face's plane does to the rectangles of the four faces around it.
  struct Side {
    int direction;     // of the face: +x, -x, +y, -y, +z, -z
    float at;          // where its plane crosses the axis
    __m128d toFirst;   // from the corner before the side that moves, the part of the edge to its new end
    __m128d fromLast;  // and from the end of that side, towards the corner after it
  };

  void findParts();

  Side sides_[kFaces];
  vec3 mins_;  // settled
  vec3 maxs_;
};

}  // namespace velk
