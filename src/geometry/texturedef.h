// Texture definitions of faces, and their projection onto planes as the game's map compiler does it.
#pragma once

#include <string>

#include "geometry/vec3.h"

namespace velk {

struct texturedef {
  std::string name;         // lower case; any length is kept, wads hold up to 15 characters
  float rotate = 0;         // degrees
  float shift[2] = {0, 0};  // s, t in texels
  float scale[2] = {0, 0};  // world units per texel; 0 counts as 1
};

struct TextureAxes {
  vec3 s;
  vec3 t;
  float shade = 1;  // brightness of faces with these axes: 1.0 floors, 0.6 and 0.75 walls
};

// The texture axes for a face normal. alignment 0 gives ties between base axes to the lower row of the
// compiler's table, 1 to the higher; any other value means row 0.
TextureAxes TextureAxisFromPlane(const vec3& normal, int alignment);

struct TexCoords {
  float s = 0;
  float t = 0;
};

// Cosine and sine of a texture's rotation.
struct TextureTurn {
  double cosine = 1;
  double sine = 0;
};
TextureTurn TurnOf(float degrees);

// The same turn from 0 up to 360 degrees, without it.
double WithinTurn(double degrees);

// Texture coordinates of a point; the scales must not be 0.
TexCoords faceTexCoords(const texturedef& definition, const TextureAxes& axes, const vec3& point);

}  // namespace velk
