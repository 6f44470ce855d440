#include "model/texturedef.h"

#include <cmath>
#include <numbers>

namespace velk {
namespace {

// A row of the map compiler's table: faces that look along `normal` get the axes `s` and `t`.
struct BaseAxis {
  vec3 normal;
  TextureAxes axes;
};

constexpr int kRows = 6;
constexpr BaseAxis kBaseAxes[kRows] = {
    {{0, 0, 1}, {{1, 0, 0}, {0, -1, 0}, 1.0f}},  {{0, 0, -1}, {{1, 0, 0}, {0, -1, 0}, 1.0f}},
    {{1, 0, 0}, {{0, 1, 0}, {0, 0, -1}, 0.6f}},  {{-1, 0, 0}, {{0, 1, 0}, {0, 0, -1}, 0.6f}},
    {{0, 1, 0}, {{1, 0, 0}, {0, 0, -1}, 0.75f}}, {{0, -1, 0}, {{1, 0, 0}, {0, 0, -1}, 0.75f}},
};

}  // namespace

TextureAxes TextureAxisFromPlane(const vec3& normal, int alignment) {
  double best = 0;
  int chosen = 0;
  for (int i = 0; i < kRows && (alignment == 0 || alignment == 1); ++i) {
    const int row = alignment == 0 ? i : kRows - 1 - i;
    const double d = dot(normal, kBaseAxes[row].normal);
    if (d > best) {
      best = d;
      chosen = row;
    }
  }
  return kBaseAxes[chosen].axes;
}

TextureTurn TurnOf(float degrees) {
  if (degrees == 0) return {};
  const float angle = float(degrees * (1.0 / 180) * std::numbers::pi);
  return {std::cos(double(angle)), std::sin(double(angle))};
}

TexCoords faceTexCoords(const texturedef& definition, const TextureAxes& axes, const vec3& point) {
  return ProjectTexture(axes, TurnOf(definition.rotate), definition.scale, definition.shift, point);
}

}  // namespace velk
