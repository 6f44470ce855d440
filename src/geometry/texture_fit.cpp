#include "geometry/texture_fit.h"

#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {
namespace {

constexpr double kSmallest = 1e-9;
constexpr double kShear = 0.02;        // of an axis's length, that counts as none
constexpr double kPartOfDegree = 0.4;  // that counts as none
constexpr double kNearlyEqual = 1e-4;  // of scales
constexpr double kNearlyWhole = 1e-3;  // of shifts, texels

// On the two axes of a face: value = across * a + down * b + offset.
struct Slope {
  double across = 0;
  double down = 0;
  double length() const { return std::hypot(across, down); }
};

double Coordinate(const texturedef& d, int axis, const TextureTurn& turn, double a, double b) {
  const double turned = axis == 0 ? turn.cosine * a - turn.sine * b : turn.cosine * b + turn.sine * a;
  return turned / d.scale[axis];
}

double NonZero(float scale) { return scale == 0 ? 1 : double(scale); }

float Scale(double exact, float like) {
  if (std::fabs(exact - like) < kNearlyEqual * std::fabs(like)) return like;
  constexpr double kSixDecimals = 1e6;
  return float(RoundHalfAway(exact * kSixDecimals) / kSixDecimals);
}

float Shift(double exact) {
  const double whole = RoundHalfAway(exact);
  return float(std::fabs(exact - whole) < kNearlyWhole ? whole : exact);
}

double Apart(double a, double b) {
  const double difference = WithinTurn(a - b);
  return difference > 180 ? 360 - difference : difference;
}

}  // namespace

ExactTexCoords TexCoordsAt(const texturedef& definition, const TextureAxes& axes, const vec3& point) {
  const TextureTurn turn = TurnOf(definition.rotate);
  texturedef d = definition;
  for (float& scale : d.scale) scale = float(NonZero(scale));
  const double a = dot(point, axes.s);
  const double b = dot(point, axes.t);
  return {Coordinate(d, 0, turn, a, b) + d.shift[0], Coordinate(d, 1, turn, a, b) + d.shift[1]};
}

FittedTexture FitTexture(const texturedef& like, const TextureAxes& axes,
                         const std::array<PinnedPoint, 3>& points) {
  double a[3];
  double b[3];
  for (size_t i = 0; i < 3; ++i) {
    a[i] = dot(points[i].at, axes.s);
    b[i] = dot(points[i].at, axes.t);
  }
  const double area = (a[1] - a[0]) * (b[2] - b[0]) - (a[2] - a[0]) * (b[1] - b[0]);
  FittedTexture fitted{like, false};
  if (std::fabs(area) < kSmallest) return fitted;
  const auto slope = [&](double v0, double v1, double v2) -> Slope {
    return {((v1 - v0) * (b[2] - b[0]) - (v2 - v0) * (b[1] - b[0])) / area,
            ((v2 - v0) * (a[1] - a[0]) - (v1 - v0) * (a[2] - a[0])) / area};
  };
  const Slope s = slope(points[0].texel.s, points[1].texel.s, points[2].texel.s);
  const Slope t = slope(points[0].texel.t, points[1].texel.t, points[2].texel.t);
  if (s.length() < kSmallest || t.length() < kSmallest) return fitted;

  double degrees = WithinTurn(std::atan2(-s.down, s.across) * 180 / std::numbers::pi);
  const bool turned = Apart(degrees, like.rotate) > 90;
  if (turned) degrees = WithinTurn(degrees + 180);
  texturedef& made = fitted.definition;
  made.rotate = float(WithinTurn(RoundHalfAway(degrees)));
  const TextureTurn turn = TurnOf(made.rotate);
  const double along = t.across * turn.sine + t.down * turn.cosine;
  if (std::fabs(along) < kSmallest) return {like, false};
  made.scale[0] = Scale((turned ? -1 : 1) / s.length(), like.scale[0]);
  made.scale[1] = Scale(1 / along, like.scale[1]);
  const Slope rest{t.across - along * turn.sine, t.down - along * turn.cosine};
  fitted.exact = rest.length() < kShear * t.length() && Apart(degrees, made.rotate) < kPartOfDegree;
  made.shift[0] = Shift(points[0].texel.s - Coordinate(made, 0, turn, a[0], b[0]));
  made.shift[1] = Shift(points[0].texel.t - Coordinate(made, 1, turn, a[0], b[0]));
  // A file holds whole shifts.
  for (const float shift : made.shift) {
    fitted.exact = fitted.exact && std::fabs(shift - std::round(shift)) < kNearlyWhole;
  }
  return fitted;
}

texturedef MovedTexture(const texturedef& definition, const TextureAxes& axes, const vec3& offset) {
  texturedef moved = definition;
  for (float& scale : moved.scale) scale = float(NonZero(scale));
  const TextureTurn turn = TurnOf(definition.rotate);
  const double a = dot(offset, axes.s);
  const double b = dot(offset, axes.t);
  for (int axis = 0; axis < 2; ++axis) {
    moved.shift[axis] = Shift(moved.shift[axis] - Coordinate(moved, axis, turn, a, b));
  }
  return moved;
}

}  // namespace velk
