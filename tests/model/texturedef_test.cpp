#include "model/texturedef.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(TextureAxisTest, FollowsTheNormalAndBreaksTies) {
  const struct {
    vec3 normal;
    int alignment;
    vec3 s, t;
    float shade;
  } cases[] = {
      {{0, 0, 1}, 0, {1, 0, 0}, {0, -1, 0}, 1.0f},        {{0, 0, -1}, 0, {1, 0, 0}, {0, -1, 0}, 1.0f},
      {{-1, 0, 0}, 0, {0, 1, 0}, {0, 0, -1}, 0.6f},       {{0, 1, 0}, 1, {1, 0, 0}, {0, 0, -1}, 0.75f},
      {{0.5f, 0, 0.5f}, 0, {1, 0, 0}, {0, -1, 0}, 1.0f},  {{0.5f, 0, 0.5f}, 1, {0, 1, 0}, {0, 0, -1}, 0.6f},
      {{0.5f, -0.5f, 0}, 0, {0, 1, 0}, {0, 0, -1}, 0.6f}, {{0.5f, -0.5f, 0}, 1, {1, 0, 0}, {0, 0, -1}, 0.75f},
      {{1, 0, 0}, 2, {1, 0, 0}, {0, -1, 0}, 1.0f},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.normal.x << " " << c.normal.y << " " << c.normal.z << " / "
                                    << c.alignment);
    const TextureAxes axes = TextureAxisFromPlane(c.normal, c.alignment);
    EXPECT_TRUE(VecEqual(axes.s, c.s));
    EXPECT_TRUE(VecEqual(axes.t, c.t));
    EXPECT_EQ(axes.shade, c.shade);
  }
}

TEST(TexCoordsTest, TurnsScalesAndShifts) {
  const struct {
    float rotate, shift[2], scale[2];
    float s, t;
  } cases[] = {
      {0, {0, 0}, {1, 1}, 64, -32},   {0, {5, -3}, {2, 0.5f}, 37, -67}, {90, {0, 0}, {1, 1}, 32, 64},
      {180, {1, 2}, {1, 1}, -63, 34}, {360, {0, 0}, {1, 1}, 64, -32},   {-90, {0, 0}, {-1, 1}, 32, -64},
  };
  const TextureAxes floor = TextureAxisFromPlane({0, 0, 1}, 0);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.rotate);
    texturedef d;
    d.rotate = c.rotate;
    for (int i = 0; i < 2; ++i) {
      d.shift[i] = c.shift[i];
      d.scale[i] = c.scale[i];
    }
    const TexCoords at = faceTexCoords(d, floor, {64, 32, 1000});
    EXPECT_NEAR(at.s, c.s, 1e-4);
    EXPECT_NEAR(at.t, c.t, 1e-4);
  }
}

}  // namespace
}  // namespace velk
