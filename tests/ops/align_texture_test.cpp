#include "ops/texturing/align_texture.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "geometry/texture_fit.h"
#include "ops/move_selection.h"
#include "ops/transform.h"
#include "support/builders.h"

namespace velk {
namespace {

TextureSize SixtyFour(const std::string&) { return {64, 64}; }

std::string Text(const texturedef& t) {
  return Format("%g %g %g %g %g", double(t.shift[0]), double(t.shift[1]), double(t.rotate),
                double(t.scale[0]), double(t.scale[1]));
}

// Faces of a box: four sides (along -x, +y, +x, -y), top, bottom, in the order of brush::setBox.
struct AlignTexture : test::MapTest {
  brush& b = selectedBox({10, 20, 30}, {138, 84, 94});
  int facing(const brush& of, const vec3& normal) {
    for (int i = 0; i < of.numfaces(); ++i) {
      if (VecEqual(of.faces()[size_t(i)].facePlane.normal, normal)) return i;
    }
    return -1;
  }
  const face& at(const vec3& normal) { return b.faces()[size_t(facing(b, normal))]; }
  std::string after(const vec3& normal, const TextureChange& change, const texturedef& before = {}) {
    b.setCurrentFace(facing(b, normal));
    b.setTexturedef(before, b.currentFace());
    EXPECT_EQ(ChangeTextures(m, false, change), 1);
    return Text(at(normal).texture);
  }
};

TEST_F(AlignTexture, LaysTexturesByTheFacesEdges) {
  const vec3 front{0, -1, 0};  // 128 across (x from 10), 64 down (z from 94)
  using enum TextureEdge;
  const struct {
    TextureChange change;
    const char* after;
  } cases[] = {{FitTextureTo(SixtyFour, 1, 1), "59 30 0 2 1"},
               {FitTextureTo(SixtyFour, 4, 2), "44 60 0 0.5 0.5"},
               {AlignTextureTo(SixtyFour, Left), "54 0 0 1 1"},
               {AlignTextureTo(SixtyFour, Right), "54 0 0 1 1"},
               {AlignTextureTo(SixtyFour, Top), "0 30 0 1 1"},
               {AlignTextureTo(SixtyFour, Bottom), "0 30 0 1 1"},
               {AlignTextureTo(SixtyFour, Centre), "22 30 0 1 1"},
               {QuarterTurnTexture(), "12 -136 90 1 1"},
               {FlipTexture(0), "148 0 0 -1 1"},
               {FlipTexture(1), "0 -124 0 1 -1"}};
  for (const auto& c : cases) EXPECT_EQ(after(front, c.change), c.after);
  const ExactTexCoords corner = TexCoordsAt(at(front).texture, TextureAxisFromPlane(front, 0), {74, 20, 62});
  EXPECT_EQ(corner.t, -62);  // flipping left the middle alone
  EXPECT_EQ(ChangeTextures(m, true, FlipTexture(0)), 6);
}

TEST_F(AlignTexture, WrappedTexturesRunOnOverEveryEdge) {
  const vec3 front{0, -1, 0};
  brush& next = selectedBox({138, 20, 30}, {200, 84, 94});
  b.setCurrentFace(facing(b, front));
  b.setTexturedef({"brick", 0, {7, 9}, {1, 0.5f}}, b.currentFace());
  const face from = at(front);
  ASSERT_EQ(m.firstSelected(), &b);
  const WrappedTextures wrapped = WrapTexture(m);
  EXPECT_EQ(wrapped.inexact, 0);
  EXPECT_EQ(wrapped.faces, 4 + 2);  // of the next brush its front and the side that touches
  EXPECT_EQ(next.faces()[size_t(facing(next, front))].texture.shift[0], 7);
  for (const vec3& normal : {vec3{1, 0, 0}, {-1, 0, 0}, {0, 0, 1}, {0, 0, -1}}) {
    const face& to = at(normal);
    EXPECT_EQ(to.texture.name, "brick");
    for (int i = 0; i < to.polygon->count; ++i) {
      const vec3 p = (*to.polygon)[i].position();
      if (p.y != 20) continue;  // off the shared edge
      const ExactTexCoords here = TexCoordsAt(to.texture, TextureAxisFromPlane(normal, 0), p);
      const ExactTexCoords there = TexCoordsAt(from.texture, TextureAxisFromPlane(front, 0), p);
      EXPECT_NEAR(here.s, there.s, 0.5);
      EXPECT_NEAR(here.t, there.t, 0.5);
    }
  }
}

// What every corner of the brush shows, whatever its faces are called.
TEST_F(AlignTexture, LockedTexturesMoveAlong) {
  settings.texture_lock = true;
  const texturedef brick{"brick", 30, {5, -7}, {0.5f, 2}};
  const auto texels = [&] {
    std::vector<ExactTexCoords> all;
    for (const face& f : b.faces()) {
      const TextureAxes axes = TextureAxisFromPlane(f.facePlane.normal, 0);
      for (const vec3& p : f.planepts) all.push_back(TexCoordsAt(f.texture, axes, p));
    }
    return all;
  };
  const struct {
    const char* what;
    std::function<void()> run;
    bool reversed;
  } cases[] = {{"move",
                [&] {
                  MoveSelection(m, {16, -40, 8});
                },
                false},
               {"turn z", [&] { QuarterTurnSelection(m, 2, true); }, false},
               {"turn x", [&] { QuarterTurnSelection(m, 0, true); }, false},
               {"mirror", [&] { MirrorSelection(m, 1, true); }, true},
               {"scale", [&] { ScaleSelection(m, 2, 1, 1, true); }, false}};
  for (const auto& c : cases) {
    b.setAllTexturedefs(c.what == std::string("scale") ? texturedef{"brick", 0, {5, -7}, {0.5f, 2}} : brick);
    const std::vector<ExactTexCoords> before = texels();
    c.run();
    const std::vector<ExactTexCoords> now = texels();
    for (size_t i = 0; i < before.size(); ++i) {
      const size_t from = c.reversed ? i / 3 * 3 + 2 - i % 3 : i;
      EXPECT_NEAR(now[i].s, before[from].s, 0.02) << c.what << i;
      EXPECT_NEAR(now[i].t, before[from].t, 0.02) << c.what << i;
    }
  }
  b.setAllTexturedefs(brick);
  const Outcome sheared = RotateSelection(m, 0, 0, 33, true);
  EXPECT_EQ(sheared.status, "6 faces could not carry their texture along...");
}

}  // namespace
}  // namespace velk
