// buildWindings works in scratch memory and takes short cuts; it must give what the winding functions give.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numbers>
#include <random>

#include "geometry/check_face.h"
#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::Face;
using test::FatalMessage;
using test::TestMap;

// The rebuild by the letter, of the faces of `b`, with polygons kept in `made`. Returns whether the brush is
// valid.
bool BuildByWindings(brush& b, std::vector<WindingPtr>& made) {
  bool valid = false;
  std::vector<bool> usable;
  for (size_t i = 0; i < b.faces().size(); ++i) {
    face& f = b.editFaces()[i];
    f.polygon = nullptr;
    bool use = PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], f.facePlane);
    if (!use) f.facePlane = {};
    for (size_t k = 0; k < i && use; ++k) use = !(b.faces()[k].facePlane == f.facePlane);
    usable.push_back(use);
  }
  for (size_t i = 0; i < b.faces().size(); ++i) {
    if (!usable[i]) continue;
    face& f = b.editFaces()[i];
    WindingPtr w = BasePolyForPlane(f, b.owner->parent().settings().texture_alignment);
    for (size_t k = 0; k < b.faces().size() && w; ++k) {
      const plane& p = b.faces()[k].facePlane;
      if (k == i || VecEqual(p.normal, {})) continue;
      w = ClipWinding(std::move(w), {{-p.normal.x, -p.normal.y, -p.normal.z}, -p.dist});
    }
    if (!w) continue;
    winding& polygon = *made.emplace_back(std::move(w));
    f.polygon = &polygon;
    if (!CheckFace(f)) return false;
    valid = true;
    for (int k = 0; k < polygon.count; ++k) {
      for (float* c : {&polygon[k].x, &polygon[k].y, &polygon[k].z}) {
        if (std::fabs(double(*c) - std::round(*c)) < 0.01) *c = std::round(*c) + 0.0f;
      }
    }
  }
  return valid;
}

void ExpectSameFace(const face& made, const face& expected) {
  EXPECT_EQ(std::memcmp(&made.facePlane, &expected.facePlane, sizeof(plane)), 0);
  EXPECT_EQ(made.shade, expected.shade);
  EXPECT_EQ(made.texture.scale[0], expected.texture.scale[0]);
  ASSERT_EQ(bool(made.polygon), bool(expected.polygon));
  if (!made.polygon) return;
  ASSERT_EQ(made.polygon->count, expected.polygon->count);
  for (int i = 0; i < made.polygon->count; ++i) {
    const WindingPoint& a = (*made.polygon)[i];
    const WindingPoint& e = (*expected.polygon)[i];
    EXPECT_EQ(std::memcmp(&a, &e, sizeof(WindingPoint)), 0)
        << "corner " << i << ": " << a.x << " " << a.y << " " << a.z << " " << a.s << " " << a.t
        << ", expected " << e.x << " " << e.y << " " << e.z << " " << e.s << " " << e.t;
  }
}

void ExpectBoundsOfPolygons(const brush& b) {
  vec3 mins{1e6f, 1e6f, 1e6f};
  vec3 maxs{-1e6f, -1e6f, -1e6f};
  for (const face& f : b.faces()) {
    for (int i = 0; f.polygon && i < f.polygon->count; ++i) {
      for (int axis = 0; axis < 3; ++axis) {
        mins[axis] = std::min(mins[axis], (*f.polygon)[i][axis]);
        maxs[axis] = std::max(maxs[axis], (*f.polygon)[i][axis]);
      }
    }
  }
  EXPECT_TRUE(VecEqual(b.mins, mins) && VecEqual(b.maxs, maxs));
}

void ExpectSameBuild(brush& b) {
  brush expected(b);
  std::vector<WindingPtr> polygons;
  bool valid = false;
  const std::string expectedFatal = FatalMessage([&] { valid = BuildByWindings(expected, polygons); });
  ASSERT_EQ(FatalMessage([&] { b.buildWindings(); }), expectedFatal);
  if (!expectedFatal.empty()) return;
  EXPECT_EQ(b.invalid, !valid);
  for (size_t i = 0; i < b.faces().size(); ++i) {
    SCOPED_TRACE(i);
    ExpectSameFace(b.faces()[i], expected.faces()[i]);
  }
  if (valid) ExpectBoundsOfPolygons(b);
}

class RandomBrushes {
 public:
  float whole(int low, int high) { return float(std::uniform_int_distribution<int>(low, high)(random_)); }
  bool oneIn(int n) { return whole(1, n) == 1; }
  vec3 point(int reach) { return {whole(-reach, reach), whole(-reach, reach), whole(-reach, reach)}; }

  void textureAll(brush& b) {
    for (face& f : b.editFaces()) {
      f.texture.rotate = oneIn(3) ? whole(-360, 360) / 2 : 0;
      for (int i = 0; i < 2; ++i) {
        f.texture.shift[i] = whole(-200, 200);
        f.texture.scale[i] = oneIn(4) ? whole(-30, 30) / 10 : 1;
      }
    }
  }

  // Faces at random about a centre, turned outwards; some repeated, some degenerate.
  std::vector<face> soup(int faces, int reach) {
    std::vector<face> made;
    const vec3 centre = point(2000);
    for (int i = 0; i < faces; ++i) {
      face f = Face(add(centre, point(reach)), add(centre, point(reach)), add(centre, point(reach)));
      plane p;
      if (PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], p) && DistanceTo(p, centre) > 0) {
        std::swap(f.planepts[0], f.planepts[2]);
      }
      made.push_back(oneIn(20) && i > 0 ? made[size_t(whole(0, i - 1))] : f);
    }
    return made;
  }

  // The faces of a box in any order. Some are not whole, very thin, open, askew, or reach beyond the polygons
  // that are cut.
  void box(brush& b) {
    const float grain = oneIn(3) ? 0.004f : 1;
    const vec3 mins = scale(point(oneIn(20) ? 8192 : 4096), grain);
    const int longest = oneIn(3) ? 7000 : 900;
    b.setBox(mins, add(mins, scale({whole(1, longest), whole(1, longest), whole(1, longest)}, grain)), {});
    std::shuffle(b.editFaces().begin(), b.editFaces().end(), random_);
    if (oneIn(10)) {
      b.editFaces().back() =
          Face(b.editFaces()[0].planepts[1], b.editFaces()[0].planepts[2], b.editFaces()[0].planepts[0]);
    }
    if (oneIn(4)) {  // so little that the normal's largest component may still be 1
      vec3& corner = b.editFaces()[0].planepts[0];
      corner = add(corner, scale(point(1), grain));
    }
  }

  // A prism of whole plane points.
  std::vector<face> prism(int sides, double radius, float height) {
    std::vector<face> made;
    const auto corner = [&](int i, float z) {
      const double angle = 2 * std::numbers::pi * i / sides;
      return vec3{float(std::round(radius * std::cos(angle))), float(std::round(radius * std::sin(angle))),
                  z};
    };
    for (int i = 0; i < sides; ++i)
      made.push_back(Face(corner(i, height), corner(i + 1, height), corner(i + 1, 0)));
    made.push_back(Face(vec3{0, 0, height}, vec3{0, 8, height}, vec3{8, 8, height}));
    made.push_back(Face(vec3{8, 8, 0}, vec3{0, 8, 0}, vec3{0, 0, 0}));
    return made;
  }

 private:
  std::mt19937 random_{1996};
};

TEST(FastPathTest, BuildsWhatTheWindingFunctionsBuild) {
  TestMap t;
  RandomBrushes random;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  int valid = 0;
  for (int round = 0; round < 3000 && !testing::Test::HasFailure(); ++round) {
    SCOPED_TRACE(round);
    t.settings.texture_alignment = round % 2;
    if (round % 3 == 0) {
      b.editFaces() = random.soup(int(random.whole(4, 24)), round % 2 ? 40 : 700);
    } else if (round % 3 == 1) {
      b.editFaces() = random.prism(int(random.whole(3, 24)), random.whole(8, 500), random.whole(8, 100));
    } else {
      random.box(b);
    }
    random.textureAll(b);
    ExpectSameBuild(b);
    valid += !b.invalid;
  }
  EXPECT_GT(valid, 2000);
}

TEST(FastPathTest, StopsWhereTheWindingFunctionsStop) {
  TestMap t;
  RandomBrushes random;
  brush& b = t.box({0, 0, 0}, {64, 64, 64});
  const struct {
    int sides;
    const char* message;
  } cases[] = {{61, ""}, {62, "NewWinding: 65 points"}};
  for (const auto& c : cases) {
    b.editFaces() = random.prism(c.sides, 4000, 64);
    ExpectSameBuild(b);
    EXPECT_EQ(FatalMessage([&] { b.buildWindings(); }), c.message);
  }
}

}  // namespace
}  // namespace velk
