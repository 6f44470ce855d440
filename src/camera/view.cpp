#include "camera/view.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velk {

namespace {

struct Matrix {
  double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

Matrix operator*(const Matrix& a, const Matrix& b) {
  Matrix product;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      product.m[row][column] =
          a.m[row][0] * b.m[0][column] + a.m[row][1] * b.m[1][column] + a.m[row][2] * b.m[2][column];
    }
  }
  return product;
}

// Turns the plane of two axes into each other.
Matrix Turn(int from, int to, double angle) {
  Matrix turn;
  turn.m[from][from] = turn.m[to][to] = std::cos(angle);
  turn.m[from][to] = std::sin(angle);
  turn.m[to][from] = -std::sin(angle);
  return turn;
}

vec3 Row(const Matrix& matrix, int row) {
  return {float(matrix.m[row][0]), float(matrix.m[row][1]), float(matrix.m[row][2])};
}

// A quarter turn held in a float misses its axis by a hair; faces square to it are to be lit as such.
float WithoutHair(double component) { return std::abs(component) < 1e-6 ? 0.0f : float(component); }

SplitPlane Through(double x, double y, double z) {
  const double size = std::sqrt(x * x + y * y + z * z);
  return SplitPlane({{float(x / size), float(y / size), float(z / size)}, 0});
}

}  // namespace

Eye MakeEye(const camera& c) {
  constexpr double kQuarter = std::numbers::pi / 2;
  const Matrix axes = Turn(2, 0, c.yaw + kQuarter) * Turn(0, 1, c.roll) * Turn(1, 2, c.pitch);
  Eye eye;
  eye.origin = c.origin;
  eye.forward = Row(axes, 0);
  eye.up = Row(axes, 1);
  eye.right = Row(axes, 2);
  eye.heading = {WithoutHair(std::sin(double(c.yaw))), WithoutHair(-std::cos(double(c.yaw))), 0};
  return eye;
}

Projection MakeProjection(int width, int height) {
  Projection p;
  p.width = width;
  p.height = height;
  p.halfWidth = float(width * 0.5);
  p.centerY = float(height / 3.0);
  const double above = double(p.centerY) / p.halfWidth;
  p.frustum[0] = Through(-1, 0, 1);
  p.frustum[1] = Through(1, 0, 1);
  p.frustum[2] = Through(0, -1, above);
  p.frustum[3] = Through(0, 1, 2 * above);
  return p;
}

int ShadeRow(const Eye& eye, const vec3& normal, double light, double ambient) {
  const float facing = float(-dot(eye.heading, normal));
  const float shade = float(63 - light + facing * light);
  return 63 - Truncate(std::min(63.0, std::max(ambient, double(shade))));
}

}  // namespace velk
