#include "geometry/winding.h"

#include <cmath>

#include "geometry/check_face.h"
#include "geometry/face.h"
#include "geometry/texturedef.h"
#include "support/fatal.h"

namespace velk {
namespace {

WindingPtr Square(float z = 0) {
  WindingPtr w = NewWinding(4);
  const WindingPoint corners[] = {
      {-32, 32, z, 0, 0}, {32, 32, z, 64, 0}, {32, -32, z, 64, 64}, {-32, -32, z, 0, 64}};
  for (const WindingPoint& c : corners) (*w)[w->count++] = c;
  return w;
}

TEST(PlaneTest, PointsOutOfTheSolidAndRefusesDegeneratePoints) {
  plane p;
  ASSERT_TRUE(PlaneFromPoints({0, 0, 64}, {0, 64, 64}, {64, 64, 64}, p));
  EXPECT_TRUE(VecEqual(p.normal, {0, 0, 1}));
  EXPECT_EQ(p.dist, 64);
  EXPECT_FALSE(PlaneFromPoints({0, 0, 0}, {1, 1, 1}, {2, 2, 2}, p));
  EXPECT_EQ(p.dist, 64);
}

TEST(ClipTest, KeepsWhatIsInFrontOrOnThePlane) {
  const double slant = std::sqrt(0.5);
  const struct {
    const char* what;
    plane split;
    int count;  // 0: nothing left
    bool same;  // the winding comes back as it was
  } cases[] = {
      {"in front", {{1, 0, 0}, -40}, 4, true},
      {"behind", {{1, 0, 0}, 40}, 0, false},
      {"in the plane, within the tolerance", {{0, 0, 1}, 0.1f - 0.001f}, 4, true},
      {"in the plane, at the other side of it", {{0, 0, 1}, -0.1f + 0.001f}, 4, true},
      {"touching from behind", {{1, 0, 0}, 32}, 0, false},
      {"touching in front", {{1, 0, 0}, -32}, 4, true},
      {"cut through opposite edges", {{1, 0, 0}, 10}, 4, false},
      {"a corner cut off", {{float(slant), float(slant), 0}, -30}, 5, false},
      {"a corner left", {{float(slant), float(slant), 0}, 30}, 3, false},
      {"through two corners", {{float(slant), float(slant), 0}, 0}, 3, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    WindingPtr w = Square();
    const winding* before = w.get();
    w = ClipWinding(std::move(w), c.split);
    ASSERT_EQ(w != nullptr, c.count > 0);
    if (w) {
      EXPECT_EQ(w->count, c.count);
      EXPECT_EQ(w.get() == before, c.same);
    }
  }
}

TEST(ClipTest, PutsCornersOnAxialPlanesExactlyInOrderAndInterpolatesTexture) {
  const float third = 1.0f / 3;
  const vec3 expected[] = {{-32, 32, 0}, {32, 32, 0}, {32, third, 0}, {-32, third, 0}};
  const WindingPtr w = ClipWinding(Square(), {{0, 1, 0}, third});
  ASSERT_EQ(w->count, 4);
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(VecEqual((*w)[i].position(), expected[i])) << i;
  EXPECT_FLOAT_EQ((*w)[3].t, 32 - third);
  const WindingPtr left = ClipWinding(Square(), {{-1, 0, 0}, -third});
  EXPECT_EQ((*left)[1].x, third);
  EXPECT_FLOAT_EQ((*left)[1].s, 32 + third);
}

TEST(ClipTest, RefusesTooManyCorners) {
  // A zigzag about the plane: every edge is cut.
  const auto zigzag = [](int count) {
    WindingPtr w = NewWinding(count);
    for (; w->count < count; ++w->count)
      (*w)[w->count] = {float(w->count), w->count % 2 ? 1.0f : -1.0f, 0, 0, 0};
    return w;
  };
  EXPECT_EQ(ClipWinding(zigzag(8), {{0, 1, 0}, 0})->count, 12);
  EXPECT_FATAL(ClipWinding(zigzag(10), {{0, 1, 0}, 0}), "ClipWinding: points exceeded estimate");
  EXPECT_FATAL(ClipWinding(zigzag(62), {{0, 1, 0}, 0}), "NewWinding: 66 points");
  EXPECT_FATAL(NewWinding(65), "NewWinding: 65 points");
}

face FaceOn(const vec3& normal, float dist) {
  face f;
  f.facePlane = {normal, dist};
  f.texture.scale[0] = 2;
  return f;
}

TEST(BasePolygonTest, IsASquareInThePlane) {
  face f = FaceOn({0, 0, 1}, 64);
  const WindingPtr w = BasePolyForPlane(f, 0);
  ASSERT_EQ(w->count, 4);
  const vec3 expected[] = {{8192, 8192, 64}, {8192, -8192, 64}, {-8192, -8192, 64}, {-8192, 8192, 64}};
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(VecEqual((*w)[i].position(), expected[i])) << i;
  EXPECT_EQ(f.shade, 1.0f);
  EXPECT_EQ(f.texture.scale[0], 2);
  EXPECT_EQ(f.texture.scale[1], 1) << "a scale of 0 is replaced in the face";
  EXPECT_EQ((*w)[0].s, 4096);
  EXPECT_EQ((*w)[0].t, -8192);
}

TEST(BasePolygonTest, TakesTheEarlierOfEqualAxes) {
  // With x chosen, "up" lies in the plane of z and the normal; with z it would lie along x.
  const float third = float(std::sqrt(1.0 / 3));
  face f = FaceOn({third, third, third}, 0);
  const WindingPtr w = BasePolyForPlane(f, 0);
  const vec3 up = subtract((*w)[0].position(), (*w)[3].position());
  EXPECT_FLOAT_EQ(up.x, up.y);
  EXPECT_GT(up.z, 0);
}

TEST(BasePolygonTest, ProjectsTheTextureOnEveryCornerAndNeedsAnAxis) {
  const vec3 normals[] = {{0, 0, -1}, {1, 0, 0}, {0, -1, 0}, {0.6f, 0, 0.8f}, {-0.48f, 0.8f, -0.36f}};
  for (const vec3& normal : normals) {
    for (const float rotation : {0.0f, 30.0f, -90.0f}) {
      face f = FaceOn(normal, 100);
      f.texture.rotate = rotation;
      f.texture.scale[1] = rotation == 0 ? 1.0f : 0.7f;
      f.texture.shift[0] = -13.5f;
      const WindingPtr w = BasePolyForPlane(f, 1);
      for (const WindingPoint& corner : *w) {
        const TexCoords at = faceTexCoords(f.texture, TextureAxisFromPlane(normal, 1), corner.position());
        EXPECT_TRUE(corner.s == at.s && corner.t == at.t);
      }
    }
  }
  face f = FaceOn({NAN, NAN, NAN}, 0);
  EXPECT_FATAL(BasePolyForPlane(f, 0), "BasePolyForPlane: no axis found");
}

TEST(CheckFaceTest, AcceptsOrRefuses) {
  const struct {
    const char* what;
    int corner;
    WindingPoint moved;
    bool accepted;
  } cases[] = {
      {"as it is", 0, {-32, 32, 0, 0, 0}, true},
      {"at the upper limit", 1, {18000, 32, 0, 0, 0}, false},
      {"at the lower limit", 0, {-18000, 32, 0, 0, 0}, true},
      {"off the plane", 2, {32, -32, 0.11f, 0, 0}, false},
      {"off the plane, other side", 2, {32, -32, -0.11f, 0, 0}, false},
      {"nearly on the plane", 2, {32, -32, 0.09f, 0, 0}, true},
      {"a short edge", 1, {-31.95f, 32, 0, 0, 0}, false},
      {"an edge just long enough", 1, {-31.89f, 32, 0, 0, 0}, true},
      {"hollow, within the tolerance", 1, {31.95f, 0, 0, 0, 0}, true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    face f = FaceOn({0, 0, 1}, 0);
    const WindingPtr w = Square();
    (*w)[c.corner] = c.moved;
    f.polygon = w.get();
    EXPECT_EQ(CheckFace(f), c.accepted);
  }
}

TEST(CheckFaceTest, FatalCases) {
  face f = FaceOn({0, 0, 1}, 0);
  EXPECT_FATAL(CheckFace(f), "CheckFace: no winding");
  const WindingPtr w = Square();
  f.polygon = w.get();
  w->count = 2;
  EXPECT_FATAL(CheckFace(f), "CheckFace: 2 points");
  w->count = 4;
  (*w)[1] = {-10, -10, 0, 0, 0};
  EXPECT_FATAL(CheckFace(f), "CheckFace: non-convex");
}

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
