#include "camera/flight.h"

#include <numbers>

#include <gtest/gtest.h>

#include "camera/view.h"

namespace velk {
namespace {

constexpr double kQuarter = std::numbers::pi / 2;

void ExpectNear(const vec3& a, const vec3& b, double within) {
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], within) << "axis " << i;
}

TEST(Flight, LooksAlongAnyDirectionUpright) {
  for (double heading = -3; heading < 3.2; heading += 0.37) {
    for (double height = -1.5; height < 1.6; height += 0.3) {
      camera eye;
      const vec3 way{float(std::cos(heading) * std::cos(height)), float(std::sin(heading) * std::cos(height)),
                     float(std::sin(height))};
      LookAlong(eye, scale(way, 7));
      const Eye axes = MakeEye(eye);
      ExpectNear(axes.forward, way, 1e-4);
      EXPECT_NEAR(axes.right.z, 0, 1e-4);
      EXPECT_GT(axes.up.z, 0);
    }
  }
}

TEST(Flight, TurnsAboutTheUprightAndStopsBeforeStraightUp) {
  camera eye;  // along -y
  LookBy(eye, -kQuarter, 0);
  ExpectNear(MakeEye(eye).forward, {-1, 0, 0}, 1e-5);
  LookBy(eye, 0, 0.5);
  ExpectNear(MakeEye(eye).forward, {-0.87758f, 0, 0.47943f}, 1e-4);
  LookBy(eye, kQuarter, -0.5);
  ExpectNear(MakeEye(eye).forward, {0, -1, 0}, 1e-4);
  for (const double up : {9.0, -9.0}) {
    LookBy(eye, 0, up);
    EXPECT_NEAR(std::fabs(MakeEye(eye).forward.z), 1, 1e-3);
    LookBy(eye, 0, -up / 9 * 1.5);
    EXPECT_LT(MakeEye(eye).forward.y, -0.9) << "the heading stays";
    LookBy(eye, 0, up / 9 * 0.06);
  }
}

// What a pixel shows lies where the point before it is projected to.
TEST(Flight, PointBeforeAPixelIsSeenThere) {
  camera eye;
  eye.origin = {30, -7, 12};
  LookAlong(eye, {3, 2, -1});
  const Projection p = MakeProjection(320, 200);
  for (const auto& [x, y] : {std::pair{10, 20}, {160, 66}, {300, 190}}) {
    const vec3 seen = ToView(MakeEye(eye), PointBefore(eye, 320, 200, x, y, 500));
    EXPECT_NEAR(p.halfWidth + p.halfWidth * seen.x / seen.z, x, 0.01);
    EXPECT_NEAR(p.centerY - p.halfWidth * seen.y / seen.z, y, 0.01);
  }
}

}  // namespace
}  // namespace velk
