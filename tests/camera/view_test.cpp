#include "camera/view.h"

#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "support/builders.h"

namespace velk {
namespace {

constexpr double kPi = std::numbers::pi;

void ExpectNear(const vec3& a, const vec3& b) {
  for (int axis = 0; axis < 3; ++axis) EXPECT_NEAR(a[axis], b[axis], 1e-6);
}

// Pitch turns the world about its x axis, whatever the yaw.
TEST(View, CamerasLookAlongTheirHeadingAndTilt) {
  const float c = std::cos(0.3f), s = std::sin(0.3f);
  const struct {
    double yaw;
    float pitch, roll;
    vec3 forward, right, up;
  } cases[] = {{0, 0, 0, {0, -1, 0}, {-1, 0, 0}, {0, 0, 1}},
               {0.3, 0, 0, {s, -c, 0}, {-c, -s, 0}, {0, 0, 1}},
               {0, 0.3f, 0, {0, -c, -s}, {-1, 0, 0}, {0, -s, c}},
               {kPi, 0.3f, 0, {0, c, s}, {1, 0, 0}, {0, -s, c}},
               {kPi / 2, 0.3f, 0, {1, 0, 0}, {0, -c, -s}, {0, -s, c}},
               {0, 0, 0.3f, {0, -1, 0}, {-c, 0, s}, {s, 0, c}},
               {kPi / 2, 0, 0.3f, {c, 0, -s}, {0, -1, 0}, {s, 0, c}}};
  for (const auto& t : cases) {
    camera tilted;
    tilted.yaw = float(t.yaw);
    tilted.pitch += t.pitch;
    tilted.roll += t.roll;
    ExpectNear(MakeEye(tilted).forward, t.forward);
    ExpectNear(MakeEye(tilted).right, t.right);
    ExpectNear(MakeEye(tilted).up, t.up);
  }
}

TEST(View, TheFrustumIsThePictureExactly) {
  const Projection p = MakeProjection(160, 80);
  EXPECT_NEAR(p.centerY, 26.6667, 1e-4);
  const struct {
    WindingPoint at;  // view space
    float x;
    float y;
  } corners[] = {{{-3, 1, 3, 0, 0}, 0, 0}, {{3, -2, 3, 0, 0}, 160, 80}, {{0, 0, 9, 0, 0}, 80, 26.666667f}};
  for (const auto& corner : corners) {
    const ScreenVertex v = Project(p, corner.at);
    EXPECT_NEAR(v.x, corner.x, 1.0 / 256);
    EXPECT_NEAR(v.y, corner.y, 1.0 / 256);
    EXPECT_FLOAT_EQ(v.w, 80 / corner.at.z);
  }
  for (const SplitPlane& edge : p.frustum) {
    EXPECT_NEAR(std::hypot(edge.normal[0], edge.normal[1], edge.normal[2]), 1, 1e-6);
  }
}

TEST(View, ColumnsStopFarOut) {
  EXPECT_EQ(ColumnOf(-0.5f), 0);
  EXPECT_EQ(ColumnOf(-1.5f), -1);
  EXPECT_EQ(ColumnOf(1e20f), 1 << 22);
  EXPECT_EQ(ColumnOf(-std::numeric_limits<float>::infinity()), -(1 << 22));
  EXPECT_EQ(ColumnOf(std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST(View, ShadesByHeading) {
  const struct {
    double yaw;
    vec3 normal;
    double light;
    double ambient;
    int row;
  } cases[] = {
      {kPi / 2, {-1, 0, 0}, 32, 16, 0},  // head on: 63
      {kPi / 2, {0, 1, 0}, 32, 16, 32},  // on edge: 63 - light
      {kPi / 2, {0, 0, 1}, 32, 16, 32},
      {kPi / 2, {1, 0, 0}, 32, 16, 47},  // seen from behind: ambient
      {kPi / 2, {1, 0, 0}, 10, 16, 20},  // 63 - 2 * light
      {0, {0, 1, 0}, 32, 16, 0},
      {0, {0, 1, 0}, 63, 63, 0},
      {3 * kPi / 2, {0, -1, 0}, 63, 0, 63},
      {0, {0.8f, 0.6f, 0}, 10, 0, 4},  // 63 - 10 + 6, exactly 59
  };
  for (const auto& c : cases) {
    camera eye;
    eye.yaw = float(c.yaw);
    EXPECT_EQ(ShadeRow(MakeEye(eye), c.normal, c.light, c.ambient), c.row) << c.yaw << " " << c.normal.x;
  }
}

}  // namespace
}  // namespace velk
