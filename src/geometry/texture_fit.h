// Texture definitions that give points of a face the texture coordinates they are to have.
#pragma once

#include <array>

#include "geometry/texturedef.h"

namespace velk {

// Texture coordinates in double, before they are stored.
struct ExactTexCoords {
  double s = 0;
  double t = 0;
};

ExactTexCoords TexCoordsAt(const texturedef& definition, const TextureAxes& axes, const vec3& point);

// A point and the coordinates it is to have.
struct PinnedPoint {
  vec3 at;
  ExactTexCoords texel;
};

struct FittedTexture {
  texturedef definition;
  // False when no five numbers do it: the axes would have to shear, or turn by a part of a degree, of which
  // map files hold whole ones. The definition comes near then.
  bool exact = false;
};

// The definition for a face with these axes. Of the two that do the same, the one that is turned more like
// `like`, whose name it takes. The points must not lie on a line.
FittedTexture FitTexture(const texturedef& like, const TextureAxes& axes,
                         const std::array<PinnedPoint, 3>& points);

// The definition of a face that was moved, so that its texture moved with it.
texturedef MovedTexture(const texturedef& definition, const TextureAxes& axes, const vec3& offset);

}  // namespace velk
