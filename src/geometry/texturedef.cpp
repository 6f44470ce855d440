#include "geometry/texturedef.h"

#include <cmath>
#include <numbers>

namespace velk {
namespace {

// The axes for faces that look along x, y or z, either way; as the map compiler's table of six rows has them.
constexpr TextureAxes kAxes[3] = {
    {{0, 1, 0}, {0, 0, -1}, 0.6f}, {{1, 0, 0}, {0, 0, -1}, 0.75f}, {{1, 0, 0}, {0, -1, 0}, 1.0f}};

// In the order of the table, and backwards.
constexpr int kOrder[3] = {2, 0, 1};
constexpr int kAlternativeOrder[3] = {1, 0, 2};

}  // namespace

TextureAxes TextureAxisFromPlane(const vec3& normal, int alignment) {
  if (alignment != 0 && alignment != 1) return kAxes[kOrder[0]];
  float best = 0;
  int chosen = kOrder[0];
  for (const int axis : alignment == 0 ? kOrder : kAlternativeOrder) {
    if (std::fabs(normal[axis]) > best) {
      best = std::fabs(normal[axis]);
      chosen = axis;
    }
  }
  return kAxes[chosen];
}

TextureTurn TurnOf(float degrees) {
  if (degrees == 0) return {};
  const float angle = float(degrees * (1.0 / 180) * std::numbers::pi);
  return {std::cos(double(angle)), std::sin(double(angle))};
}

TexCoords faceTexCoords(const texturedef& definition, const TextureAxes& axes, const vec3& point) {
  const TextureTurn turn = TurnOf(definition.rotate);
  const double s = dot(point, axes.s);
  const double t = dot(point, axes.t);
  return {float((turn.cosine * s - turn.sine * t) / definition.scale[0] + definition.shift[0]),
          float((turn.cosine * t + turn.sine * s) / definition.scale[1] + definition.shift[1])};
}

double WithinTurn(double degrees) {
  const double turned = std::isfinite(degrees) ? std::fmod(degrees, 360) : 0;
  return turned < 0 ? turned + 360 : turned;
}

}  // namespace velk
