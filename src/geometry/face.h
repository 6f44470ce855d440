#pragma once

#include <memory>

#include "geometry/plane.h"
#include "geometry/texture_ref.h"
#include "geometry/texturedef.h"
#include "geometry/winding.h"

namespace velk {

// One side of a brush: three points and a texture definition, and what brush::buildWindings makes of
// them.
struct face {
  vec3 planepts[3];
  texturedef texture;

  plane facePlane;                   // derived; its normal points out of the brush
  float shade = 0;                   // derived, 0..1
  const winding* polygon = nullptr;  // derived, in the brush's store; none when degenerate, repeated or
                                     // clipped away
  mutable std::unique_ptr<TextureRef> cache;  // filled by the camera view, dropped with the polygon

  // What projecting the texture leaves in the face: the shade, and 1 in place of a scale of 0.
  void takeProjection(float axesShade) {
    shade = axesShade;
    for (float& scale : texture.scale) {
      if (scale == 0) scale = 1;
    }
  }

  face() = default;
  // A face that moves within its brush keeps its polygon; one that moves elsewhere needs buildWindings.
  face(face&&) = default;
  face& operator=(face&&) = default;
  // Copies carry points, texture definition, plane and shade; no polygon and no cache.
  face(const face& other);
  face& operator=(const face& other);
};

}  // namespace velk
